// xrvell-render on scenes that lean on Maya's rules: two characters with the same short names,
// fur under nodes the host does not model, and time units other than film.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <string>
#include <vector>

#include "Files.h"
#include "ToolRun.h"

namespace {

namespace fs = std::filesystem;

const char* const kPlugins =
    "requires -nodeType \"xrVellMaya\" \"xrVellMaya\" \"1.0\";\n"
    "requires -nodeType \"xrVellMayaVRay\" \"xrVellVRayMaya\" \"1.0\";\n";

// A character: fur and bridge under the character's own transforms, with the same short names
// as every other character's, the parents written as Maya writes them when a name repeats.
std::string character(const std::string& name, const std::string& top, const char* density) {
    return "createNode " + top + " -n \"" + name + "\";\n" +
           "createNode transform -n \"fur\" -p \"" + name + "\";\n" +
           "createNode xrVellMaya -n \"furShape\" -p \"|" + name + "|fur\";\n" +
           "\tsetAttr \".rd\" " + density + ";\n" +
           "\tsetAttr \".cfp\" -type \"string\" \"/cache/" + name + ".####.xvc\";\n" +
           "createNode xrVellMayaVRay -n \"bridgeShape\" -p \"|" + name + "|fur\";\n";
}

class SceneRules : public ::testing::Test {
protected:
    ToolResult render(const std::string& scene, std::vector<std::string> args) {
        writeFile(directory / "shot.ma", scene);
        args.insert(args.begin(), TOOL_PATH);
        args.insert(args.end(), {"-o", "-", "shot.ma"});
        return ToolRun::run(args, directory.string());
    }

    const TemporaryFolder temporary;
    const fs::path directory = temporary.path();
};

TEST_F(SceneRules, CharactersWithTheSameShortNamesGetTheirOwnSettings) {
    const std::string scene =
        kPlugins + character("charA", "transform", "0.3") + character("charB", "joint", "2.7") +
        "createNode shadingEngine -n \"furSG\";\n"
        "connectAttr \"charA|fur|furShape.od\" \"|charA|fur|bridgeShape.vid\";\n"
        "connectAttr \"|charB|fur|furShape.od\" \"charB|fur|bridgeShape.vid\";\n"
        "connectAttr \":time1.o\" \"charA|fur|bridgeShape.time\";\n"
        "connectAttr \":time1.o\" \"charB|fur|bridgeShape.time\";\n"
        "connectAttr \"charB|fur|furShape.iog\" \"furSG.dsm\" -na;\n";
    const ToolResult result = render(scene, {"-s", "1"});
    ASSERT_EQ(result.status, 0) << result.err;
    for (const char* expected :
         {"xrVellVRay charA|fur|bridgeShape {\n", "xrVellVRay charB|fur|bridgeShape {\n",
          "  density=0.3;\n", "  density=2.7;\n", "  file=\"/cache/charA.0001.xvc\";\n",
          "  file=\"/cache/charB.0001.xvc\";\n"})
        EXPECT_NE(result.out.find(expected), std::string::npos) << expected << result.out;
    EXPECT_LT(result.out.find("density=0.3"), result.out.find("charB|fur|bridgeShape"));
}

TEST_F(SceneRules, AnAmbiguousShortNameIsMayasErrorAtItsLine) {
    const std::string scene = kPlugins + character("charA", "transform", "1") +
                              character("charB", "transform", "2") +
                              "connectAttr \"furShape.od\" \"charA|fur|bridgeShape.vid\";\n";
    const ToolResult result = render(scene, {"-s", "1"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err.substr(0, result.err.find('\n')),
              "shot.ma:15: error: More than one object matches name: furShape");
}

// Frame 1001 at 23.976 fps and half frames at 29.97 fps: the scene time, the motion-blur
// samples and the cache file's frame are all in the scene's own unit.
TEST_F(SceneRules, EachTimeUnitGivesTheScenesOwnFramesAndSamples) {
    const struct {
        const char* unit;
        const char* frame;
        std::vector<std::string> args;
        const char* expected;
    } cases[] = {
        {"23.976fps", "1001", {"-mb", "on"}, "// Frame 1001: geometry samples at 1001, 1002\n"},
        {"29.97fps",
         "12",
         {"-mb", "on", "-mbSamples", "3", "-mbCenter", "0"},
         "// Frame 12: geometry samples at 11.5, 12, 12.5\n"},
        {"6000fps", "250", {}, "// Frame 250: geometry samples at 250\n"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.unit);
        const std::string scene = kPlugins + std::string("currentUnit -l centimeter -t ") + c.unit +
                                  ";\n" + character("charA", "transform", "1") +
                                  "select -ne :time1;\n\tsetAttr \".o\" " + c.frame +
                                  ";\n"
                                  "connectAttr \"furShape.od\" \"bridgeShape.vid\";\n"
                                  "connectAttr \":time1.o\" \"bridgeShape.time\";\n";
        const ToolResult result = render(scene, c.args);
        ASSERT_EQ(result.status, 0) << result.err;
        EXPECT_NE(result.out.find(c.expected), std::string::npos) << result.out;
        const std::string frame = c.frame;
        const std::string cache = "/cache/charA." + std::string(4 - frame.size(), '0') + frame;
        EXPECT_NE(result.out.find(cache), std::string::npos) << result.out;
    }
}

}  // namespace
