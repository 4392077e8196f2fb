#include "RenderJob.h"

#include <maya/MTime.h>
#include <mayahost/Host.h>

#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <sstream>

#include "CommandLine.h"
#include "Diagnostics.h"
#include "OutputFile.h"
#include "PluginPath.h"
#include "ProgressLine.h"
#include "RenderDriver.h"
#include "SceneReader.h"
#include "VrsceneWriter.h"
#include "vray/PluginRegistry.h"

namespace xrvell {
namespace {

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
    std::fprintf(log, "xrvell-render: %s\n", text.c_str());
    return false;
}

int RenderJob::run() {
    std::string text;
    if (!readScene(&text)) return 1;
    if (!load(text) || !resolveFrames()) {
        std::fprintf(log, "xrvell-render: stopped at the first error; nothing written\n");
        return 1;
    }
    const std::string scene = render();
    if (!writeOutput(scene)) return 1;
    printSummary();
    return errors ? 1 : 0;
}

bool RenderJob::readScene(std::string* text) {
    std::ifstream file(options.scene, std::ios::binary);
    std::ostringstream contents;
    if (file) contents << file.rdbuf();
    if (!file || file.bad())
        return fail("cannot read \"" + options.scene + "\": " + std::strerror(errno));
    *text = contents.str();
    return true;
}

bool RenderJob::load(const std::string& sceneText) {
    for (const std::string& problem : registry.loadDirectories(options.rendererPluginPath)) {
        ++warnings;
        if (options.verbosity >= 1)
            std::fprintf(log, "xrvell-render: warning: %s\n", problem.c_str());
    }
    Diagnostics diagnostics(options.scene, log, options.verbosity == 0);
    SceneReader reader(diagnostics,
                       [this](const std::string& name) { return plugins->require(name); });
    const bool read = reader.read(sceneText);
    warnings += diagnostics.warnings();
    errors += diagnostics.errors();
    if (read && options.verbosity >= 2) printDetails();
    return read;
}

bool RenderJob::resolveFrames() {
    vrayrender::RenderSettings& settings = options.settings;
    if (options.startGiven) return true;
    settings.startFrame = mayahost::currentTime().as(MTime::uiUnit());
    if (!options.endGiven) settings.endFrame = settings.startFrame;
    const std::string problem = CommandLine::rangeProblem(settings);
    return problem.empty() || fail(problem);
}

std::string RenderJob::render() {
    const VrsceneWriter writer(options.scene, options.settings);
    std::string scene;
    writer.writeHeader(scene);
    const size_t total = vrayrender::frames(options.settings).size();
    ProgressLine progress(log, options.verbosity >= 1 && isatty(fileno(log)));
    vrayrender::RenderSettings settings = options.settings;
    settings.frameDone = [&](vrayrender::RecordedFrame&& frame) {
        const size_t before = scene.size();
        writer.writeFrame(frame, scene);
        // Frames come out about the same size: room for the rest at once, not by doubling.
        if (framesDone == 0)
            scene.reserve(scene.size() + (scene.size() - before) * total * 11 / 10);
        frameDone(frame);
        progress.update(framesDone, total);
    };
    {
        vrayrender::RenderDriver driver(&registry);
        rendered = driver.render(settings);
    }
    progress.finish();
    countHostMessages();
    return scene;
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

bool RenderJob::writeOutput(const std::string& text) {
    std::string error;
    if (OutputFile(options.output).write(text, &error)) return true;
    return fail("cannot write \"" + options.output + "\": " + error);
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
