#pragma once
#include <string>
#include <string_view>

namespace xrvell {

// Text from a scene or the command line made safe for a one-line message or a .vrscene: control
// characters become "\n", "\t", "\r" or a three-digit octal escape ("\000", "\033"); every
// other byte, UTF-8 included, stays as it is.
class VisibleText {
public:
    static bool isControl(char c);
    static void appendEscape(char c, std::string& out);
    static void append(std::string_view text, std::string& out);
    static std::string of(std::string_view text);
};

}  // namespace xrvell
