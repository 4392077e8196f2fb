// xrvell-render on the scenes a pipeline gets wrong: files that are not Maya ASCII, other line
// ends, cut files, scenes with many errors, and bridges that would render defaults or nothing.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "Files.h"
#include "ToolRun.h"

namespace {

namespace fs = std::filesystem;

class SceneProblems : public ::testing::Test {
protected:
    void SetUp() override {
        char name[] = "/tmp/xrvell-problems-XXXXXX";
        ASSERT_NE(mkdtemp(name), nullptr);
        directory = name;
        demo = contentsOf(fs::path(SOURCE_DIR) / "examples/demo.ma");
    }
    void TearDown() override { fs::remove_all(directory); }

    ToolResult run(std::vector<std::string> args) {
        args.insert(args.begin(), TOOL_PATH);
        return ToolRun::run(args, directory.string());
    }
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(directory))
            names.push_back(entry.path().filename().string());
        std::sort(names.begin(), names.end());
        return names;
    }

    fs::path directory;
    std::string demo;
};

// Standard error without its summary line, which must start with `summary`.
std::string beforeSummary(const std::string& err, const std::string& summary) {
    const size_t last = err.rfind("xrvell-render: ");
    if (last == std::string::npos) return "no summary in: " + err;
    const std::string expected = "xrvell-render: " + summary + ", ";
    EXPECT_EQ(err.compare(last, expected.size(), expected), 0) << err.substr(last);
    return err.substr(0, last);
}

std::string withLineEnds(const std::string& text, const std::string& end) {
    std::string out;
    for (char c : text) out += c == '\n' ? end : std::string(1, c);
    return out;
}

TEST_F(SceneProblems, EveryLineEndRendersTheSameScene) {
    writeFile(directory / "shot.ma", demo);
    const ToolResult lf = run({"-o", "-", "shot.ma"});
    ASSERT_EQ(lf.status, 0) << lf.err;
    for (const char* end : {"\r\n", "\r"}) {
        SCOPED_TRACE(::testing::PrintToString(std::string(end)));
        writeFile(directory / "shot.ma", withLineEnds(demo, end));
        const ToolResult result = run({"-o", "-", "shot.ma"});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(beforeSummary(result.err, "1 frame, 2 nodes, 2 plugin instances, 0 warnings"),
                  "");
        EXPECT_EQ(result.out, lf.out);
    }
}

}  // namespace
