#include <maya/MFnBase.h>
#include <maya/MObject.h>

OPENMAYA_NAMESPACE_OPEN

MFnBase::MFnBase() : fObject(new MObject) {}
MFnBase::~MFnBase() { delete fObject; }

MObject MFnBase::object(MStatus* ReturnStatus) const {
    if (ReturnStatus)
        *ReturnStatus = fObject->isNull() ? MStatus::kInvalidParameter : MStatus::kSuccess;
    return *fObject;
}

MStatus MFnBase::setObject(MObject& object) {
    *fObject = object;
    return MStatus::kSuccess;
}

MStatus MFnBase::setObject(const MObject& object) {
    *fObject = object;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
