#include "TruncationCheck.h"

#include <algorithm>

namespace xrvell {
namespace {

bool startsWith(std::string_view text, std::string_view prefix) {
    return text.substr(0, prefix.size()) == prefix;
}

std::string_view trimmedEnd(std::string_view text) {
    const size_t end = text.find_last_not_of(" \t");
    return end == std::string_view::npos ? std::string_view() : text.substr(0, end + 1);
}

// The lines of a text whose lines end with LF, CR LF or CR, as the tokenizer counts them.
class Lines {
public:
    explicit Lines(std::string_view text) : rest(text) {}
    bool next(std::string_view* line) {
        if (rest.empty()) return false;
        const size_t end = std::min(rest.find_first_of("\r\n"), rest.size());
        *line = trimmedEnd(rest.substr(0, end));
        const bool crlf = end + 1 < rest.size() && rest[end] == '\r' && rest[end + 1] == '\n';
        rest.remove_prefix(std::min(end + (crlf ? 2 : 1), rest.size()));
        ++number;
        return true;
    }
    int number = 0;

private:
    std::string_view rest;
};

bool isMayaHeader(std::string_view line) {
    return startsWith(line, "//Maya ASCII ") && line.size() > 19 &&
           line.substr(line.size() - 6) == " scene";
}

}  // namespace

std::string TruncationCheck::problem(std::string_view text, int* lastLine) {
    if (startsWith(text, "\xEF\xBB\xBF")) text.remove_prefix(3);
    Lines lines(text);
    std::string_view line;
    if (!lines.next(&line) || !isMayaHeader(line)) return "";
    std::string_view name;  // from "//Name: NAME"; any closing line will do without it
    bool inHeader = true;
    *lastLine = 1;
    while (lines.next(&line)) {
        inHeader = inHeader && startsWith(line, "//");
        if (inHeader && startsWith(line, "//Name: ")) name = line.substr(8);
        const bool closing = startsWith(line, "// End of ") &&
                             (name.empty() ? line.size() > 10 : line.substr(10) == name);
        if (closing) return "";
        if (line.find_first_not_of(" \t") != std::string_view::npos) *lastLine = lines.number;
    }
    const std::string expected = "// End of " + (name.empty() ? "..." : std::string(name));
    return "the file ends without the line Maya closes its files with (\"" + expected +
           "\"): it may be truncated";
}

}  // namespace xrvell
