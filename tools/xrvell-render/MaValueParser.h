#pragma once
#include <string>

namespace xrvell {

// The literal forms of Maya ASCII values: numbers as MEL writes them and the boolean words.
class MaValueParser {
public:
    // Decimal numbers with an optional sign, fraction and exponent; no "inf", "nan" or hex.
    static bool parseNumber(const std::string& text, double* value);
    static bool parseInteger(const std::string& text, long long* value);
    // yes/no, true/false, on/off.
    static bool parseBoolWord(const std::string& text, bool* value);
};

}  // namespace xrvell
