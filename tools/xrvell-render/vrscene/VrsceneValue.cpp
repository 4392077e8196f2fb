#include "VrsceneValue.h"

#include <charconv>
#include <cstring>

#include "VisibleText.h"

namespace xrvell {
namespace {

using vrayrender::RecordedValue;

void appendInt(int value, std::string& out) {
    char text[16];
    out.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}

// The fewest digits that read back to the same value, as to_chars gives them. It writes a number
// in exponent form whenever that is shorter, 100000 as 1e+05; below 10^fixedDigits the number is
// written out as a person would type it, as %g does.
template <typename Number>
void appendShortest(Number value, int fixedDigits, std::string& out) {
    char text[64];
    char* end = std::to_chars(text, text + sizeof text, value).ptr;
    const char* e =
        static_cast<const char*>(std::memchr(text, 'e', static_cast<size_t>(end - text)));
    int power = 0;
    if (e && std::from_chars(e[1] == '+' ? e + 2 : e + 1, end, power).ec == std::errc() &&
        power >= -4 && power < fixedDigits)
        end = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed).ptr;
    out.append(text, end);
}

void appendTriple(const char* name, const float (&v)[3], std::string& out) {
    out += name;
    out += '(';
    for (int i = 0; i < 3; ++i) {
        if (i) out += ',';
        VrsceneValue::appendFloat(v[i], out);
    }
    out += ')';
}

void appendList(const std::vector<float>& list, std::string& out) {
    out += "ListFloat(";
    for (size_t i = 0; i < list.size(); ++i) {
        if (i) out += ',';
        VrsceneValue::appendFloat(list[i], out);
    }
    out += ')';
}

}  // namespace

void VrsceneValue::appendFloat(float value, std::string& out) { appendShortest(value, 9, out); }

void VrsceneValue::appendDouble(double value, std::string& out) { appendShortest(value, 15, out); }

void VrsceneValue::appendString(const std::string& text, std::string& out) {
    out += '"';
    for (char c : text) {
        if (VisibleText::isControl(c)) {
            VisibleText::appendEscape(c, out);
            continue;
        }
        if (c == '"' || c == '\\') out += '\\';
        out += c;
    }
    out += '"';
}

void VrsceneValue::append(const RecordedValue& value, std::string& out) {
    switch (value.kind) {
        case RecordedValue::Kind::Int:
            appendInt(value.intValue, out);
            break;
        case RecordedValue::Kind::Float:
            appendFloat(static_cast<float>(value.number), out);
            break;
        case RecordedValue::Kind::Double:
            appendDouble(value.number, out);
            break;
        case RecordedValue::Kind::Vector:
            appendTriple("Vector", value.vector, out);
            break;
        case RecordedValue::Kind::Color:
            appendTriple("Color", value.vector, out);
            break;
        case RecordedValue::Kind::String:
            appendString(value.text, out);
            break;
        case RecordedValue::Kind::FloatList:
            appendList(value.list, out);
            break;
        case RecordedValue::Kind::None:
            break;
    }
}

}  // namespace xrvell
