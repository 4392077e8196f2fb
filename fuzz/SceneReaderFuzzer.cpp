// libFuzzer target: any bytes as a Maya ASCII scene, read into a host with the fur and bridge
// plug-ins loaded. The reader must neither crash nor leak, whatever it is given.
#include <maya/MTime.h>
#include <mayahost/Host.h>
#include <mayahost/Renderer.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

#include "Diagnostics.h"
#include "PluginPath.h"
#include "SceneChecks.h"
#include "SceneFile.h"
#include "SceneReader.h"

namespace {

const char* const kPlugins[] = {"xrVellMaya", "xrVellVRayMaya"};
size_t baselineNodes = 0;

// Loading happens once; each input may only name the plug-ins already loaded, with or without
// the file's ".so".
std::string alreadyLoaded(const std::string& name) {
    for (const char* plugin : kPlugins)
        if (name == plugin || name == std::string(plugin) + ".so") return "";
    return "not found";
}

// Back to the host as it was before the input: the scene's own nodes and settings go.
void restoreHost() {
    for (;;) {
        const auto all = mayahost::nodes();
        if (all.size() <= baselineNodes) break;
        mayahost::deleteNode(all.back());
    }
    MTime::setUIUnit(MTime::kFilm);
    mayahost::setCurrentTime(MTime(1.0, MTime::kFilm));
    mayahost::clearMessages();
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    mayahost::reset();
    static xrvell::PluginPath plugins({PLUGIN_DIR});
    for (const char* plugin : kPlugins) {
        const std::string problem = plugins.require(plugin);
        if (!problem.empty()) {
            std::fprintf(stderr, "%s\n", problem.c_str());
            std::abort();
        }
    }
    baselineNodes = mayahost::nodes().size();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    xrvell::SceneFile::notMayaAscii("fuzz.ma", text);
    xrvell::Diagnostics diagnostics("fuzz.ma", nullptr);
    xrvell::SceneReader reader(diagnostics, alreadyLoaded);
    if (reader.read(text)) xrvell::SceneChecks(diagnostics).run();
    restoreHost();
    return 0;
}
