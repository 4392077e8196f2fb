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
using namespace std::string_literals;

const char* const kPlugins =
    "requires \"xrVellMaya\" \"1.0\";\nrequires \"xrVellVRayMaya\" \"1.0\";\n"
    "createNode xrVellMaya -n \"fur\";\n";

class SceneProblems : public ::testing::Test {
protected:
    void SetUp() override { demo = contentsOf(fs::path(SOURCE_DIR) / "examples/demo.ma"); }

    ToolResult run(std::vector<std::string> args) {
        args.insert(args.begin(), TOOL_PATH);
        return ToolRun::run(args, directory.string());
    }
    std::vector<std::string> files() const { return namesIn(directory); }

    const TemporaryFolder temporary;
    const fs::path directory = temporary.path();
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

TEST_F(SceneProblems, AFileThatIsNotMayaAsciiIsOneErrorSayingWhatItIs) {
    const std::string utf16 = "/\0/\0M\0a\0y\0a\0 \0A\0S\0C\0I\0I\0"s;
    const struct {
        const char* file;
        std::string bytes;
        const char* what;
    } cases[] = {
        {"shot.mb", "FOR4\0\0\x12\x34Maya"s + std::string(64, '\x01'),
         "is a binary Maya file: only Maya ASCII is read (save the scene as Maya ASCII, .ma)"},
        {"renamed.ma", "FOR8\0\0\0\0\0\0\x12\x34Maya"s,
         "is a binary Maya file: only Maya ASCII is read (save the scene as Maya ASCII, .ma)"},
        {"shot.ma.gz", "\x1F\x8B\x08\0\0\0\0\0\0\x03\x4B\x4C"s,
         "is a gzip-compressed file: only Maya ASCII is read (uncompress it first)"},
        {"marked.ma", "\xFF\xFE"s + utf16,
         "is UTF-16 text: only Maya ASCII is read, which is 8-bit text (save it as UTF-8)"},
        {"bigEndian.ma", "\0"s + utf16.substr(0, utf16.size() - 1),
         "is UTF-16 text: only Maya ASCII is read, which is 8-bit text (save it as UTF-8)"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file);
        fs::remove_all(directory);
        fs::create_directories(directory);
        writeFile(directory / c.file, c.bytes);
        const ToolResult result = run({c.file});
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(
            beforeSummary(result.err, "0 frames, 0 nodes, 0 plugin instances, 0 warnings, 1 error"),
            "xrvell-render: \"" + std::string(c.file) + "\" " + c.what + "\n");
        EXPECT_EQ(files(), std::vector<std::string>{c.file}) << "something was written";
    }
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

// A copy cut after its first bridge's connections renders the second bridge's defaults: both
// the cut and its consequence are told, and the render goes on. A renamed copy is whole.
TEST_F(SceneProblems, ACutSceneWarnsThatItMayBeTruncatedAndARenamedOneDoesNot) {
    writeFile(directory / "take2.ma", demo);
    ToolResult result = run({"-o", "-", "take2.ma"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(beforeSummary(result.err, "1 frame, 2 nodes, 2 plugin instances, 0 warnings"), "");

    const size_t cut = demo.find("connectAttr \"furManeShape.od\"");
    ASSERT_NE(cut, std::string::npos);
    writeFile(directory / "take2.ma", demo.substr(0, cut));
    result = run({"take2.ma"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(beforeSummary(result.err, "1 frame, 2 nodes, 2 plugin instances, 2 warnings"),
              "take2.ma:60: warning: the file ends without the line Maya closes its files with "
              "(\"// End of demo.ma\"): it may be truncated\n"
              "take2.ma: warning: bridge \"furManeVRayShape\": nothing feeds its inputData; the "
              "renderer would receive the defaults\n");
    EXPECT_NE(contentsOf(directory / "take2.vrscene").find("xrVellVRay furManeVRayShape {"),
              std::string::npos);
}

TEST_F(SceneProblems, EveryErrorIsShownUpToAHundredThenCountedAndNothingIsWritten) {
    const struct {
        int errors;
        size_t linesShown;
        const char* tally;
    } cases[] = {
        {3, 3, "3 errors; nothing written"},
        {100, 100, "100 errors; nothing written"},
        {130, 100, "130 errors, 30 of them not shown; nothing written"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.errors);
        std::string scene = kPlugins;
        for (int i = 0; i < c.errors; ++i)
            scene += "setAttr \"fur.rd\" " + std::to_string(i) + "x;\n";
        writeFile(directory / "shot.ma", scene);
        writeFile(directory / "shot.vrscene", "an earlier render\n");
        const ToolResult result = run({"shot.ma"});
        EXPECT_EQ(result.status, 1);
        const std::string shown =
            beforeSummary(result.err, "0 frames, 0 nodes, 0 plugin instances, 0 warnings, " +
                                          std::to_string(c.errors) + " errors");
        EXPECT_EQ(static_cast<size_t>(std::count(shown.begin(), shown.end(), '\n')),
                  c.linesShown + 1);
        EXPECT_EQ(shown.substr(0, shown.find('\n') + 1),
                  "shot.ma:4: error: \"fur.rd\" expects a number, not \"0x\"\n");
        const std::string last = "xrvell-render: " + std::string(c.tally) + "\n";
        ASSERT_GE(shown.size(), last.size());
        EXPECT_EQ(shown.substr(shown.size() - last.size()), last);
        EXPECT_EQ(contentsOf(directory / "shot.vrscene"), "an earlier render\n");
        EXPECT_EQ(files(), (std::vector<std::string>{"shot.ma", "shot.vrscene"}));
    }
}

// Defaults or nothing rendered are warnings: the render is still written and the job succeeds.
TEST_F(SceneProblems, ABridgeWithoutFurOrASceneWithoutABridgeWarnsAndRenders) {
    const struct {
        std::string scene;
        const char* warning;
        const char* summary;
        const char* block;
    } cases[] = {
        {kPlugins + "createNode xrVellMayaVRay -n \"bridge\";\n"s,
         "shot.ma: warning: bridge \"bridge\": nothing feeds its inputData; the renderer would "
         "receive the defaults\n",
         "1 frame, 1 node, 1 plugin instance, 1 warning, 0 errors", "xrVellVRay bridge {"},
        {kPlugins,
         "shot.ma: warning: the scene has no xrVellMayaVRay node: there is nothing to "
         "render\n",
         "1 frame, 0 nodes, 0 plugin instances, 1 warning, 0 errors", "// Frame 1:"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.warning);
        writeFile(directory / "shot.ma", c.scene);
        const ToolResult result = run({"shot.ma"});
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(beforeSummary(result.err, c.summary), c.warning);
        EXPECT_NE(contentsOf(directory / "shot.vrscene").find(c.block), std::string::npos);
    }
}

}  // namespace
