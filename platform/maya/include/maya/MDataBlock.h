#pragma once
#include <maya/MDataHandle.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MDataBlock {
public:
    MDataHandle inputValue(const MPlug& plug, MStatus* ReturnStatus = NULL);
    MDataHandle inputValue(const MObject& attribute, MStatus* ReturnStatus = NULL);
    MDataHandle outputValue(const MPlug& plug, MStatus* ReturnStatus = NULL);
    MDataHandle outputValue(const MObject& attribute, MStatus* ReturnStatus = NULL);
    MStatus setClean(const MPlug& plug);
    MStatus setClean(const MObject& attribute);

private:
    friend struct mayahost::detail::Access;
    MDataBlock() : fNode(nullptr) {}
    mayahost::detail::Object* fNode;
};

OPENMAYA_NAMESPACE_CLOSE
