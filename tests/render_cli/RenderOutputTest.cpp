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
    void SetUp() override {
        char name[] = "/tmp/xrvell-output-XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        directory = name;
        fs::create_directories(directory / "no-renderer");
    }
    void TearDown() override { fs::remove_all(directory); }

    static ToolResult run(std::vector<std::string> args) {
        args.insert(args.begin(), TOOL_PATH);
        return ToolRun::run(args, SOURCE_DIR);
    }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(directory))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }
    std::string noRenderer() const { return (directory / "no-renderer").string(); }

    fs::path directory;
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

}  // namespace
