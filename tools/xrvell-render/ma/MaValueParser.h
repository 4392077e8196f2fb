#pragma once
#include <string>

namespace xrvell {

// The literal forms of Maya ASCII values: numbers as MEL writes them and the boolean words.
class MaValueParser {
public:
    // Decimal numbers with an optional sign, fraction and exponent; no "inf", "nan" or hex.
    // One too small for a double reads as 0 (or the nearest subnormal), as MEL reads it.
    static bool parseNumber(const std::string& text, double* value);
    static bool parseInteger(const std::string& text, long long* value);
    // Whether the text is a number in the form above that is too large for a double.
    static bool numberOutOfRange(const std::string& text);
    // Whether the text is a whole number too large for 64 bits.
    static bool integerOutOfRange(const std::string& text);
    // yes/no, true/false, on/off.
    static bool parseBoolWord(const std::string& text, bool* value);
};

}  // namespace xrvell
