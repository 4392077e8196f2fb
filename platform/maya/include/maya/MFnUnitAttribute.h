#pragma once
#include <maya/MFnAttribute.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MFnUnitAttribute : public MFnAttribute {
public:
    enum Type { kInvalid, kAngle, kDistance, kTime, kLast };

    MFnUnitAttribute();
    MFnUnitAttribute(MObject& object, MStatus* ReturnStatus = NULL);
    ~MFnUnitAttribute() override;

    MObject create(const MString& fullName, const MString& briefName, Type unitType,
                   double defaultValue = 0.0, MStatus* ReturnStatus = NULL);
    Type unitType(MStatus* ReturnStatus = NULL) const;
};

OPENMAYA_NAMESPACE_CLOSE
