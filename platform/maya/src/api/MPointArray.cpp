#include <maya/MPointArray.h>

#include <utility>

OPENMAYA_NAMESPACE_OPEN

MPointArray::MPointArray() : fItems(nullptr), fLength(0), fCapacity(0) {}

MPointArray::MPointArray(const MPointArray& other) : MPointArray() {
    for (unsigned int i = 0; i < other.fLength; ++i) append(other.fItems[i]);
}

MPointArray::~MPointArray() { delete[] fItems; }

MPointArray& MPointArray::operator=(const MPointArray& other) {
    if (this != &other) {
        MPointArray copy(other);
        std::swap(fItems, copy.fItems);
        std::swap(fLength, copy.fLength);
        std::swap(fCapacity, copy.fCapacity);
    }
    return *this;
}

const MPoint& MPointArray::operator[](unsigned int index) const { return fItems[index]; }
MPoint& MPointArray::operator[](unsigned int index) { return fItems[index]; }
unsigned int MPointArray::length() const { return fLength; }

MStatus MPointArray::append(const MPoint& point) {
    if (fLength == fCapacity) {
        const unsigned int capacity = fCapacity ? fCapacity * 2 : 4;
        MPoint* grown = new MPoint[capacity];
        for (unsigned int i = 0; i < fLength; ++i) grown[i] = fItems[i];
        delete[] fItems;
        fItems = grown;
        fCapacity = capacity;
    }
    fItems[fLength++] = point;
    return MStatus::kSuccess;
}

MStatus MPointArray::clear() {
    fLength = 0;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
