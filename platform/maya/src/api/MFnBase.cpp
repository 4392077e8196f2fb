#include <maya/MFnBase.h>

OPENMAYA_NAMESPACE_OPEN

MFnBase::MFnBase() = default;
MFnBase::~MFnBase() = default;

MObject MFnBase::object(MStatus* ReturnStatus) const {
    if (ReturnStatus)
        *ReturnStatus = fObject.isNull() ? MStatus::kInvalidParameter : MStatus::kSuccess;
    return fObject;
}

MStatus MFnBase::setObject(MObject& object) {
    fObject = object;
    return MStatus::kSuccess;
}

MStatus MFnBase::setObject(const MObject& object) {
    fObject = object;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
