// Options in the manner of Maya's batch renderer, their checks and the search paths.
#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

#include "CommandLine.h"

namespace {

using Outcome = xrvell::CommandLine::Outcome;

const char* noEnvironment(const char*) { return nullptr; }
const char* someEnvironment(const char* name) {
    if (!std::strcmp(name, "MAYA_PLUG_IN_PATH")) return "/env/a::/env/b";
    if (!std::strcmp(name, "VRAY_FOR_MAYA2022_PLUGINS")) return "/env/vray";
    return nullptr;
}

const xrvell::DefaultPaths kDefaults{"/build/plug-ins", "/build/vrayplugins"};

xrvell::CommandLine parse(std::vector<std::string> args,
                          const char* (*env)(const char*) = noEnvironment) {
    return xrvell::CommandLine(args, kDefaults, env);
}

TEST(CommandLineTest, RefusesBadOptionsWithTheReason) {
    const struct {
        std::vector<std::string> args;
        const char* error;
    } cases[] = {
        {{}, "no scene file given"},
        {{"a.ma", "b.ma"}, "more than one scene file given"},
        {{"-x", "a.ma"}, "unknown option \"-x\""},
        {{"a.ma", "-s"}, "option -s needs a value"},
        {{"-s", "one", "a.ma"}, "option -s expects a number, not \"one\""},
        {{"-e", "inf", "a.ma"}, "option -e expects a number, not \"inf\""},
        {{"-b", "0", "a.ma"}, "the frame step (-b) must be greater than 0"},
        {{"-s", "5", "-e", "4", "a.ma"}, "the last frame (-e) comes before the first (-s)"},
        {{"-s", "1", "-e", "1e9", "a.ma"}, "too many frames: at most 100000"},
        {{"-mb", "maybe", "a.ma"}, "option -mb expects on or off, not \"maybe\""},
        {{"-mbSamples", "0", "a.ma"},
         "option -mbSamples expects a whole number from 1 to 1000, not \"0\""},
        {{"-mbSamples", "2.5", "a.ma"},
         "option -mbSamples expects a whole number from 1 to 1000, not \"2.5\""},
        {{"-mbDuration", "-1", "a.ma"},
         "the motion blur duration (-mbDuration) must not be negative"},
        {{"-v", "3", "a.ma"}, "option -v expects 0, 1 or 2, not \"3\""},
        {{"-e", "1e400", "a.ma"}, "option -e expects a number within double range, not \"1e400\""},
        {{"-o", "", "a.ma"}, "option -o needs a file name (\"-\" for standard output)"},
        // Frames that adding the step no longer moves, or that fall together further on.
        {{"-s", "1e16", "a.ma"}, "frames near 1e+16 cannot be told apart with a step (-b) of 1"},
        {{"-s", "9007199254740993", "a.ma"},
         "frames near 9007199254740992 cannot be told apart with a step (-b) of 1"},
        {{"-s", "1e15", "-e", "1.0000000001e15", "-b", "0.01", "a.ma"},
         "frames near 1e+15 cannot be told apart with a step (-b) of 0.01"},
        {{"-s", "4503599627370494", "-e", "4503599627370497", "-b", "0.5", "a.ma"},
         "frames near 4503599627370496 cannot be told apart with a step (-b) of 0.5"},
        {{"-s", "0", "-e", "1e30", "-b", "1e-30", "a.ma"}, "too many frames: at most 100000"},
        {{"-s", "-1e308", "-e", "1e308", "a.ma"},
         "frame -1e+308 is outside the renderer's time range (-3.4028235e+38 to "
         "3.4028235e+38)"},
        {{"-s", "1", "-e", "1e39", "a.ma"},
         "frame 1e+39 is outside the renderer's time range (-3.4028235e+38 to 3.4028235e+38)"},
        {{"-s", "1", "-mb", "on", "-mbDuration", "1.7e308", "-mbCenter", "1.7e308", "a.ma"},
         "the motion blur samples of frame 1 fall outside the renderer's time range "
         "(-3.4028235e+38 to 3.4028235e+38); see -mbDuration and -mbCenter"},
        {{"-s", "1", "-e", "3", "-mb", "on", "-mbCenter", "-3.41e38", "a.ma"},
         "the motion blur samples of frame 1 fall outside the renderer's time range "
         "(-3.4028235e+38 to 3.4028235e+38); see -mbDuration and -mbCenter"},
    };
    for (const auto& c : cases) {
        const xrvell::CommandLine line = parse(c.args);
        EXPECT_EQ(line.outcome(), Outcome::Error) << c.error;
        EXPECT_EQ(line.error(), c.error);
    }
}

// The frames a range gives, as the renderer is asked for them: decimal steps without the drift
// of repeated addition, and the end reached exactly when a step lands on it.
TEST(CommandLineTest, FramesAreTheStartPlusWholeSteps) {
    const struct {
        double start, end, step;
        std::vector<double> frames;
    } cases[] = {
        {1, 3, 1, {1, 2, 3}},
        {1, 2.5, 1, {1, 2}},
        {-2, 2, 1.5, {-2, -0.5, 1}},
        {0, 1, 0.1, {0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1}},
        {0, 0.3, 0.1, {0, 0.1, 0.2, 0.3}},
        {-1, 0, 0.3, {-1, -0.7, -0.4, -0.1}},
        {-0.5, 0.5, 0.1, {-0.5, -0.4, -0.3, -0.2, -0.1, 0, 0.1, 0.2, 0.3, 0.4, 0.5}},
        {1, 1, 1e-10, {1}},
        {1, 1.9999999999, 1, {1, 1.9999999999}},
        {1, 1.99999, 1, {1}},
        {1.0000000000001, 3, 1, {1.0000000000001, 2.0000000000001, 3}},
        {5, 4, 1, {}},
        {1, 2, 0, {}},
        {1e16, 1e16, 1, {}},
    };
    for (const auto& c : cases) {
        vrayrender::RenderSettings settings;
        settings.startFrame = c.start;
        settings.endFrame = c.end;
        settings.byFrame = c.step;
        EXPECT_EQ(vrayrender::frames(settings), c.frames)
            << c.start << " to " << c.end << " by " << c.step;
    }
}

TEST(CommandLineTest, TheLongestRangeEndsExactlyOnItsLastFrame) {
    vrayrender::RenderSettings settings;
    settings.startFrame = 0;
    settings.endFrame = 9999.9;
    settings.byFrame = 0.1;
    const std::vector<double> all = vrayrender::frames(settings);
    ASSERT_EQ(all.size(), vrayrender::kMaxFrames);
    EXPECT_EQ(all[3], 0.3);
    EXPECT_EQ(all.back(), 9999.9);
    settings.endFrame = 10000;
    EXPECT_TRUE(vrayrender::frames(settings).empty());
    EXPECT_EQ(xrvell::CommandLine::rangeProblem(settings), "too many frames: at most 100000");
}

TEST(CommandLineTest, HelpWinsOverEverythingElse) {
    EXPECT_EQ(parse({"-x", "-h"}).outcome(), Outcome::Help);
    EXPECT_EQ(parse({"a.ma", "-h", "-x"}).outcome(), Outcome::Help);
    EXPECT_EQ(parse({"--help"}).outcome(), Outcome::Help);
}

TEST(CommandLineTest, ReadsTheRenderSettings) {
    const xrvell::CommandLine line =
        parse({"-s", "2", "-e", "4.5", "-b", "0.5", "-mb", "on", "-mbDuration", "0.25", "-mbCenter",
               "-0.5", "-mbSamples", "3", "-o", "-", "-v", "2", "shots/a.ma"});
    ASSERT_EQ(line.outcome(), Outcome::Render) << line.error();
    const xrvell::RenderOptions& o = line.options();
    EXPECT_EQ(o.scene, "shots/a.ma");
    EXPECT_EQ(o.output, "-");
    EXPECT_EQ(o.settings.startFrame, 2.0);
    EXPECT_EQ(o.settings.endFrame, 4.5);
    EXPECT_EQ(o.settings.byFrame, 0.5);
    EXPECT_TRUE(o.settings.motionBlur.enabled);
    EXPECT_EQ(o.settings.motionBlur.duration, 0.25);
    EXPECT_EQ(o.settings.motionBlur.intervalCenter, -0.5);
    EXPECT_EQ(o.settings.motionBlur.geometrySamples, 3);
    EXPECT_EQ(o.verbosity, 2);
}

TEST(CommandLineTest, DefaultsFollowTheSceneAndTheFirstFrame) {
    const xrvell::RenderOptions o = parse({"/shots/sc010.v2.ma"}).options();
    EXPECT_EQ(o.output, "sc010.v2.vrscene");
    EXPECT_FALSE(o.startGiven);
    EXPECT_FALSE(o.settings.motionBlur.enabled);
    EXPECT_EQ(o.verbosity, 1);
    const xrvell::RenderOptions single = parse({"-s", "7", "a.ma", "-mb", "off"}).options();
    EXPECT_EQ(single.settings.endFrame, 7.0);
    // Too small for a double: zero, as MEL reads it.
    const xrvell::CommandLine tiny = parse({"-s", "1e-400", "a.ma"});
    ASSERT_EQ(tiny.outcome(), Outcome::Render) << tiny.error();
    EXPECT_EQ(tiny.options().settings.startFrame, 0.0);
}

TEST(CommandLineTest, SearchPathsComeFromTheOptionOrTheEnvironmentThenTheBuild) {
    const xrvell::RenderOptions fromBuild = parse({"a.ma"}).options();
    EXPECT_EQ(fromBuild.pluginPath, std::vector<std::string>{"/build/plug-ins"});
    EXPECT_EQ(fromBuild.rendererPluginPath, std::vector<std::string>{"/build/vrayplugins"});
    const xrvell::RenderOptions fromEnv = parse({"a.ma"}, someEnvironment).options();
    EXPECT_EQ(fromEnv.pluginPath,
              (std::vector<std::string>{"/env/a", "/env/b", "/build/plug-ins"}));
    EXPECT_EQ(fromEnv.rendererPluginPath,
              (std::vector<std::string>{"/env/vray", "/build/vrayplugins"}));
    const xrvell::RenderOptions fromOption =
        parse({"-pluginPath", "/o/1:/o/2", "-vrayPluginPath", "", "a.ma"}, someEnvironment)
            .options();
    EXPECT_EQ(fromOption.pluginPath, (std::vector<std::string>{"/o/1", "/o/2"}));
    EXPECT_TRUE(fromOption.rendererPluginPath.empty());
}

}  // namespace
