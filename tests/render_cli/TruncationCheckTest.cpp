// A file Maya wrote and that lacks Maya's closing line was cut short; renamed, hand-written and
// whole files were not.
#include <gtest/gtest.h>

#include <string>

#include "TruncationCheck.h"

namespace {

const char* const kHeader =
    "//Maya ASCII 2022 scene\n//Name: shot.ma\n//Codeset: UTF-8\nrequires maya \"2022\";\n"
    "createNode transform -n \"t\";\n";

std::string withLineEnds(const std::string& text, const std::string& end) {
    std::string out;
    for (char c : text) out += c == '\n' ? end : std::string(1, c);
    return out;
}

TEST(TruncationCheckTest, WarnsOnlyWhenMayasClosingLineIsMissing) {
    const std::string cut =
        "the file ends without the line Maya closes its files with (\"// End of shot.ma\"): it "
        "may be truncated";
    const struct {
        const char* name;
        std::string text;
        std::string warning;
        int line;
    } cases[] = {
        {"whole", kHeader + std::string("// End of shot.ma\n"), "", 0},
        {"noFinalNewline", kHeader + std::string("// End of shot.ma"), "", 0},
        {"cutAtALine", kHeader, cut, 5},
        {"cutInALine", kHeader + std::string("connectAttr \"t.tx\" \"t.t"), cut, 6},
        {"blankLinesAfterTheCut", kHeader + std::string("\n  \n\t\n"), cut, 5},
        {"closingLineCut", kHeader + std::string("// End of shot.m"), cut, 6},
        {"spacesAfterTheClosing", kHeader + std::string("// End of shot.ma  \n"), "", 0},
        {"closingForAnotherName", kHeader + std::string("// End of other.ma\n"), cut, 6},
        {"linesAfterTheClosing", kHeader + std::string("// End of shot.ma\nsetAttr \"t.tx\" 1;\n"),
         "", 0},
        {"noNameLine",
         "//Maya ASCII 2017ff04 scene\nrequires maya \"2017ff04\";\n// End of anything.ma\n", "",
         0},
        {"noNameLineCut", "//Maya ASCII 2017ff04 scene\nrequires maya \"2017ff04\";\n",
         "the file ends without the line Maya closes its files with (\"// End of ...\"): it may "
         "be truncated",
         2},
        {"byteOrderMark", "\xEF\xBB\xBF" + std::string(kHeader), cut, 5},
        {"handWritten", "createNode transform -n \"t\";\n", "", 0},
        {"notMayasHeader", "//Maya ASCII\ncreateNode transform -n \"t\";\n", "", 0},
        {"empty", "", "", 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        for (const char* end : {"\n", "\r\n", "\r"}) {
            SCOPED_TRACE(::testing::PrintToString(std::string(end)));
            int line = 0;
            EXPECT_EQ(xrvell::TruncationCheck::problem(withLineEnds(c.text, end), &line),
                      c.warning);
            if (!c.warning.empty()) {
                EXPECT_EQ(line, c.line);
            }
        }
    }
}

}  // namespace
