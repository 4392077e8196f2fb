// How problems are shown: runs of errors of one kind as one line, the cap on error lines, and
// problems of the file as a whole.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "Diagnostics.h"

namespace {

TEST(DiagnosticsTest, ARunOfErrorsOfOneKindIsOneLineUnlessEachIsListed) {
    const std::vector<std::string> expected[] = {
        {"f.ma:1: error: a (and 2 more like it, to line 4; -v 2 lists each)", "f.ma:5: error: c",
         "f.ma:6: error: d", "f.ma:7: error: e"},
        {"f.ma:1: error: a", "f.ma:2: error: a2", "f.ma:4: error: b", "f.ma:5: error: c",
         "f.ma:6: error: d", "f.ma:7: error: e"}};
    for (int verbosity : {1, 2}) {
        SCOPED_TRACE(verbosity);
        xrvell::Diagnostics diagnostics("f.ma", nullptr, verbosity);
        diagnostics.error(1, "a", "k");
        diagnostics.error(2, "a2", "k");
        diagnostics.error(4, "b", "k");
        diagnostics.error(5, "c");
        diagnostics.error(6, "d", "k");  // a new run: another error came between
        diagnostics.error(7, "e", "other");
        diagnostics.flush();
        EXPECT_EQ(diagnostics.lines(), expected[verbosity - 1]);
        EXPECT_EQ(diagnostics.errors(), 6);
        EXPECT_EQ(diagnostics.hiddenErrors(), 0);
    }
}

TEST(DiagnosticsTest, AfterAHundredErrorLinesTheErrorsAreOnlyCounted) {
    xrvell::Diagnostics diagnostics("f.ma", nullptr);
    for (int line = 1; line <= 99; ++line) diagnostics.error(line, "plain");
    for (int line = 100; line <= 104; ++line) diagnostics.error(line, "run", "k");
    for (int line = 105; line <= 114; ++line) diagnostics.error(line, "late");
    diagnostics.warning(115, "still shown");
    diagnostics.flush();
    const std::vector<std::string>& lines = diagnostics.lines();
    ASSERT_EQ(lines.size(), 101u);
    EXPECT_EQ(lines[99], "f.ma:100: error: run (and 4 more like it, to line 104; -v 2 lists each)");
    EXPECT_EQ(lines[100], "f.ma:115: warning: still shown");
    EXPECT_EQ(diagnostics.errors(), 114);
    EXPECT_EQ(diagnostics.hiddenErrors(), 10);
}

TEST(DiagnosticsTest, LineZeroIsTheFileAsAWhole) {
    xrvell::Diagnostics diagnostics("f.ma", nullptr);
    diagnostics.warning(0, "whole");
    diagnostics.error(0, "all of it");
    diagnostics.flush();
    EXPECT_EQ(diagnostics.lines(),
              (std::vector<std::string>{"f.ma: error: all of it", "f.ma: warning: whole"}));
}

}  // namespace
