#pragma once
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

#include "RenderOptions.h"
#include "RenderRecord.h"
#include "vray/PluginRegistry.h"

namespace xrvell {

class PluginPath;

// One run of xrvell-render: loads the plug-ins into the stand-in host, reads the scene,
// renders the frames through the renderer stand-in and writes the .vrscene. Leaves the host
// fresh when it ends.
class RenderJob {
public:
    // Messages and the summary go to log.
    RenderJob(const RenderOptions& options, std::FILE* log);
    ~RenderJob();
    RenderJob(const RenderJob&) = delete;
    RenderJob& operator=(const RenderJob&) = delete;

    // The exit status: 0 when all went well, 1 on errors. Nothing is written when the scene
    // cannot be read; errors shown by the plug-in during the render still leave a full file.
    int run();

    // The steps of run(), for callers that hold the scene text themselves: the scene into the
    // host, then the frames rendered and written as they finish.
    bool load(const std::string& sceneText);
    std::string render();

private:
    bool readScene(std::string* text);
    bool resolveFrames();
    bool writeOutput(const std::string& text);
    void countHostMessages();
    void printDetails() const;
    void printSummary() const;
    void frameDone(const vrayrender::RecordedFrame& frame);
    bool fail(const std::string& text);

    RenderOptions options;
    std::FILE* log;
    std::chrono::steady_clock::time_point started;
    VUtils::PluginRegistry registry;  // its libraries close after the destructor resets the host
    std::unique_ptr<PluginPath> plugins;
    vrayrender::RenderRecord rendered;  // the totals; the frames go out as they finish
    size_t framesDone = 0;
    int warnings = 0;
    int errors = 0;
};

}  // namespace xrvell
