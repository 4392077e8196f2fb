#include "RenderJob.h"

#include <maya/MTime.h>
#include <mayahost/Host.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstring>
#include <exception>
#include <new>

#include "CommandLine.h"
#include "Diagnostics.h"
#include "MessageGroups.h"
#include "OutputFile.h"
#include "PluginPath.h"
#include "ProgressLine.h"
#include "RenderDriver.h"
#include "SceneChecks.h"
#include "SceneFile.h"
#include "SceneReader.h"
#include "VisibleText.h"
#include "VrsceneStream.h"
#include "VrsceneWriter.h"
#include "vray/PluginRegistry.h"

namespace xrvell {
namespace {

// The output is gathered into pieces of about this size before they are written: small enough to
// stay in the caches while they are made.
const size_t kWriteChunk = 256 << 10;

std::string counted(size_t count, const char* singular, const char* plural) {
    return std::to_string(count) + " " + (count == 1 ? singular : plural);
}

}  // namespace

RenderJob::RenderJob(const RenderOptions& jobOptions, std::FILE* output)
    : options(jobOptions),
      log(output),
      started(std::chrono::steady_clock::now()),
      plugins(new PluginPath(jobOptions.pluginPath)) {}

// Nodes go before the plug-ins that define them, and those before the renderer libraries.
RenderJob::~RenderJob() { mayahost::reset(); }

bool RenderJob::fail(const std::string& text) {
    ++errors;
    const std::string line = "xrvell-render: " + VisibleText::of(text) + "\n";
    std::fwrite(line.data(), 1, line.size(), log);
    return false;
}

int RenderJob::run() {
    int status = 1;
    const char* const outcome[] = {"nothing written", "the output is incomplete"};
    try {
        status = runSteps();
    } catch (const std::bad_alloc&) {
        fail(std::string("out of memory; ") + outcome[outputStarted]);
    } catch (const std::exception& error) {
        fail(std::string("internal error: ") + error.what() + "; " + outcome[outputStarted]);
    }
    printSummary();
    return status;
}

int RenderJob::runSteps() {
    std::string text;
    if (!readScene(&text) || !outputIsNotTheScene()) return 1;
    if (!load(text) || !resolveFrames()) {
        std::string tally = counted(static_cast<size_t>(errors), "error", "errors");
        if (hiddenErrors > 0) tally += ", " + std::to_string(hiddenErrors) + " of them not shown";
        std::fprintf(log, "xrvell-render: %s; nothing written\n", tally.c_str());
        return 1;
    }
    std::string().swap(text);  // the host holds the scene now
    OutputFile output(options.output);
    std::string reason;
    const bool written = (output.open(&reason) || writeFailed(reason)) && render(output) &&
                         (output.commit(&reason) || writeFailed(reason));
    return written && errors == 0 ? 0 : 1;
}

bool RenderJob::readScene(std::string* text) {
    SceneFile file;
    std::string problem;
    if (!file.read(options.scene, &problem)) return fail(problem);
    problem = SceneFile::notMayaAscii(options.scene, file.text);
    if (!problem.empty()) return fail(problem);
    sceneDevice = file.device;
    sceneInode = file.inode;
    text->swap(file.text);
    return true;
}

// Writing the output over the scene would lose the scene.
bool RenderJob::outputIsNotTheScene() {
    struct stat status;
    if (options.output == "-" || stat(options.output.c_str(), &status) != 0) return true;
    if (status.st_dev != sceneDevice || status.st_ino != sceneInode) return true;
    return fail("cannot write \"" + options.output + "\": it is the scene file \"" + options.scene +
                "\"");
}

bool RenderJob::load(const std::string& sceneText) {
    for (const std::string& problem : registry.loadDirectories(options.rendererPluginPath)) {
        ++warnings;
        if (options.verbosity >= 1)
            std::fprintf(log, "xrvell-render: warning: %s\n", VisibleText::of(problem).c_str());
    }
    Diagnostics diagnostics(options.scene, log, options.verbosity);
    SceneReader reader(diagnostics,
                       [this](const std::string& name) { return plugins->require(name); });
    if (!options.project.empty()) reader.setProject(options.project);
    const bool read = reader.read(sceneText);
    if (read) {
        SceneChecks(diagnostics).run();
        diagnostics.flush();
    }
    warnings += diagnostics.warnings();
    errors += diagnostics.errors();
    hiddenErrors = diagnostics.hiddenErrors();
    if (read && options.verbosity >= 2) printDetails();
    return read;
}

bool RenderJob::resolveFrames() {
    vrayrender::RenderSettings& settings = options.settings;
    if (!options.startGiven) {
        settings.startFrame = mayahost::currentTime().as(MTime::uiUnit());
        if (!options.endGiven) settings.endFrame = settings.startFrame;
    }
    const std::string problem = CommandLine::rangeProblem(settings);
    return problem.empty() || fail(problem);
}

bool RenderJob::render(OutputFile& output) {
    const VrsceneWriter writer(options.scene, options.settings);
    const size_t total = vrayrender::frames(options.settings).size();
    ProgressLine progress(log, options.verbosity >= 1 && isatty(fileno(log)));
    VrsceneStream stream(
        writer, output, kWriteChunk,
        [&](const vrayrender::RecordedFrame& frame) {
            frameDone(frame);
            progress.update(framesDone, total);
        },
        outputStarted);
    // Without the renderer plugin the bridges make no block, and a file of comments alone would
    // pass for a render: the text waits until the render shows whether there were bridges.
    const bool rendererMissing = !registry.getPluginDesc(VrsceneWriter::kPluginType);
    if (rendererMissing) stream.hold();
    stream.start();
    drive(stream, progress);
    if (rendererMissing && rendered.geometrySources > 0) return rendererNotFound();
    if (stream.flush()) return true;
    readerGone = output.readerGone();
    return writeFailed(stream.failure());
}

// The messages the plug-ins show come after the progress line, each once with its repeats.
void RenderJob::drive(VrsceneStream& stream, ProgressLine& progress) {
    MessageGroups hostLines(log, options.verbosity);
    {
        vrayrender::RenderDriver driver(&registry);
        rendered = driver.render(options.settings, &stream);
    }
    progress.finish();
    hostLines.flush();
    countHostMessages();
}

bool RenderJob::rendererNotFound() {
    std::string searched;
    for (const std::string& directory : options.rendererPluginPath)
        searched += (searched.empty() ? "searched " : ", ") + directory;
    if (searched.empty()) searched = "the renderer plugin path is empty";
    return fail(std::string("renderer plugin \"") + VrsceneWriter::kPluginType + "\" not found; " +
                searched + "; nothing written");
}

void RenderJob::frameDone(const vrayrender::RecordedFrame& frame) {
    ++framesDone;
    if (options.verbosity < 2) return;
    std::fprintf(log, "xrvell-render: frame %g: %s\n", frame.frame,
                 counted(frame.instances.size(), "plugin instance", "plugin instances").c_str());
}

void RenderJob::countHostMessages() {
    for (const mayahost::Message& message : mayahost::messages()) {
        if (message.channel == mayahost::Message::Channel::Warning) ++warnings;
        if (message.channel == mayahost::Message::Channel::Error ||
            message.channel == mayahost::Message::Channel::Perror)
            ++errors;
    }
}

bool RenderJob::writeFailed(const std::string& reason) {
    const std::string target =
        options.output == "-" ? "to standard output" : "\"" + options.output + "\"";
    // A reader that stopped reading, as head does, has all it wanted.
    const bool incomplete = outputStarted && !readerGone;
    return fail("cannot write " + target + ": " + reason +
                (incomplete ? "; the output is incomplete" : ""));
}

void RenderJob::printDetails() const {
    for (const std::string& file : plugins->loadedFiles())
        std::fprintf(log, "xrvell-render: loaded plug-in %s\n", file.c_str());
    for (const std::string& type : registry.typeNames())
        std::fprintf(log, "xrvell-render: renderer plugin type %s\n", type.c_str());
}

void RenderJob::printSummary() const {
    if (options.verbosity < 1) return;
    const double seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    std::fprintf(log, "xrvell-render: %s, %s, %s, %s, %s, %.2f s\n",
                 counted(framesDone, "frame", "frames").c_str(),
                 counted(static_cast<size_t>(rendered.geometrySources), "node", "nodes").c_str(),
                 counted(static_cast<size_t>(rendered.instancesCreated), "plugin instance",
                         "plugin instances")
                     .c_str(),
                 counted(static_cast<size_t>(warnings), "warning", "warnings").c_str(),
                 counted(static_cast<size_t>(errors), "error", "errors").c_str(), seconds);
}

}  // namespace xrvell
