#include "MaValueParser.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace xrvell {
namespace {

bool isDigit(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

size_t skipDigits(const std::string& text, size_t at) {
    while (at < text.size() && isDigit(text[at])) ++at;
    return at;
}

size_t skipSign(const std::string& text, size_t at) {
    return at < text.size() && (text[at] == '+' || text[at] == '-') ? at + 1 : at;
}

// Whether the text is a decimal number as MEL writes one: 1, -2.5, .5, 3., 1e-05.
bool isDecimal(const std::string& text) {
    size_t at = skipSign(text, 0);
    const size_t integerEnd = skipDigits(text, at);
    bool digits = integerEnd > at;
    at = integerEnd;
    if (at < text.size() && text[at] == '.') {
        const size_t fractionEnd = skipDigits(text, at + 1);
        digits = digits || fractionEnd > at + 1;
        at = fractionEnd;
    }
    if (!digits) return false;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        const size_t exponentStart = skipSign(text, at + 1);
        const size_t exponentEnd = skipDigits(text, exponentStart);
        if (exponentEnd == exponentStart) return false;
        at = exponentEnd;
    }
    return at == text.size();
}

// from_chars takes no leading '+'.
const char* withoutPlus(const std::string& text) {
    return !text.empty() && text[0] == '+' ? text.data() + 1 : text.data();
}

}  // namespace

bool MaValueParser::parseNumber(const std::string& text, double* value) {
    if (!isDecimal(text)) return false;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(withoutPlus(text), end, *value);
    if (result.ec == std::errc()) return result.ptr == end && std::isfinite(*value);
    if (result.ec != std::errc::result_out_of_range) return false;
    // Too large, or too small: strtod tells them apart and rounds the small ones.
    const double nearest = std::strtod(text.c_str(), nullptr);
    if (!std::isfinite(nearest)) return false;
    *value = nearest;
    return true;
}

bool MaValueParser::numberOutOfRange(const std::string& text) {
    double number = 0.0;
    return isDecimal(text) && !parseNumber(text, &number);
}

bool MaValueParser::integerOutOfRange(const std::string& text) {
    const size_t start = skipSign(text, 0);
    long long number = 0;
    return start < text.size() && skipDigits(text, start) == text.size() &&
           !parseInteger(text, &number);
}

bool MaValueParser::parseInteger(const std::string& text, long long* value) {
    const size_t start = skipSign(text, 0);
    if (start == text.size() || skipDigits(text, start) != text.size()) return false;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(withoutPlus(text), end, *value);
    return result.ec == std::errc() && result.ptr == end;
}

bool MaValueParser::parseBoolWord(const std::string& text, bool* value) {
    if (text == "yes" || text == "true" || text == "on") {
        *value = true;
        return true;
    }
    if (text == "no" || text == "false" || text == "off") {
        *value = false;
        return true;
    }
    return false;
}

}  // namespace xrvell
