#pragma once
#include <maya/MObject.h>
#include <maya/MStatus.h>

OPENMAYA_NAMESPACE_OPEN

// A path from the world down to one DAG node. The host has no instancing, so a node has
// exactly one path and the path is known by its last node.
class OPENMAYA_EXPORT MDagPath {
public:
    MDagPath();
    MDagPath(const MDagPath& src);
    ~MDagPath();
    MDagPath& operator=(const MDagPath& src);
    bool operator==(const MDagPath& other) const;

    static MStatus getAPathTo(const MObject& node, MDagPath& path);

    bool isValid(MStatus* ReturnStatus = NULL) const;
    MObject node(MStatus* ReturnStatus = NULL) const;
    MObject transform(MStatus* ReturnStatus = NULL) const;
    unsigned int length(MStatus* ReturnStatus = NULL) const;
    MString fullPathName(MStatus* ReturnStatus = NULL) const;
    MString partialPathName(MStatus* ReturnStatus = NULL) const;
    // Object space to world space: the local matrices of the path's transforms, innermost first.
    MMatrix inclusiveMatrix(MStatus* ReturnStatus = NULL) const;
    // The same without the last node's own matrix.
    MMatrix exclusiveMatrix(MStatus* ReturnStatus = NULL) const;

private:
    friend struct mayahost::detail::Access;
    MObject fNode;
};

OPENMAYA_NAMESPACE_CLOSE
