#pragma once
#include <maya/MFnBase.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MFnAttribute : public MFnBase {
public:
    MFnAttribute();
    MFnAttribute(MObject& object, MStatus* ReturnStatus = NULL);
    ~MFnAttribute() override;

    bool isReadable(MStatus* ReturnStatus = NULL) const;
    bool isWritable(MStatus* ReturnStatus = NULL) const;
    bool isStorable(MStatus* ReturnStatus = NULL) const;
    bool isKeyable(MStatus* ReturnStatus = NULL) const;
    bool isHidden(MStatus* ReturnStatus = NULL) const;
    bool isArray(MStatus* ReturnStatus = NULL) const;
    bool affectsWorldSpace(MStatus* ReturnStatus = NULL) const;
    MString name() const;
    MString shortName(MStatus* ReturnStatus = NULL) const;

    MStatus setReadable(bool state);
    MStatus setWritable(bool state);
    MStatus setStorable(bool state);
    MStatus setKeyable(bool state);
    MStatus setHidden(bool state);
    MStatus setArray(bool state);
    MStatus setAffectsWorldSpace(bool state);
};

OPENMAYA_NAMESPACE_CLOSE
