#include "CommandLine.h"

#include <cmath>

#include "MaValueParser.h"
#include "PluginPath.h"
#include "VrsceneValue.h"

namespace xrvell {
namespace {

const int kMaxGeometrySamples = 1000;

const char* const kValueOptions[] = {
    "-s",        "-e",         "-b", "-mb",         "-mbDuration",
    "-mbCenter", "-mbSamples", "-o", "-pluginPath", "-vrayPluginPath",
    "-v",        "-proj"};

bool takesValue(const std::string& name) {
    for (const char* option : kValueOptions)
        if (name == option) return true;
    return false;
}

bool isHelp(const std::string& arg) { return arg == "-h" || arg == "-help" || arg == "--help"; }

// "shot.ma" -> "shot.vrscene", in the current directory.
std::string defaultOutput(const std::string& scene) {
    std::string name = scene.substr(scene.rfind('/') + 1);
    const size_t dot = name.rfind('.');
    if (dot != std::string::npos && dot > 0) name.erase(dot);
    return name + ".vrscene";
}

std::string numberText(double value) {
    std::string text;
    VrsceneValue::appendDouble(value, text);
    return text;
}

// The renderer's times are floats: the range as a float reads.
std::string timeRange() {
    std::string text = "(";
    VrsceneValue::appendFloat(static_cast<float>(-vrayrender::kMaxSampleTime), text);
    text += " to ";
    VrsceneValue::appendFloat(static_cast<float>(vrayrender::kMaxSampleTime), text);
    return text + ")";
}

}  // namespace

const char* const CommandLine::kPluginPathVariable = "MAYA_PLUG_IN_PATH";
const char* const CommandLine::kRendererPluginPathVariable = "VRAY_FOR_MAYA2022_PLUGINS";

const char* CommandLine::usage() {
    return "usage: xrvell-render [options] SCENE.ma\n"
           "Renders a Maya ASCII scene through the xrVellMayaVRay bridge and writes what the\n"
           "xrVellVRay renderer plugin receives as a V-Ray scene (.vrscene).\n"
           "  -s FRAME             first frame (default: the scene's current frame)\n"
           "  -e FRAME             last frame (default: the first frame)\n"
           "  -b STEP              frame step (default: 1)\n"
           "  -mb on|off           motion blur (default: off)\n"
           "  -mbDuration FRAMES   motion blur duration (default: 1)\n"
           "  -mbCenter FRAMES     motion blur interval centre, after the frame (default: 0.5)\n"
           "  -mbSamples N         geometry samples per frame with motion blur (default: 2)\n"
           "  -o FILE              output file, '-' for standard output\n"
           "                       (default: the scene's name with .vrscene, here)\n"
           "  -pluginPath DIRS     Maya plug-in directories, ':'-separated\n"
           "                       (default: $MAYA_PLUG_IN_PATH, then the build's plug-ins)\n"
           "  -vrayPluginPath DIRS renderer plugin directories, ':'-separated\n"
           "                       (default: $VRAY_FOR_MAYA2022_PLUGINS, then the build's)\n"
           "  -proj DIR            the Maya project referenced files are looked for in\n"
           "                       (default: the nearest folder above the scene with\n"
           "                       workspace.mel)\n"
           "  -v LEVEL             0 errors only, 1 also warnings and a summary (default),\n"
           "                       2 also the plug-ins loaded and each frame\n"
           "  -h                   this help\n";
}

CommandLine::CommandLine(const std::vector<std::string>& args, const DefaultPaths& defaults,
                         const char* (*getEnv)(const char*)) {
    const std::string* pluginOption = nullptr;
    const std::string* rendererOption = nullptr;
    for (size_t i = 0; i + 1 < args.size(); ++i) {
        if (args[i] == "-pluginPath") pluginOption = &args[i + 1];
        if (args[i] == "-vrayPluginPath") rendererOption = &args[i + 1];
    }
    if (!parse(args)) return;
    parsed.pluginPath = searchPath(pluginOption, kPluginPathVariable, defaults.plugins, getEnv);
    parsed.rendererPluginPath =
        searchPath(rendererOption, kRendererPluginPathVariable, defaults.rendererPlugins, getEnv);
}

std::vector<std::string> CommandLine::searchPath(const std::string* option, const char* variable,
                                                 const std::string& fallback,
                                                 const char* (*getEnv)(const char*)) {
    if (option) return PluginPath::split(*option);
    const char* value = getEnv(variable);
    std::vector<std::string> directories = PluginPath::split(value ? value : "");
    if (!fallback.empty()) directories.push_back(fallback);
    return directories;
}

bool CommandLine::fail(const std::string& text) {
    errorText = text;
    result = Outcome::Error;
    return false;
}

bool CommandLine::parse(const std::vector<std::string>& args) {
    for (const std::string& arg : args) {
        if (isHelp(arg)) {
            result = Outcome::Help;
            return false;
        }
    }
    std::vector<std::string> scenes;
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& arg = args[i];
        if (arg.size() > 1 && arg[0] == '-') {
            if (!takesValue(arg)) return fail("unknown option \"" + arg + "\"");
            if (i + 1 == args.size()) return fail("option " + arg + " needs a value");
            if (!option(arg, args[++i])) return false;
        } else {
            scenes.push_back(arg);
        }
    }
    if (scenes.empty()) return fail("no scene file given");
    if (scenes.size() > 1) return fail("more than one scene file given");
    parsed.scene = scenes[0];
    if (parsed.output.empty()) parsed.output = defaultOutput(parsed.scene);
    if (!check()) return false;
    result = Outcome::Render;
    return true;
}

