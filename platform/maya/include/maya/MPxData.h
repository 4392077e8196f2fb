#pragma once
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

// Base of a plug-in's own data type, registered with MFnPlugin::registerData.
class OPENMAYA_EXPORT MPxData {
public:
    enum Type { kData, kGeometryData, kLast };

    MPxData();
    virtual ~MPxData();
    virtual void copy(const MPxData& src) = 0;
    virtual MTypeId typeId() const = 0;
    virtual MString name() const = 0;

    MPxData(const MPxData&) = delete;
    MPxData& operator=(const MPxData&) = delete;
};

OPENMAYA_NAMESPACE_CLOSE
