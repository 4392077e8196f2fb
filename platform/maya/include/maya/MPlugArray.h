#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MPlugArray {
public:
    MPlugArray();
    MPlugArray(const MPlugArray& other);
    ~MPlugArray();
    MPlugArray& operator=(const MPlugArray& other);

    const MPlug& operator[](unsigned int index) const;
    MPlug& operator[](unsigned int index);
    unsigned int length() const;
    MStatus append(const MPlug& plug);
    MStatus clear();

private:
    MPlug* fItems;
    unsigned int fLength;
    unsigned int fCapacity;
};

OPENMAYA_NAMESPACE_CLOSE
