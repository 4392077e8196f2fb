#include "VrsceneValue.h"

#include <charconv>
#include <cmath>
#include <cstring>

#include "VisibleText.h"

namespace xrvell {
namespace {

using vrayrender::RecordedValue;

void appendInt(int value, std::string& out) {
    char text[16];
    out.append(text, std::to_chars(text, text + sizeof text, value).ptr);
}

// Below 10^digits a number is written out in full, as %g would: 100000, not to_chars' 1e+05.
struct Notation {
    int digits;
    double below;  // 10^digits
};
const Notation kFloatNotation{9, 1e9};
const Notation kDoubleNotation{15, 1e15};

// The fewest digits that read back to the same value, as to_chars gives them, in exponent form
// only where %g would use it.
template <typename Number>
char* shortest(Number value, const Notation& notation, char* text, char* last) {
    char* end = std::to_chars(text, last, value).ptr;
    const char* e =
        static_cast<const char*>(std::memchr(text, 'e', static_cast<size_t>(end - text)));
    int power = 0;
    if (e && std::from_chars(e[1] == '+' ? e + 2 : e + 1, end, power).ec == std::errc() &&
        power >= -4 && power < notation.digits)
        end = std::to_chars(text, last, value, std::chars_format::fixed).ptr;
    return end;
}

template <typename Number>
void appendNumber(Number value, const Notation& notation, std::string& out) {
    char text[64];
    char* end;
    // Whole numbers, most of a scene's values, are their own digits: no search for the shortest.
    // -0 keeps its sign through to_chars.
    if (std::fabs(value) < notation.below && value == std::trunc(value) &&
        (value != 0 || !std::signbit(value)))
        end = std::to_chars(text, text + sizeof text, static_cast<long long>(value)).ptr;
    else
        end = shortest(value, notation, text, text + sizeof text);
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

void VrsceneValue::appendFloat(float value, std::string& out) {
    appendNumber(value, kFloatNotation, out);
}

void VrsceneValue::appendDouble(double value, std::string& out) {
    appendNumber(value, kDoubleNotation, out);
}

// The characters between escapes go out a run at a time: a render writes millions of paths.
void VrsceneValue::appendString(const std::string& text, std::string& out) {
    out += '"';
    size_t run = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool control = VisibleText::isControl(c);
        if (!control && c != '"' && c != '\\') continue;
        out.append(text, run, i - run);
        run = i + 1;
        if (control) {
            VisibleText::appendEscape(c, out);
        } else {
            out += '\\';
            out += c;
        }
    }
    out.append(text, run, std::string::npos);
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
