#pragma once
#include <string>
#include <string_view>
#include <vector>

namespace xrvell {

// One word of a Maya ASCII command: bare text or the contents of a quoted string.
struct MaWord {
    std::string text;
    bool quoted = false;
};

// One command of a Maya ASCII file, up to its ';', with the line it starts on.
struct MaStatement {
    int line = 0;
    std::vector<MaWord> words;
};

// Splits Maya ASCII text into statements: words separated by white space, double-quoted strings
// with backslash escapes, "//" comments to the end of the line, ';' ending each command. Lines
// end with LF, CR LF or CR alike. A leading UTF-8 byte order mark is skipped.
class MaTokenizer {
public:
    explicit MaTokenizer(std::string_view text);

    // The next statement; false at the end of the text or on a syntax error (see error()).
    bool next(MaStatement& statement);
    const std::string& error() const { return errorText; }
    int errorLine() const { return errorAt; }

private:
    bool atEnd() const { return position >= text.size(); }
    char peek() const { return text[position]; }
    void advance();
    void skipSpaceAndComments();
    bool readQuoted(std::string& word);
    void readBare(std::string& word);
    bool fail(int line, const char* message);

    std::string_view text;
    size_t position = 0;
    int line = 1;
    std::string errorText;
    int errorAt = 0;
};

}  // namespace xrvell
