#include <gtest/gtest.h>
#include <maya/MString.h>

#include <cstring>

namespace {

// An empty string holds no memory of its own; the plug-ins still get "" wherever they read one.
TEST(MStringTest, EmptyStringsReadAsEmptyText) {
    const MString made[] = {MString(),         MString(nullptr),   MString(""),
                            MString("abc", 0), MString("abc", -1), MString(nullptr, 3)};
    for (const MString& text : made) {
        ASSERT_NE(text.asChar(), nullptr);
        EXPECT_STREQ(text.asChar(), "");
        EXPECT_EQ(text.length(), 0u);
        EXPECT_TRUE(text == "");
        EXPECT_TRUE(text == nullptr);
        EXPECT_TRUE(text == MString());
        EXPECT_TRUE(text != "a");
        MString copy(text);
        EXPECT_STREQ(copy.asChar(), "");
        copy = text;
        EXPECT_STREQ(copy.asChar(), "");
    }
}

TEST(MStringTest, JoiningKeepsBothSidesAndTheirLengths) {
    MString joined;
    joined += "";
    EXPECT_STREQ(joined.asChar(), "");
    joined += "fur";
    joined += MString();
    joined += MString("Shape");
    EXPECT_STREQ(joined.asChar(), "furShape");
    EXPECT_EQ(joined.length(), 8u);
    EXPECT_STREQ((MString() + MString("a")).asChar(), "a");
    EXPECT_STREQ((MString("a") + MString()).asChar(), "a");
}

// A string made with a length may hold a NUL; comparing with C text must not stop at it.
TEST(MStringTest, ComparisonWithTextUsesTheWholeLength) {
    const MString withNul("a\0b", 3);
    EXPECT_EQ(withNul.length(), 3u);
    EXPECT_FALSE(withNul == "a");
    EXPECT_TRUE(withNul != "a");
    EXPECT_TRUE(withNul == MString("a\0b", 3));
    EXPECT_FALSE(withNul == MString("a\0c", 3));
    EXPECT_TRUE(MString("abc") == "abc");
    EXPECT_FALSE(MString("abc") == "abd");
    EXPECT_FALSE(MString("abc") == "ab");
    EXPECT_FALSE(MString("ab") == nullptr);
}

TEST(MStringTest, AssigningItselfKeepsTheText) {
    MString text("time1");
    const MString& same = text;
    text = same;
    EXPECT_STREQ(text.asChar(), "time1");
    text = "";
    EXPECT_STREQ(text.asChar(), "");
    text = nullptr;
    EXPECT_STREQ(text.asChar(), "");
}

}  // namespace
