#pragma once
#include <maya/MFnDependencyNode.h>

OPENMAYA_NAMESPACE_OPEN

// Binds only to DAG nodes: binding a dependency node leaves the function set unbound.
class OPENMAYA_EXPORT MFnDagNode : public MFnDependencyNode {
public:
    MFnDagNode();
    MFnDagNode(MObject& object, MStatus* ReturnStatus = NULL);
    MFnDagNode(const MDagPath& object, MStatus* ReturnStatus = NULL);
    ~MFnDagNode() override;

    unsigned int parentCount(MStatus* ReturnStatus = NULL) const;
    MObject parent(unsigned int i, MStatus* ReturnStatus = NULL) const;
    unsigned int childCount(MStatus* ReturnStatus = NULL) const;
    MObject child(unsigned int i, MStatus* ReturnStatus = NULL) const;
    MDagPath dagPath(MStatus* ReturnStatus = NULL) const;
    // The node's extent in its own object space.
    MBoundingBox boundingBox(MStatus* ReturnStatus = NULL) const;
};

OPENMAYA_NAMESPACE_CLOSE
