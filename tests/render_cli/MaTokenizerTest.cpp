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
