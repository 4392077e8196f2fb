#pragma once
#include <maya/MTypes.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MString {
public:
    MString();
    MString(const char* text);
    MString(const char* text, int length);
    MString(const MString& other);
    ~MString();
    MString& operator=(const MString& other);
    MString& operator=(const char* text);
    MString& operator+=(const MString& other);
    MString& operator+=(const char* text);

    bool operator==(const MString& other) const;
    bool operator==(const char* text) const;
    bool operator!=(const MString& other) const;
    bool operator!=(const char* text) const;

    const char* asChar() const;
    unsigned int length() const;
    unsigned int numChars() const;

private:
    char* fText;
    unsigned int fLength;
};

OPENMAYA_EXPORT MString operator+(const MString& left, const MString& right);

OPENMAYA_NAMESPACE_CLOSE
