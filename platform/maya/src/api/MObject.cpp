#include <maya/MObject.h>

#include "../Object.h"

using mayahost::detail::release;
using mayahost::detail::retain;

OPENMAYA_NAMESPACE_OPEN

const MObject MObject::kNullObj;

MObject::MObject() : fObj(nullptr) {}

MObject::MObject(const MObject& other) : fObj(other.fObj) { retain(fObj); }

MObject::~MObject() { release(fObj); }

MObject& MObject::operator=(const MObject& other) {
    retain(other.fObj);
    release(fObj);
    fObj = other.fObj;
    return *this;
}

bool MObject::isNull() const { return fObj == nullptr; }
bool MObject::operator==(const MObject& other) const { return fObj == other.fObj; }
bool MObject::operator!=(const MObject& other) const { return fObj != other.fObj; }

OPENMAYA_NAMESPACE_CLOSE
