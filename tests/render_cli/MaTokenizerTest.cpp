// Splitting Maya ASCII text into commands: words, strings, comments, lines, and the two
// syntax errors.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "MaTokenizer.h"

namespace {

// Each statement as "LINE: word word ...", quoted words in <>.
std::vector<std::string> statements(const std::string& text, std::string* error = nullptr) {
    xrvell::MaTokenizer tokenizer(text);
    std::vector<std::string> all;
    xrvell::MaStatement statement;
    while (tokenizer.next(statement)) {
        std::string line = std::to_string(statement.line) + ":";
        for (const xrvell::MaWord& word : statement.words)
            line += word.quoted ? " <" + word.text + ">" : " " + word.text;
        all.push_back(line);
    }
    EXPECT_FALSE(tokenizer.next(statement)) << "no statement after the end";
    if (error)
        *error = tokenizer.error().empty()
                     ? ""
                     : std::to_string(tokenizer.errorLine()) + ": " + tokenizer.error();
    return all;
}

TEST(MaTokenizerTest, SplitsCommandsAcrossLinesAndComments) {
    const std::string text =
        "//Maya ASCII 2022 scene\n"
        "requires maya \"2022\";\r\n"
        "createNode transform -n \"a;b\"; // trailing note\n"
        "\tsetAttr \".t\" -type \"double3\"\n"
        "\t\t1 -2 3e-05 ;;\n"
        "fileInfo \"url\" \"http://x//y\";setAttr\".o\"1;\n";
    const std::vector<std::string> expected = {
        "2: requires maya <2022>",
        "3: createNode transform -n <a;b>",
        "4: setAttr <.t> -type <double3> 1 -2 3e-05",
        "6: fileInfo <url> <http://x//y>",
        "6: setAttr <.o> 1",
    };
    std::string error;
    EXPECT_EQ(statements(text, &error), expected);
    EXPECT_EQ(error, "");
}

std::string withLineEnds(const std::string& text, const std::string& end) {
    std::string out;
    for (char c : text) out += c == '\n' ? end : std::string(1, c);
    return out;
}

// Old Mac files end lines with a lone CR, Windows files with CR LF: the same commands, comments
// and lines as with LF, including in a file that mixes them.
TEST(MaTokenizerTest, ReadsEveryLineEndAlike) {
    const std::string text =
        "//Maya ASCII 2022 scene\n"
        "requires maya \"2022\"; // a note\n"
        "\n"
        "createNode transform\n"
        "\t-n \"a\";\n"
        "setAttr \".x\" 1;";
    const std::vector<std::string> expected = {
        "2: requires maya <2022>", "4: createNode transform -n <a>", "6: setAttr <.x> 1"};
    for (const char* end : {"\n", "\r\n", "\r"}) {
        SCOPED_TRACE(::testing::PrintToString(std::string(end)));
        std::string error;
        EXPECT_EQ(statements(withLineEnds(text, end), &error), expected);
        EXPECT_EQ(error, "");
    }
    const std::string mixed = "a;\r\nb;\rc;\n\r\r\nd;";
    EXPECT_EQ(statements(mixed), (std::vector<std::string>{"1: a", "2: b", "3: c", "6: d"}));
    std::string error;
    EXPECT_EQ(statements("a;\rsetAttr \".x\" \"open\r;\r", &error).size(), 1u);
    EXPECT_EQ(error, "2: unterminated string");
}

TEST(MaTokenizerTest, UnescapesStrings) {
    EXPECT_EQ(statements("setAttr \"a\\\"b\\\\c\\nd\\te\\q\" \"\";"),
              std::vector<std::string>{"1: setAttr <a\"b\\c\nd\teq> <>"});
}

TEST(MaTokenizerTest, ReportsSyntaxErrorsAtTheirLine) {
    const struct {
        std::string text;
        std::string error;
        size_t statementsBefore;
    } cases[] = {
        {"a;\nsetAttr \".x\" \"open\n;", "2: unterminated string", 1},
        {"a;\n\nsetAttr \"x\\", "3: unterminated string", 1},
        {"a;\nsetAttr \".x\"\n  1 // no end\n", "2: missing ';' at the end of the command", 1},
        {"setAttr \"x", "1: unterminated string", 0},
    };
    for (const auto& c : cases) {
        std::string error;
        EXPECT_EQ(statements(c.text, &error).size(), c.statementsBefore) << c.text;
        EXPECT_EQ(error, c.error) << c.text;
    }
}

}  // namespace
