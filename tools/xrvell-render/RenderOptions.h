#pragma once
#include <string>
#include <vector>

#include "RenderSettings.h"

namespace xrvell {

// What one run of xrvell-render is asked to do.
struct RenderOptions {
    std::string scene;
    std::string output;  // "-" for standard output
    vrayrender::RenderSettings settings;
    bool startGiven = false;  // otherwise the scene's current frame
    bool endGiven = false;    // otherwise the first frame
    std::vector<std::string> pluginPath;
    std::vector<std::string> rendererPluginPath;
    std::string project;  // empty: found from the scene
    int verbosity = 1;  // 0 errors only, 1 also warnings and the summary, 2 also details
};

}  // namespace xrvell
