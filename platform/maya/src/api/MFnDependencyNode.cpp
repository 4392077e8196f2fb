#include <maya/MDagPath.h>
#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MPlug.h>

#include "../Dag.h"
#include "../HostState.h"

using namespace mayahost::detail;

namespace {

void set(MStatus* target, MStatus value) {
    if (target) *target = value;
}

NodeObj* bound(const MObject& object, MStatus* ReturnStatus) {
    NodeObj* node = nodeOf(object);
    set(ReturnStatus, node ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return node;
}

// A function set keeps only what it may bind; anything else leaves it unbound.
MObject bindable(const MObject& object, bool dagOnly) {
    NodeObj* node = nodeOf(object);
    if (!node || (dagOnly && !node->type->isDag)) return MObject();
    return object;
}

MPlug plugOf(const MObject& node, AttributeObj* attribute, MStatus* ReturnStatus) {
    set(ReturnStatus, attribute ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return attribute ? MPlug(node, Access::handle(attribute)) : MPlug();
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MFnDependencyNode::MFnDependencyNode() = default;

MFnDependencyNode::MFnDependencyNode(MObject& object, MStatus* ReturnStatus) {
    *fObject = bindable(object, false);
    set(ReturnStatus, fObject->isNull() ? MStatus::kInvalidParameter : MStatus::kSuccess);
}

MFnDependencyNode::~MFnDependencyNode() = default;

MTypeId MFnDependencyNode::typeId(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    return node ? MTypeId(node->type->id) : MTypeId();
}

MString MFnDependencyNode::typeName(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    return node ? MString(node->type->name.c_str()) : MString();
}

MString MFnDependencyNode::name(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    return node ? MString(node->name.c_str()) : MString();
}

MPxNode* MFnDependencyNode::userNode(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    if (node && !node->user) set(ReturnStatus, MStatus::kInvalidParameter);
    return node ? node->user : nullptr;
}

MPlug MFnDependencyNode::findPlug(const MObject& attr, bool, MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    AttributeObj* attribute = attributeOf(attr);
    if (!node || !attribute || !node->has(*attribute))
        return plugOf(*fObject, nullptr, ReturnStatus);
    return plugOf(*fObject, attribute, ReturnStatus);
}

MPlug MFnDependencyNode::findPlug(const MString& attrName, bool, MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    if (!node) return MPlug();
    return plugOf(*fObject, node->findAttribute(attrName.asChar()), ReturnStatus);
}

MStatus MFnDependencyNode::addAttribute(const MObject& attr) {
    NodeObj* node = nodeOf(*fObject);
    AttributeObj* attribute = attributeOf(attr);
    if (!node || !attribute) return MStatus::kInvalidParameter;
    if (attribute->owner || attribute->dynamicOwner) {
        diagnose("addAttribute: \"" + attribute->longName + "\" already belongs elsewhere");
        return MStatus::kFailure;
    }
    if (node->findAttribute(attribute->longName) || node->findAttribute(attribute->shortName)) {
        diagnose("addAttribute: " + node->name + " already has an attribute named \"" +
                 attribute->longName + "\" or \"" + attribute->shortName + "\"");
        return MStatus::kFailure;
    }
    attribute->dynamicOwner = node;
    attribute->slotIndex = node->dynamicAttributes.size();
    node->dynamicAttributes.push_back(attr);
    return MStatus::kSuccess;
}

MFnDagNode::MFnDagNode() = default;

MFnDagNode::MFnDagNode(MObject& object, MStatus* ReturnStatus) {
    *fObject = bindable(object, true);
    set(ReturnStatus, fObject->isNull() ? MStatus::kInvalidParameter : MStatus::kSuccess);
}

MFnDagNode::MFnDagNode(const MDagPath& object, MStatus* ReturnStatus) {
    *fObject = bindable(object.node(), true);
    set(ReturnStatus, fObject->isNull() ? MStatus::kInvalidParameter : MStatus::kSuccess);
}

MFnDagNode::~MFnDagNode() = default;

unsigned int MFnDagNode::parentCount(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    return node && node->parent ? 1 : 0;
}

MObject MFnDagNode::parent(unsigned int i, MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    if (!node || !node->parent || i != 0) {
        set(ReturnStatus, MStatus::kInvalidParameter);
        return MObject();
    }
    return Access::handle(node->parent);
}

unsigned int MFnDagNode::childCount(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    return node ? static_cast<unsigned int>(node->children.size()) : 0;
}

MObject MFnDagNode::child(unsigned int i, MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    if (!node || i >= node->children.size()) {
        set(ReturnStatus, MStatus::kInvalidParameter);
        return MObject();
    }
    return Access::handle(node->children[i]);
}

MDagPath MFnDagNode::dagPath(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    return node ? Access::dagPath(node) : MDagPath();
}

MBoundingBox MFnDagNode::boundingBox(MStatus* ReturnStatus) const {
    NodeObj* node = bound(*fObject, ReturnStatus);
    return node ? objectBox(*node) : MBoundingBox();
}

OPENMAYA_NAMESPACE_CLOSE