bool CommandLine::number(const std::string& name, const std::string& value, double* target) {
    if (MaValueParser::parseNumber(value, target)) return true;
    const char* expected =
        MaValueParser::numberOutOfRange(value) ? "a number within double range" : "a number";
    return fail("option " + name + " expects " + expected + ", not \"" + value + "\"");
}

bool CommandLine::option(const std::string& name, const std::string& value) {
    vrayrender::RenderSettings& settings = parsed.settings;
    vrayrender::MotionBlur& blur = settings.motionBlur;
    if (name == "-s") return parsed.startGiven = number(name, value, &settings.startFrame);
    if (name == "-e") return parsed.endGiven = number(name, value, &settings.endFrame);
    if (name == "-b") return number(name, value, &settings.byFrame);
    if (name == "-mbDuration") return number(name, value, &blur.duration);
    if (name == "-mbCenter") return number(name, value, &blur.intervalCenter);
    if (name == "-o") {
        parsed.output = value;
        return !value.empty() || fail("option -o needs a file name (\"-\" for standard output)");
    }
    if (name == "-proj") {
        parsed.project = value;
        return !value.empty() || fail("option -proj needs a folder");
    }
    if (name == "-pluginPath" || name == "-vrayPluginPath") return true;  // read beforehand
    long long whole = 0;
    if (name == "-mbSamples") {
        if (!MaValueParser::parseInteger(value, &whole) || whole < 1 || whole > kMaxGeometrySamples)
            return fail("option -mbSamples expects a whole number from 1 to " +
                        std::to_string(kMaxGeometrySamples) + ", not \"" + value + "\"");
        blur.geometrySamples = static_cast<int>(whole);
        return true;
    }
    if (name == "-v") {
        if (!MaValueParser::parseInteger(value, &whole) || whole < 0 || whole > 2)
            return fail("option -v expects 0, 1 or 2, not \"" + value + "\"");
        parsed.verbosity = static_cast<int>(whole);
        return true;
    }
    bool on = false;
    if (!MaValueParser::parseBoolWord(value, &on) && value != "1" && value != "0")
        return fail("option -mb expects on or off, not \"" + value + "\"");
    blur.enabled = on || value == "1";
    return true;
}

std::string CommandLine::rangeProblem(const vrayrender::RenderSettings& settings) {
    using Kind = vrayrender::RangeProblem::Kind;
    const vrayrender::RangeProblem problem = vrayrender::rangeProblem(settings);
    const std::string frame = numberText(problem.frame);
    switch (problem.kind) {
        case Kind::None:
            return "";
        case Kind::NoStep:
            return "the frame step (-b) must be greater than 0";
        case Kind::Backwards:
            return "the last frame (-e) comes before the first (-s)";
        case Kind::TooManyFrames:
            return "too many frames: at most " + std::to_string(vrayrender::kMaxFrames);
        case Kind::FramesTooClose:
            return "frames near " + frame + " cannot be told apart with a step (-b) of " +
                   numberText(settings.byFrame);
        case Kind::FrameOutOfRange:
            return "frame " + frame + " is outside the renderer's time range " + timeRange();
        case Kind::SamplesOutOfRange:
            return "the motion blur samples of frame " + frame +
                   " fall outside the renderer's time range " + timeRange() +
                   "; see -mbDuration and -mbCenter";
    }
    return "";
}

bool CommandLine::check() {
    vrayrender::RenderSettings& settings = parsed.settings;
    if (settings.byFrame <= 0) return fail("the frame step (-b) must be greater than 0");
    if (settings.motionBlur.duration < 0)
        return fail("the motion blur duration (-mbDuration) must not be negative");
    if (!parsed.startGiven) return true;  // the range waits for the scene's current frame
    if (!parsed.endGiven) settings.endFrame = settings.startFrame;
    const std::string problem = rangeProblem(settings);
    return problem.empty() || fail(problem);
}

}  // namespace xrvell
