#pragma once
#include <chrono>
#include <cstdio>
#include <memory>
#include <string>

#include "RenderOptions.h"
#include "RenderRecord.h"
#include "vray/PluginRegistry.h"

namespace xrvell {

class OutputFile;
class PluginPath;
class ProgressLine;
class VrsceneStream;

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
    // Running out of memory is an error like the others. The summary line ends every run.
    int run();

    // The steps of run(), for callers that hold the scene text themselves: the scene into the
    // host, then the frames rendered and written to an opened output as they finish (false
    // when the output could not be written; the caller commits it).
    bool load(const std::string& sceneText);
    bool render(OutputFile& output);

private:
    int runSteps();
    bool readScene(std::string* text);
    bool outputIsNotTheScene();
    bool resolveFrames();
    bool writeFailed(const std::string& reason);
    void drive(VrsceneStream& stream, ProgressLine& progress);
    bool rendererNotFound();
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
    int hiddenErrors = 0;        // beyond those the scene's reading shows
    bool outputStarted = false;  // text has reached a target written in place
    bool readerGone = false;     // the reader of the output closed its end
    unsigned long long sceneDevice = 0, sceneInode = 0;
};

}  // namespace xrvell
