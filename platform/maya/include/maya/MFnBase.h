#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

// Function sets are views onto one object; Maya forbids copying them or taking their address.
class OPENMAYA_EXPORT MFnBase {
public:
    virtual ~MFnBase();
    MObject object(MStatus* ReturnStatus = NULL) const;
    virtual MStatus setObject(MObject& object);
    virtual MStatus setObject(const MObject& object);

    MFnBase(const MFnBase&) = delete;
    MFnBase& operator=(const MFnBase&) = delete;
    MFnBase* operator&() const = delete;

protected:
    MFnBase();
    // Held apart because MObject is only declared here, as in Maya's own header.
    MObject* fObject;
};

OPENMAYA_NAMESPACE_CLOSE
