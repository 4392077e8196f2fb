#include "VrsceneValue.h"

#include <cstdio>
#include <cstdlib>

#include "VisibleText.h"

namespace xrvell {
namespace {

using vrayrender::RecordedValue;

void appendInt(int value, std::string& out) {
    char text[16];
    std::snprintf(text, sizeof text, "%d", value);
    out += text;
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
    char text[32];
    std::snprintf(text, sizeof text, "%.9g", static_cast<double>(value));
    out += text;
}

void VrsceneValue::appendDouble(double value, std::string& out) {
    char text[32];
    for (int digits = 15; digits <= 17; ++digits) {
        std::snprintf(text, sizeof text, "%.*g", digits, value);
        if (std::strtod(text, nullptr) == value) break;
    }
    out += text;
}

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
