// xrvell-render as a user runs it: the demo against its golden file, exit statuses, what
// reaches stderr, and that a failed job writes nothing.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "ToolRun.h"

namespace {

namespace fs = std::filesystem;

std::string contentsOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

void writeFile(const fs::path& path, const std::string& text) {
    std::ofstream(path, std::ios::binary) << text;
}

// Everything before the summary line, and the summary line checked on its own.
std::string withoutSummary(const std::string& err, const std::string& summary) {
    const size_t last = err.rfind("xrvell-render: ");
    EXPECT_NE(last, std::string::npos) << err;
    if (last == std::string::npos) return err;
    const std::regex expected("xrvell-render: " + summary + ", [0-9]+\\.[0-9]{2} s\n");
    EXPECT_TRUE(std::regex_match(err.substr(last), expected)) << err.substr(last);
    return err.substr(0, last);
}

class RenderCliTest : public ::testing::Test {
protected:
    void SetUp() override {
        char name[] = "/tmp/xrvell-cli-XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        directory = name;
    }
    void TearDown() override { fs::remove_all(directory); }

    ToolResult run(std::vector<std::string> args, const std::string& where = SOURCE_DIR,
                   const std::vector<std::string>& environment = {}) {
        args.insert(args.begin(), TOOL_PATH);
        return ToolRun::run(args, where, environment);
    }
    // The files the job left in the directory, for "nothing written" checks.
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(directory))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    fs::path directory;
};

const char* const kDemoWarnings =
    "examples/demo.ma:9: warning: \"fileInfo\" commands are skipped\n"
    "examples/demo.ma:16: warning: \"rename\" commands are skipped\n"
    "examples/demo.ma:20: warning: attribute \"v\" is not modelled on \"xrVellMaya\" nodes; "
    "skipped\n"
    "examples/demo.ma:38: warning: attribute \"v\" is not modelled on \"xrVellMayaVRay\" nodes; "
    "skipped\n"
    "examples/demo.ma:58: warning: attribute \"unw\" is not modelled on \"time\" nodes; skipped\n";

