#include <maya/MString.h>

#include <cstring>

namespace {

char* duplicate(const char* text, unsigned int length) {
    char* copy = new char[length + 1];
    if (length) std::memcpy(copy, text, length);
    copy[length] = '\0';
    return copy;
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MString::MString() : fText(duplicate("", 0)), fLength(0) {}

MString::MString(const char* text)
    : fText(nullptr), fLength(text ? static_cast<unsigned int>(std::strlen(text)) : 0) {
    fText = duplicate(text ? text : "", fLength);
}

MString::MString(const char* text, int length)
    : fText(nullptr), fLength(text && length > 0 ? static_cast<unsigned int>(length) : 0) {
    fText = duplicate(text ? text : "", fLength);
}

MString::MString(const MString& other)
    : fText(duplicate(other.fText, other.fLength)), fLength(other.fLength) {}

MString::~MString() { delete[] fText; }

MString& MString::operator=(const MString& other) {
    if (this != &other) {
        char* copy = duplicate(other.fText, other.fLength);
        delete[] fText;
        fText = copy;
        fLength = other.fLength;
    }
    return *this;
}

MString& MString::operator=(const char* text) { return *this = MString(text); }

MString& MString::operator+=(const MString& other) {
    char* joined = new char[fLength + other.fLength + 1];
    std::memcpy(joined, fText, fLength);
    std::memcpy(joined + fLength, other.fText, other.fLength + 1);
    delete[] fText;
    fText = joined;
    fLength += other.fLength;
    return *this;
}

MString& MString::operator+=(const char* text) { return *this += MString(text); }

bool MString::operator==(const MString& other) const {
    return fLength == other.fLength && std::memcmp(fText, other.fText, fLength) == 0;
}

bool MString::operator==(const char* text) const { return *this == MString(text); }
bool MString::operator!=(const MString& other) const { return !(*this == other); }
bool MString::operator!=(const char* text) const { return !(*this == text); }

const char* MString::asChar() const { return fText; }
unsigned int MString::length() const { return fLength; }
unsigned int MString::numChars() const { return fLength; }

MString operator+(const MString& left, const MString& right) {
    MString joined(left);
    joined += right;
    return joined;
}

OPENMAYA_NAMESPACE_CLOSE
