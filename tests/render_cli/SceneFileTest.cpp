// Telling a file that is not Maya ASCII by its first bytes, and what is said about it.
#include <gtest/gtest.h>

#include <string>

#include "SceneFile.h"

namespace {

using namespace std::string_literals;

const char* const kBinary =
    " is a binary Maya file: only Maya ASCII is read (save the scene as Maya ASCII, .ma)";
const char* const kGzip =
    " is a gzip-compressed file: only Maya ASCII is read (uncompress it first)";
const char* const kUtf16 =
    " is UTF-16 text: only Maya ASCII is read, which is 8-bit text (save it as UTF-8)";

TEST(SceneFileTest, NamesWhatAFileThatIsNotMayaAsciiIs) {
    const struct {
        const char* name;
        std::string start;
        const char* what;  // null: read as Maya ASCII
    } cases[] = {
        {"binary", "FOR4\0\0\0\x40Maya"s, kBinary},
        {"binary64", "FOR8\0\0\0\0\0\0\0\x40Maya"s, kBinary},
        {"gzip", "\x1F\x8B\x08\0\0\0\0\0"s, kGzip},
        {"utf16LeMark", "\xFF\xFE/\0/\0"s, kUtf16},
        {"utf16BeMark", "\xFE\xFF\0/\0/"s, kUtf16},
        {"utf16Le", "/\0/\0M\0"s, kUtf16},
        {"utf16Be", "\0/\0/\0M"s, kUtf16},
        {"utf16MarkOnly", "\xFF\xFE"s, kUtf16},
        {"mayaAscii", "//Maya ASCII 2022 scene\n", nullptr},
        {"utf8Mark", "\xEF\xBB\xBFrequires maya \"2022\";", nullptr},
        {"handWritten", "createNode transform;", nullptr},
        {"empty", "", nullptr},
        {"shortText", "a\0"s, nullptr},
        {"nulInside", "setAttr \".x\" \"\0\";"s, nullptr},
        {"forWord", "FORM", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const std::string expected = c.what ? std::string("\"shot.ma\"") + c.what : "";
        EXPECT_EQ(xrvell::SceneFile::notMayaAscii("shot.ma", c.start), expected);
    }
}

}  // namespace
