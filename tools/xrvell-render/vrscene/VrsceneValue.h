#pragma once
#include <string>

#include "RenderRecord.h"

namespace xrvell {

// Values in V-Ray's text scene format, written so they read back exactly.
class VrsceneValue {
public:
    static void append(const vrayrender::RecordedValue& value, std::string& out);
    // The fewest digits that read back to the same 32-bit float: 0.8f is "0.8".
    static void appendFloat(float value, std::string& out);
    // The fewest digits that read back to the same double.
    static void appendDouble(double value, std::string& out);
    // In double quotes, with '"' and '\' escaped and control characters as "\n", "\t", "\r" or
    // a three-digit octal escape ("\033"): a string never breaks its line.
    static void appendString(const std::string& text, std::string& out);
};

}  // namespace xrvell
