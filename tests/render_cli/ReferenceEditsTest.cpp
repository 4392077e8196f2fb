// A reference node's edits as Maya records them, and the words that do not read as edits.
#include "ReferenceEdits.h"

#include <gtest/gtest.h>

#include "MaTokenizer.h"

namespace {

using xrvell::ReferenceEdit;
using xrvell::ReferenceEdits;

std::vector<xrvell::MaWord> wordsOf(const std::string& value) {
    const std::string text = "x " + value + " ;";
    xrvell::MaTokenizer tokenizer(text);
    xrvell::MaStatement statement;
    tokenizer.next(statement);
    statement.words.erase(statement.words.begin());
    return statement.words;
}

TEST(ReferenceEdits, ReadsEachKindWithItsSection) {
    ReferenceEdits edits;
    ASSERT_TRUE(edits.parse(wordsOf(
        "\"aRN\" \"aRN\" 0 \"a:bRN\" 1 2 \"|a:b:n\" \"t\" \" 1\" \"aRN\" 6 "
        "0 \"|a:x\" \"|g\" \"-s -r \" 1 |a:x \"ln\" \"sn\" \" -at \\\"bool\\\"\" "
        "3 \"a:x.o\" \":s.dsm\" \"-na\" 5 0 \"aRN\" \"a:c.o\" \"a:d.i\" \"aRN.placeHolderList[1]\" "
        "\"aRN.placeHolderList[2]\" \"\" 7 \"ignore\" \":lightLinker1\" 2 \"p.m\" \"q.m\" 0 "
        "5 4 \"aRN\" \"a:x.tx\" \"aRN.placeHolderList[3]\" \"\"")))
        << edits.error();
    const std::vector<ReferenceEdit>& list = edits.edits();
    ASSERT_EQ(list.size(), 6u);  // the relationship is read past
    EXPECT_EQ(list[0].section, "a:bRN");
    EXPECT_EQ(list[0].kind, ReferenceEdit::SetAttr);
    EXPECT_EQ(list[0].words, (std::vector<std::string>{"|a:b:n", "t", " 1"}));
    EXPECT_EQ(list[1].section, "aRN");
    EXPECT_EQ(list[2].words, (std::vector<std::string>{"|a:x", "ln", "sn", " -at \"bool\""}));
    EXPECT_EQ(list[4].ends, 0);
    EXPECT_EQ(list[4].words.size(), 6u);
    EXPECT_EQ(list[5].ends, 4);
    EXPECT_EQ(list[5].words,
              (std::vector<std::string>{"aRN", "a:x.tx", "aRN.placeHolderList[3]", ""}));
}

TEST(ReferenceEdits, WordsThatDoNotReadAreAnError) {
    const struct {
        const char* value;
        const char* error;
    } cases[] = {
        {"", "dataReferenceEdits: no reference node named"},
        {"\"aRN\" \"aRN\"", "dataReferenceEdits: ends where a number was expected"},
        {"\"aRN\" \"aRN\" two", "dataReferenceEdits: \"two\" is not a number"},
        {"\"aRN\" \"aRN\" -1", "dataReferenceEdits: a negative count"},
        {"\"aRN\" \"aRN\" 1 2 \"n\" \"t\"", "dataReferenceEdits: ends inside an edit"},
        {"\"aRN\" \"aRN\" 1 12 \"n\"", "dataReferenceEdits: edit kind 12 is not known"},
        {"\"aRN\" \"aRN\" 1 7 \"link\" \"l\" -3", "dataReferenceEdits: a negative count"},
        {"\"aRN\" \"aRN\" 1 7 \"link\" \"l\" 4000000000",
         "dataReferenceEdits: \"4000000000\" is not a number"},
    };
    for (const auto& c : cases) {
        ReferenceEdits edits;
        EXPECT_FALSE(edits.parse(wordsOf(c.value))) << c.value;
        EXPECT_EQ(edits.error(), c.error) << c.value;
    }
}

}  // namespace
