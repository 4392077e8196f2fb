#include "MaTokenizer.h"

namespace xrvell {
namespace {

bool isSpace(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\f' || c == '\v';
}

bool isLineEnd(char c) { return c == '\n' || c == '\r'; }

char unescaped(char c) {
    switch (c) {
        case 'n':
            return '\n';
        case 't':
            return '\t';
        case 'r':
            return '\r';
        default:
            return c;  // \" \\ and anything else stand for the character itself
    }
}

// Editors on some systems start a UTF-8 file with a byte order mark.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

MaTokenizer::MaTokenizer(std::string_view input) : text(input) {
    if (text.substr(0, kByteOrderMark.size()) == kByteOrderMark) position = kByteOrderMark.size();
}

// A line ends with LF, CR LF or, in files from old Mac systems, a lone CR.
void MaTokenizer::advance() {
    const char c = text[position++];
    if (c == '\n' || (c == '\r' && (atEnd() || peek() != '\n'))) ++line;
}

void MaTokenizer::skipSpaceAndComments() {
    while (!atEnd()) {
        if (isSpace(peek())) {
            advance();
        } else if (peek() == '/' && position + 1 < text.size() && text[position + 1] == '/') {
            while (!atEnd() && !isLineEnd(peek())) advance();
        } else {
            return;
        }
    }
}

bool MaTokenizer::fail(int at, const char* message) {
    errorText = message;
    errorAt = at;
    position = text.size();
    return false;
}

bool MaTokenizer::readQuoted(std::string& word) {
    const int start = line;
    advance();  // the opening quote
    while (!atEnd() && peek() != '"') {
        if (isLineEnd(peek())) return fail(start, "unterminated string");
        if (peek() == '\\') {
            advance();
            if (atEnd()) break;
            word += unescaped(peek());
        } else {
            word += peek();
        }
        advance();
    }
    if (atEnd()) return fail(start, "unterminated string");
    advance();  // the closing quote
    return true;
}

void MaTokenizer::readBare(std::string& word) {
    while (!atEnd() && !isSpace(peek()) && peek() != ';' && peek() != '"') {
        word += peek();
        advance();
    }
}

bool MaTokenizer::next(MaStatement& statement) {
    statement.words.clear();
    for (;;) {
        skipSpaceAndComments();
        if (atEnd()) {
            if (statement.words.empty() || !errorText.empty()) return false;
            return fail(statement.line, "missing ';' at the end of the command");
        }
        if (peek() == ';') {
            advance();
            if (!statement.words.empty()) return true;
            continue;  // an empty command
        }
        if (statement.words.empty()) statement.line = line;
        MaWord word;
        if (peek() == '"') {
            word.quoted = true;
            if (!readQuoted(word.text)) return false;
        } else {
            readBare(word.text);
        }
        statement.words.push_back(std::move(word));
    }
}

}  // namespace xrvell
