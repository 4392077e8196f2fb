#pragma once
#include <maya/MFnAttribute.h>
#include <maya/MFnData.h>
#include <maya/MObject.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MFnTypedAttribute : public MFnAttribute {
public:
    MFnTypedAttribute();
    MFnTypedAttribute(MObject& object, MStatus* ReturnStatus = NULL);
    ~MFnTypedAttribute() override;

    MObject create(const MString& fullName, const MString& briefName, MFnData::Type type,
                   MObject defaultData = MObject::kNullObj, MStatus* ReturnStatus = NULL);
    MObject create(const MString& fullName, const MString& briefName, const MTypeId& id,
                   MObject defaultData = MObject::kNullObj, MStatus* ReturnStatus = NULL);
    MFnData::Type attrType(MStatus* ReturnStatus = NULL) const;
};

OPENMAYA_NAMESPACE_CLOSE
