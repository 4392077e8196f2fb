// What the tool leaves at its output when the render cannot go as asked: a reader that stops
// reading, and bridge nodes whose renderer plugin is not there.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

#include "Files.h"
#include "Summary.h"
#include "ToolRun.h"

namespace {

namespace fs = std::filesystem;

const char* const kMissingRenderer =
    "// Error: xrVellMayaVRay::xrVellVRay plugin doesn't exsist, please check your VRAY plugin "
    "paths.";

class RenderOutputTest : public ::testing::Test {
protected:
    void SetUp() override { fs::create_directories(directory / "no-renderer"); }

    static ToolResult run(std::vector<std::string> args) {
        args.insert(args.begin(), TOOL_PATH);
        return ToolRun::run(args, SOURCE_DIR);
    }
    std::vector<std::string> files() const { return namesIn(directory); }
    std::string noRenderer() const { return (directory / "no-renderer").string(); }

    const TemporaryFolder temporary;
    const fs::path directory = temporary.path();
};

// The frames a summary line counts: "xrvell-render: 12 frames, ...".
int framesIn(const std::string& err) {
    const size_t summary = err.rfind("xrvell-render: ");
    return summary == std::string::npos
               ? -1
               : std::atoi(err.c_str() + summary + std::strlen("xrvell-render: "));
}

// As a user runs it, into head, which leaves after the first bytes: the tool is not killed by
// the signal (exit status 141 through the pipe), it says why it stopped and gives its summary.
TEST_F(RenderOutputTest, AClosedPipeIsReportedWithTheSummary) {
    const ToolResult result = ToolRun::run(
        {"/bin/bash", "-c", "set -o pipefail; \"$0\" \"$@\" | head -c 100 >/dev/null", TOOL_PATH,
         "-s", "1", "-e", "2000", "-mb", "on", "-mbSamples", "100", "-o", "-", "examples/demo.ma"},
        SOURCE_DIR);
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    const int frames = framesIn(result.err);
    EXPECT_LT(frames, 2000) << "the render went on after the write failed";
    EXPECT_EQ(
        withoutSummary(result.err, std::to_string(frames) +
                                       " frames, 2 nodes, 2 plugin instances, 0 warnings, 1 error"),
        "xrvell-render: cannot write to standard output: Broken pipe\n");
}

// The bridge's message comes once per bridge and frame; shown once with a count, and with the
// directories searched. An output of comments alone would pass for a render: none is left,
// whether a file (an earlier one stays) or standard output (enough frames to fill the pieces
// the output is written in).
TEST_F(RenderOutputTest, WithoutTheRendererPluginTheBridgesErrorIsToldOnceAndNothingIsWritten) {
    writeFile(directory / "old.vrscene", "an earlier render\n");
    const struct {
        std::string path;
        std::string output;
        const char* lastFrame;
        const char* summary;
        int more;
        std::string searched;
    } cases[] = {
        {noRenderer(), (directory / "old.vrscene").string(), "3",
         "3 frames, 2 nodes, 0 plugin instances, 0 warnings, 7 errors", 5,
         "searched " + noRenderer()},
        {noRenderer() + ":" + noRenderer(), "-", "5000",
         "5000 frames, 2 nodes, 0 plugin instances, 0 warnings, 10001 errors", 9999,
         "searched " + noRenderer() + ", " + noRenderer()},
        {":", "-", "1", "1 frame, 2 nodes, 0 plugin instances, 0 warnings, 3 errors", 1,
         "the renderer plugin path is empty"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path + " " + c.output);
        const ToolResult result =
            run({"-vrayPluginPath", c.path, "-s", "1", "-e", c.lastFrame, "-mb", "on", "-mbSamples",
                 "20", "-o", c.output, "examples/demo.ma"});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(withoutSummary(result.err, c.summary),
                  std::string(kMissingRenderer) + " (and " + std::to_string(c.more) +
                      " more like it; -v 2 lists each)\n"
                      "xrvell-render: renderer plugin \"xrVellVRay\" not found; " +
                      c.searched + "; nothing written\n");
        EXPECT_EQ(contentsOf(directory / "old.vrscene"), "an earlier render\n");
        EXPECT_EQ(files(), (std::vector<std::string>{"no-renderer", "old.vrscene"}));
    }
}

TEST_F(RenderOutputTest, WithoutTheRendererPluginVerbosityTwoListsEachMessage) {
    const ToolResult result = run({"-vrayPluginPath", noRenderer(), "-s", "1", "-e", "3", "-v", "2",
                                   "-o", "-", "examples/demo.ma"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    size_t shown = 0;
    for (size_t at = 0;
         (at = result.err.find(std::string(kMissingRenderer) + "\n", at)) != std::string::npos;
         ++at)
        ++shown;
    EXPECT_EQ(shown, 6u) << result.err;
    EXPECT_EQ(result.err.find("more like it"), std::string::npos);
}

}  // namespace
