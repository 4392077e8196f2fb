#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

#include <utility>

OPENMAYA_NAMESPACE_OPEN

MPlugArray::MPlugArray() : fItems(nullptr), fLength(0), fCapacity(0) {}

MPlugArray::MPlugArray(const MPlugArray& other) : MPlugArray() {
    for (unsigned int i = 0; i < other.fLength; ++i) append(other.fItems[i]);
}

MPlugArray::~MPlugArray() { delete[] fItems; }

MPlugArray& MPlugArray::operator=(const MPlugArray& other) {
    if (this != &other) {
        MPlugArray copy(other);
        std::swap(fItems, copy.fItems);
        std::swap(fLength, copy.fLength);
        std::swap(fCapacity, copy.fCapacity);
    }
    return *this;
}

const MPlug& MPlugArray::operator[](unsigned int index) const { return fItems[index]; }
MPlug& MPlugArray::operator[](unsigned int index) { return fItems[index]; }
unsigned int MPlugArray::length() const { return fLength; }

MStatus MPlugArray::append(const MPlug& plug) {
    if (fLength == fCapacity) {
        const unsigned int capacity = fCapacity ? fCapacity * 2 : 4;
        MPlug* grown = new MPlug[capacity];
        for (unsigned int i = 0; i < fLength; ++i) grown[i] = fItems[i];
        delete[] fItems;
        fItems = grown;
        fCapacity = capacity;
    }
    fItems[fLength++] = plug;
    return MStatus::kSuccess;
}

MStatus MPlugArray::clear() {
    for (unsigned int i = 0; i < fLength; ++i) fItems[i] = MPlug();
    fLength = 0;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
