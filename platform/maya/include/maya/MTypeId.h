#pragma once
#include <maya/MTypes.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MTypeId {
public:
    MTypeId() : fId(0) {}
    MTypeId(unsigned int id) : fId(id) {}
    unsigned int id() const { return fId; }
    bool operator==(const MTypeId& other) const { return fId == other.fId; }
    bool operator!=(const MTypeId& other) const { return fId != other.fId; }

private:
    unsigned int fId;
};

OPENMAYA_NAMESPACE_CLOSE
