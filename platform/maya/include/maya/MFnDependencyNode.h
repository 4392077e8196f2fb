#pragma once
#include <maya/MFnBase.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

OPENMAYA_NAMESPACE_OPEN

// Binding succeeds only for a node of the scene; an unbound function set answers every query
// with an empty result and kInvalidParameter.
class OPENMAYA_EXPORT MFnDependencyNode : public MFnBase {
public:
    MFnDependencyNode();
    MFnDependencyNode(MObject& object, MStatus* ReturnStatus = NULL);
    ~MFnDependencyNode() override;

    MTypeId typeId(MStatus* ReturnStatus = NULL) const;
    MString typeName(MStatus* ReturnStatus = NULL) const;
    MString name(MStatus* ReturnStatus = NULL) const;
    MPxNode* userNode(MStatus* ReturnStatus = NULL) const;
    MPlug findPlug(const MObject& attr, bool wantNetworkedPlug, MStatus* ReturnStatus = NULL) const;
    MPlug findPlug(const MString& attrName, bool wantNetworkedPlug,
                   MStatus* ReturnStatus = NULL) const;
    // Adds a dynamic attribute to this node alone.
    MStatus addAttribute(const MObject& attr);
};

OPENMAYA_NAMESPACE_CLOSE