TEST_F(RenderCliTest, DemoRendersToTheGoldenSceneOnStandardOutput) {
    const ToolResult result =
        run({"-s", "1", "-e", "3", "-mb", "on", "-o", "-", "examples/demo.ma"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, contentsOf(GOLDEN_DIR "/demo.vrscene"));
    EXPECT_EQ(
        withoutSummary(result.err, "3 frames, 2 nodes, 2 plugin instances, 5 warnings, 0 errors"),
        kDemoWarnings);
}

TEST_F(RenderCliTest, WritesTheSameSceneToAFileAndNothingElse) {
    const fs::path output = directory / "demo.vrscene";
    const ToolResult result = run(
        {"examples/demo.ma", "-mb", "1", "-s", "1", "-e", "3", "-o", output.string(), "-v", "0"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "") << "verbosity 0 shows errors only";
    EXPECT_EQ(contentsOf(output), contentsOf(GOLDEN_DIR "/demo.vrscene"));
    EXPECT_EQ(files(), std::vector<std::string>{"demo.vrscene"});
}

TEST_F(RenderCliTest, DefaultFrameIsTheScenesCurrentTime) {
    writeFile(directory / "shot.ma",
              "requires \"xrVellMaya\" \"1.0\";\nrequires \"xrVellVRayMaya\" \"1.0\";\n"
              "createNode transform -n \"t\";\ncreateNode xrVellMayaVRay -n \"b\" -p \"t\";\n"
              "select -ne :time1;\n\tsetAttr \".o\" 7;\n");
    const ToolResult result = run({"shot.ma"}, directory.string());
    EXPECT_EQ(result.status, 0) << result.err;
    const std::string scene = contentsOf(directory / "shot.vrscene");
    EXPECT_NE(scene.find("// Frames 7 to 7, step 1; motion blur off\n"), std::string::npos)
        << scene;
    EXPECT_NE(scene.find("// Frame 7: geometry samples at 7\nxrVellVRay b {\n"), std::string::npos);
}

struct BadScene {
    const char* name;
    std::string text;
    std::string error;
};

TEST_F(RenderCliTest, BadSceneExitsWithItsErrorAndWritesNothing) {
    const std::string prelude =
        "//Maya ASCII 2022 scene\nrequires \"xrVellMaya\" \"1.0\";\n"
        "createNode transform -n \"fur\";\ncreateNode xrVellMaya -n \"furShape\" -p \"fur\";\n";
    const BadScene cases[] = {
        {"syntax", prelude + "\tsetAttr \".isp\" -type \"string\" \"/open;\n",
         "bad.ma:5: error: unterminated string"},
        {"type", prelude + "createNode xrVellFur -n \"x\";\n",
         "bad.ma:5: error: unknown node type \"xrVellFur\""},
        {"attribute", prelude + "\tsetAttr \".renderDensty\" 2;\n",
         "bad.ma:5: error: node \"furShape\" has no attribute \"renderDensty\""},
        {"value", prelude + "\tsetAttr \".rd\" -type \"string\" \"2\";\n",
         "bad.ma:5: error: \"furShape.rd\" expects a number, not -type \"string\""},
        {"plug", prelude + "connectAttr \"furShape.od\" \"furShape1.vid\";\n",
         "bad.ma:5: error: cannot connect \"furShape.od\" to \"furShape1.vid\": no node "
         "\"furShape1\""},
        {"plugin", "requires \"xrVellMayaExtras\" \"2.0\";\n",
         "bad.ma:1: error: required plug-in \"xrVellMayaExtras\" not found; searched " +
             directory.string() + ", " PLUGIN_DIR},
    };
    for (const BadScene& bad : cases) {
        SCOPED_TRACE(bad.name);
        writeFile(directory / "bad.ma", bad.text);
        writeFile(directory / "old.vrscene", "an earlier render\n");
        const ToolResult result = run({"-o", "old.vrscene", "bad.ma"}, directory.string(),
                                      {"MAYA_PLUG_IN_PATH=" + directory.string()});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err,
                  bad.error + "\nxrvell-render: stopped at the first error; nothing written\n");
        EXPECT_EQ(contentsOf(directory / "old.vrscene"), "an earlier render\n");
        EXPECT_EQ(files(), (std::vector<std::string>{"bad.ma", "old.vrscene"}));
    }
}

TEST_F(RenderCliTest, PluginErrorsDuringTheRenderShowAsMayaPrintsThem) {
    const ToolResult result =
        run({"-vrayPluginPath", directory.string(), "-o", "-", "examples/demo.ma"});
    EXPECT_EQ(result.status, 1);
    const std::string error =
        "// Error: xrVellMayaVRay::xrVellVRay plugin doesn't exsist, please check your VRAY plugin "
        "paths.\n";
    EXPECT_EQ(
        withoutSummary(result.err, "1 frame, 2 nodes, 0 plugin instances, 5 warnings, 2 errors"),
        kDemoWarnings + error + error);
    EXPECT_NE(result.out.find("// Frame 1: geometry samples at 1\n"), std::string::npos);
    EXPECT_EQ(result.out.find("xrVellVRay furBodyVRayShape {"), std::string::npos);
}

TEST_F(RenderCliTest, ReportsFilesItCannotReadOrWrite) {
    ToolResult result = run({"missing.ma"}, directory.string());
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "xrvell-render: cannot read \"missing.ma\": No such file or directory\n");
    result =
        run({"-o", (directory / "no" / "such.vrscene").string(), "-v", "0", "examples/demo.ma"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.err, "xrvell-render: cannot write \"" +
                              (directory / "no" / "such.vrscene").string() +
                              "\": No such file or directory\n");
    EXPECT_TRUE(files().empty());
}

TEST_F(RenderCliTest, UsageErrorsExitWithTwoAndHelpWithZero) {
    const ToolResult wrong = run({"-q", "examples/demo.ma"});
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(
        wrong.err.rfind(
            "xrvell-render: unknown option \"-q\"\nusage: xrvell-render [options] SCENE.ma\n", 0),
        0u)
        << wrong.err;
    const ToolResult help = run({"-h"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.out.rfind("usage: xrvell-render [options] SCENE.ma\n", 0), 0u);
    EXPECT_EQ(help.err, "");
}

}  // namespace
