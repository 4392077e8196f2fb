// xrvell-render as a user runs it: the demo against its golden file, exit statuses, what
// reaches stderr, and that a failed job writes nothing.
#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "Files.h"
#include "Summary.h"
#include "ToolRun.h"

namespace {

namespace fs = std::filesystem;

class RenderCliTest : public ::testing::Test {
protected:
    ToolResult run(std::vector<std::string> args, const std::string& where = SOURCE_DIR,
                   const std::vector<std::string>& environment = {}) {
        args.insert(args.begin(), TOOL_PATH);
        return ToolRun::run(args, where, environment);
    }
    // The files the job left in the directory, for "nothing written" checks.
    std::vector<std::string> files() const { return namesIn(directory); }

    const TemporaryFolder temporary;
    const fs::path directory = temporary.path();
};

// The demo is a clean scene: every line Maya wrote is read without a warning.
const char* const kDemoWarnings = "";

TEST_F(RenderCliTest, DemoRendersToTheGoldenSceneOnStandardOutput) {
    const ToolResult result =
        run({"-s", "1", "-e", "3", "-mb", "on", "-o", "-", "examples/demo.ma"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, contentsOf(GOLDEN_DIR "/demo.vrscene"));
    EXPECT_EQ(
        withoutSummary(result.err, "3 frames, 2 nodes, 2 plugin instances, 0 warnings, 0 errors"),
        kDemoWarnings);
}

// With three samples the mane's cache file first changes at the last one: the earlier two keep
// the value they held.
TEST_F(RenderCliTest, AValueThatChangesLateIsWrittenForEverySample) {
    const ToolResult result =
        run({"-s", "1", "-e", "1", "-mb", "on", "-mbSamples", "3", "-o", "-", "examples/demo.ma"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_NE(result.out.find("  file=interpolate("
                              "(1, \"/studio/cache/mane/furManeShape.0001.xvc\"), "
                              "(1.5, \"/studio/cache/mane/furManeShape.0001.xvc\"), "
                              "(2, \"/studio/cache/mane/furManeShape.0002.xvc\"));\n"),
              std::string::npos)
        << result.out;
    EXPECT_NE(result.out.find("  density=4;\n"), std::string::npos);
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

const char* const kNothingRendered = "0 frames, 0 nodes, 0 plugin instances, 0 warnings, 1 error";

TEST_F(RenderCliTest, BadSceneExitsWithItsErrorAndWritesNothing) {
    const std::string prelude =
        "//Maya ASCII 2022 scene\nrequires \"xrVellMaya\" \"1.0\";\n"
        "createNode transform -n \"fur\";\ncreateNode xrVellMaya -n \"furShape\" -p \"fur\";\n";
    const BadScene cases[] = {
        {"name", prelude + "createNode xrVellMayaVRay -n \"fur Mane} {x=1;\" -p \"fur\";\n",
         "bad.ma:5: error: createNode: \"fur Mane} {x=1;\" is not a valid node name (letters, "
         "digits and '_', not starting with a digit; ':' between namespaces)"},
        {"matrix",
         prelude + "setAttr \"fur.t\" -type \"matrix\" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1;\n",
         "bad.ma:5: error: \"fur.t\" expects 3 numbers (-type \"double3\"), not -type \"matrix\""},
        {"nul", prelude + "setAttr \".rd\" \"2" + '\0' + "\";\n",
         "bad.ma:5: error: \"furShape.rd\" expects a number, not \"2\\000\""},
        {"bom",
         "\xEF\xBB\xBF"
         "createNode xrVellMayaVRay -n \"x\";\n",
         "bad.ma:1: error: node type \"xrVellMayaVRay\" is not registered: its plug-in "
         "\"xrVellVRayMaya\" is not loaded (no requires line names it)"},
        {"time",
         prelude + "requires \"xrVellVRayMaya\" \"1.0\";\n"
                   "createNode xrVellMayaVRay -n \"b\" -p \"fur\";\n"
                   "connectAttr \"furShape.od\" \"b.vid\";\n"
                   "select -ne :time1;\n\tsetAttr \".o\" 1e16;\n",
         "xrvell-render: frames near 1e+16 cannot be told apart with a step (-b) of 1"},
        {"syntax", prelude + "\tsetAttr \".isp\" -type \"string\" \"/open;\n",
         "bad.ma:5: error: unterminated string"},
        {"ambiguous",
         prelude + "createNode transform -n \"g\";\ncreateNode transform -n \"fur\" -p \"g\";\n"
                   "setAttr \"fur.tx\" 1;\n",
         "bad.ma:7: error: More than one object matches name: fur"},
        {"attribute", prelude + "\tsetAttr \".renderDensty\" 2;\n",
         "bad.ma:5: error: node \"furShape\" has no attribute \"renderDensty\""},
        {"value", prelude + "\tsetAttr \".rd\" -type \"string\" \"2\";\n",
         "bad.ma:5: error: \"furShape.rd\" expects a number, not -type \"string\""},
        {"plug", prelude + "connectAttr \"furShape.od\" \"furShape1.vid\";\n",
         "bad.ma:5: error: cannot connect \"furShape.od\" to \"furShape1.vid\": no node "
         "\"furShape1\""},
    };
    for (const BadScene& bad : cases) {
        SCOPED_TRACE(bad.name);
        writeFile(directory / "bad.ma", bad.text + "// End of bad.ma\n");
        writeFile(directory / "old.vrscene", "an earlier render\n");
        const ToolResult result = run({"-o", "old.vrscene", "bad.ma"}, directory.string(),
                                      {"MAYA_PLUG_IN_PATH=" + directory.string()});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(withoutSummary(result.err, kNothingRendered),
                  bad.error + "\nxrvell-render: 1 error; nothing written\n");
        EXPECT_EQ(contentsOf(directory / "old.vrscene"), "an earlier render\n");
        EXPECT_EQ(files(), (std::vector<std::string>{"bad.ma", "old.vrscene"}));
    }
}

// The smallest scene that renders without a warning.
const char* const kFedBridge =
    "requires \"xrVellMaya\" \"1.0\";\nrequires \"xrVellVRayMaya\" \"1.0\";\n"
    "createNode xrVellMaya -n \"fur\";\ncreateNode xrVellMayaVRay -n \"bridge\";\n"
    "connectAttr \"fur.od\" \"bridge.vid\";\n";

TEST_F(RenderCliTest, ReportsFilesItCannotReadOrWriteAndWritesNothing) {
    writeFile(directory / "scene.ma", kFedBridge);
    fs::create_directories(directory / "adir.ma");
    ASSERT_EQ(mkfifo((directory / "fifo.ma").c_str(), 0600), 0);
    fs::create_symlink("scene.ma", directory / "link.ma");
    const std::vector<std::string> before = files();
    const struct {
        std::vector<std::string> args;
        const char* error;
    } cases[] = {
        {{"missing.ma"}, "cannot read \"missing.ma\": No such file or directory"},
        {{"adir.ma"}, "cannot read \"adir.ma\": Is a directory"},
        {{"fifo.ma"}, "cannot read \"fifo.ma\": not a regular file"},
        {{"-o", "scene.ma", "scene.ma"},
         "cannot write \"scene.ma\": it is the scene file \"scene.ma\""},
        {{"-o", "link.ma", "./scene.ma"},
         "cannot write \"link.ma\": it is the scene file \"./scene.ma\""},
        {{"-o", "adir.ma", "scene.ma"}, "cannot write \"adir.ma\": Is a directory"},
        {{"-o", "no/such.vrscene", "scene.ma"},
         "cannot write \"no/such.vrscene\": No such file or directory"},
        {{"-o", "new\nline/x.vrscene", "scene.ma"},
         "cannot write \"new\\nline/x.vrscene\": No such file or directory"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.error);
        const ToolResult result = run(c.args, directory.string());
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(withoutSummary(result.err, kNothingRendered),
                  std::string("xrvell-render: ") + c.error + "\n");
        EXPECT_EQ(files(), before);
        EXPECT_EQ(contentsOf(directory / "scene.ma"), kFedBridge);
    }
}

TEST_F(RenderCliTest, AFifoTargetIsWrittenInPlaceAndALinkedFileIsReplacedWhole) {
    const std::string golden = contentsOf(GOLDEN_DIR "/demo.vrscene");
    const std::vector<std::string> demo = {"-s", "1", "-e", "3", "-mb", "on", "-v", "0"};
    const fs::path fifo = directory / "out.fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    std::string received;
    std::thread reader([&] {
        std::ifstream in(fifo, std::ios::binary);
        received.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    });
    std::vector<std::string> args = demo;
    args.insert(args.end(), {"-o", fifo.string(), "examples/demo.ma"});
    ToolResult result = run(args);
    reader.join();
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(received, golden);
    EXPECT_TRUE(fs::is_fifo(fifo));

    fs::create_directories(directory / "shots");
    writeFile(directory / "shots/demo.vrscene", "an earlier render\n");
    fs::create_symlink("shots/demo.vrscene", directory / "latest.vrscene");
    args = demo;
    args.insert(args.end(), {"-o", (directory / "latest.vrscene").string(), "examples/demo.ma"});
    result = run(args);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_TRUE(fs::is_symlink(directory / "latest.vrscene"));
    EXPECT_EQ(contentsOf(directory / "shots/demo.vrscene"), golden);
    EXPECT_EQ(files(), (std::vector<std::string>{"latest.vrscene", "out.fifo", "shots"}));
    EXPECT_EQ(fs::directory_iterator(directory / "shots")->path().filename(), "demo.vrscene");
}

// A consumer that stops reading ends the render instead of leaving it running to no purpose.
TEST_F(RenderCliTest, AWriteErrorStopsTheRender) {
    const fs::path fifo = directory / "out.fifo";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    void (*previous)(int) = std::signal(SIGPIPE, SIG_IGN);  // the tool inherits it
    std::thread reader([&] { std::ifstream(fifo, std::ios::binary).get(); });
    const ToolResult result = run({"-s", "1", "-e", "2000", "-mb", "on", "-mbSamples", "100", "-o",
                                   fifo.string(), "examples/demo.ma"});
    reader.join();
    std::signal(SIGPIPE, previous);
    EXPECT_EQ(result.status, 1);
    // The reader has what it wanted: its output is not called incomplete.
    const std::string failure =
        "xrvell-render: cannot write \"" + fifo.string() + "\": Broken pipe\n";
    const size_t summary = result.err.rfind("xrvell-render: ");
    ASSERT_NE(summary, std::string::npos) << result.err;
    const int frames = std::atoi(result.err.c_str() + summary + strlen("xrvell-render: "));
    EXPECT_LT(frames, 100) << "the render went on after the write failed";
    const std::string before =
        withoutSummary(result.err, std::to_string(frames) +
                                       " frames, 2 nodes, 2 plugin instances, 0 warnings, 1 error");
    ASSERT_GE(before.size(), failure.size()) << result.err;
    EXPECT_EQ(before.substr(before.size() - failure.size()), failure);
}

TEST_F(RenderCliTest, DecimalStepsGiveTheFramesAsWritten) {
    const ToolResult result =
        run({"-s", "0", "-e", "0.3", "-b", "0.1", "-o", "-", "-v", "0", "examples/demo.ma"});
    EXPECT_EQ(result.status, 0) << result.err;
    std::string frames;
    std::istringstream lines(result.out);
    for (std::string line; std::getline(lines, line);)
        if (line.rfind("// Frame ", 0) == 0) frames += line.substr(9, line.find(':') - 9) + " ";
    EXPECT_EQ(frames, "0 0.1 0.2 0.3 ");
}

#if defined(__SANITIZE_ADDRESS__)
#define XRVELL_UNDER_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define XRVELL_UNDER_ASAN 1
#endif
#endif

TEST_F(RenderCliTest, RunningOutOfMemoryIsAnErrorThatWritesNothing) {
#ifdef XRVELL_UNDER_ASAN
    GTEST_SKIP() << "the address sanitizer needs more address space than the limit allows";
#endif
    // A scene larger than the memory the tool may use (a sparse file: no disk space).
    std::ofstream(directory / "huge.ma").close();
    fs::resize_file(directory / "huge.ma", 2ull << 30);
    const ToolResult result =
        ToolRun::run({"/bin/sh", "-c", "ulimit -v 500000 && exec \"$0\" \"$@\"", TOOL_PATH, "-o",
                      "huge.vrscene", "huge.ma"},
                     directory.string());
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(withoutSummary(result.err, kNothingRendered),
              "xrvell-render: out of memory; nothing written\n");
    EXPECT_EQ(files(), std::vector<std::string>{"huge.ma"});
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
