#pragma once
#include <maya/MDataBlock.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MPxNode {
public:
    enum Type { kDependNode, kLocatorNode, kDeformerNode, kManipContainer, kSurfaceShape };

    MPxNode();
    virtual ~MPxNode();
    virtual void postConstructor();
    virtual MStatus compute(const MPlug& plug, MDataBlock& dataBlock);
    virtual MStatus setDependentsDirty(const MPlug& plug, MPlugArray& plugArray);
    virtual Type type() const;

    MTypeId typeId() const;
    MString typeName() const;
    MString name() const;
    MObject thisMObject() const;

    static MStatus addAttribute(const MObject& attr);
    static MStatus attributeAffects(const MObject& whenChanges, const MObject& isAffected);

    MPxNode(const MPxNode&) = delete;
    MPxNode& operator=(const MPxNode&) = delete;

private:
    friend struct mayahost::detail::Access;
    mayahost::detail::Object* fNode;
};

OPENMAYA_NAMESPACE_CLOSE
