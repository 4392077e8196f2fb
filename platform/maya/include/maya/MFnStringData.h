#pragma once
#include <maya/MFnData.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MFnStringData : public MFnData {
public:
    MFnStringData();
    MFnStringData(MObject& object, MStatus* ReturnStatus = NULL);
    ~MFnStringData() override;

    MObject create(const MString& str, MStatus* ReturnStatus = NULL);
    MObject create(MStatus* ReturnStatus = NULL);
    MString string(MStatus* ReturnStatus = NULL) const;
    MStatus set(const MString& newString);
};

OPENMAYA_NAMESPACE_CLOSE
