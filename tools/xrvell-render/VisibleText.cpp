#include "VisibleText.h"

namespace xrvell {

bool VisibleText::isControl(char c) {
    const unsigned char byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7f;
}

void VisibleText::appendEscape(char c, std::string& out) {
    out += '\\';
    switch (c) {
        case '\n':
            out += 'n';
            return;
        case '\t':
            out += 't';
            return;
        case '\r':
            out += 'r';
            return;
        default:
            break;
    }
    // Always three digits, so a digit that follows cannot be taken into the escape.
    const unsigned char byte = static_cast<unsigned char>(c);
    out += static_cast<char>('0' + (byte >> 6));
    out += static_cast<char>('0' + ((byte >> 3) & 7));
    out += static_cast<char>('0' + (byte & 7));
}

void VisibleText::append(std::string_view text, std::string& out) {
    for (char c : text) {
        if (isControl(c))
            appendEscape(c, out);
        else
            out += c;
    }
}

std::string VisibleText::of(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    append(text, out);
    return out;
}

}  // namespace xrvell
