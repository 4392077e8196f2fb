#include <maya/MString.h>

#include <cstring>

namespace {

// An empty string holds no memory: every attribute value carries a string, and most are empty.
char* duplicate(const char* text, unsigned int length) {
    if (length == 0) return nullptr;
    char* copy = new char[length + 1];
    std::memcpy(copy, text, length);
    copy[length] = '\0';
    return copy;
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MString::MString() : fText(nullptr), fLength(0) {}

MString::MString(const char* text)
    : fText(nullptr), fLength(text ? static_cast<unsigned int>(std::strlen(text)) : 0) {
    fText = duplicate(text, fLength);
}

MString::MString(const char* text, int length)
    : fText(nullptr), fLength(text && length > 0 ? static_cast<unsigned int>(length) : 0) {
    fText = duplicate(text, fLength);
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
    if (other.fLength == 0) return *this;
    char* joined = new char[fLength + other.fLength + 1];
    if (fLength) std::memcpy(joined, fText, fLength);
    std::memcpy(joined + fLength, other.fText, other.fLength + 1);
    delete[] fText;
    fText = joined;
    fLength += other.fLength;
    return *this;
}

MString& MString::operator+=(const char* text) { return *this += MString(text); }

bool MString::operator==(const MString& other) const {
    return fLength == other.fLength &&
           (fLength == 0 || std::memcmp(fText, other.fText, fLength) == 0);
}

bool MString::operator==(const char* text) const {
    const size_t length = text ? std::strlen(text) : 0;
    return length == fLength && (length == 0 || std::memcmp(fText, text, length) == 0);
}
bool MString::operator!=(const MString& other) const { return !(*this == other); }
bool MString::operator!=(const char* text) const { return !(*this == text); }

const char* MString::asChar() const { return fText ? fText : ""; }
unsigned int MString::length() const { return fLength; }
unsigned int MString::numChars() const { return fLength; }

MString operator+(const MString& left, const MString& right) {
    MString joined(left);
    joined += right;
    return joined;
}

OPENMAYA_NAMESPACE_CLOSE
