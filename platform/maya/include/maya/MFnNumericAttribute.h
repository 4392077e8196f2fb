#pragma once
#include <maya/MFnAttribute.h>
#include <maya/MFnNumericData.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MFnNumericAttribute : public MFnAttribute {
public:
    MFnNumericAttribute();
    MFnNumericAttribute(MObject& object, MStatus* ReturnStatus = NULL);
    ~MFnNumericAttribute() override;

    MObject create(const MString& fullName, const MString& briefName, MFnNumericData::Type unitType,
                   double defaultValue = 0, MStatus* ReturnStatus = NULL);
    MObject createAddr(const MString& fullName, const MString& briefName, void* defaultValue = NULL,
                       MStatus* ReturnStatus = NULL);
    MFnNumericData::Type unitType(MStatus* ReturnStatus = NULL) const;
};

OPENMAYA_NAMESPACE_CLOSE
