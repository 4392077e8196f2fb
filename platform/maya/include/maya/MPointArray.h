#pragma once
#include <maya/MPoint.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MPointArray {
public:
    MPointArray();
    MPointArray(const MPointArray& other);
    ~MPointArray();
    MPointArray& operator=(const MPointArray& other);

    const MPoint& operator[](unsigned int index) const;
    MPoint& operator[](unsigned int index);
    unsigned int length() const;
    MStatus append(const MPoint& point);
    MStatus clear();

private:
    MPoint* fItems;
    unsigned int fLength;
    unsigned int fCapacity;
};

OPENMAYA_NAMESPACE_CLOSE
