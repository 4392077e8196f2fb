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
    };
    for (const auto& c : cases) {
        const xrvell::CommandLine line = parse(c.args);
        EXPECT_EQ(line.outcome(), Outcome::Error) << c.error;
        EXPECT_EQ(line.error(), c.error);
    }
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
