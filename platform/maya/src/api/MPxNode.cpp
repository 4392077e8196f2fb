#include <maya/MPxNode.h>

#include <algorithm>

#include "../HostState.h"

using namespace mayahost::detail;

namespace {

NodeObj* hostNode(Object* object) { return object ? object->asNode() : nullptr; }

bool ownedByInitializingType(const AttributeObj* attribute) {
    return attribute && attribute->owner && attribute->owner == state().initializing;
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MPxNode::MPxNode() : fNode(nullptr) {}
MPxNode::~MPxNode() = default;

void MPxNode::postConstructor() {}

MStatus MPxNode::compute(const MPlug&, MDataBlock&) { return MStatus::kUnknownParameter; }

MStatus MPxNode::setDependentsDirty(const MPlug&, MPlugArray&) { return MStatus::kSuccess; }

MPxNode::Type MPxNode::type() const { return kDependNode; }

MTypeId MPxNode::typeId() const {
    NodeObj* node = hostNode(fNode);
    return node ? MTypeId(node->type->id) : MTypeId();
}

MString MPxNode::typeName() const {
    NodeObj* node = hostNode(fNode);
    return node ? MString(node->type->name.c_str()) : MString();
}

MString MPxNode::name() const {
    NodeObj* node = hostNode(fNode);
    return node ? MString(node->name.c_str()) : MString();
}

MObject MPxNode::thisMObject() const { return Access::handle(fNode); }

MStatus MPxNode::addAttribute(const MObject& attr) {
    HostState& host = state();
    if (nextCallFails(host.addAttributeCalls, host.faults.addAttribute)) return MStatus::kFailure;
    NodeType* type = host.initializing;
    AttributeObj* attribute = attributeOf(attr);
    if (!type || !attribute) {
        diagnose(
            "addAttribute: called outside a node type's attribute initialiser or with no "
            "attribute");
        return MStatus::kFailure;
    }
    if (attribute->owner || attribute->dynamicOwner) {
        diagnose("addAttribute: \"" + attribute->longName + "\" already belongs to a node type");
        return MStatus::kFailure;
    }
    if (type->findAttribute(attribute->longName) || type->findAttribute(attribute->shortName)) {
        diagnose("addAttribute: \"" + type->name + "\" already has an attribute named \"" +
                 attribute->longName + "\" or \"" + attribute->shortName + "\"");
        return MStatus::kFailure;
    }
    attribute->owner = type;
    attribute->slotIndex = type->attributes.size();
    type->attributes.push_back(attr);
    return MStatus::kSuccess;
}

MStatus MPxNode::attributeAffects(const MObject& whenChanges, const MObject& isAffected) {
    HostState& host = state();
    if (nextCallFails(host.attributeAffectsCalls, host.faults.attributeAffects))
        return MStatus::kFailure;
    AttributeObj* cause = attributeOf(whenChanges);
    AttributeObj* effect = attributeOf(isAffected);
    if (!ownedByInitializingType(cause) || !ownedByInitializingType(effect)) {
        diagnose("attributeAffects: both attributes must be added to the type being initialised");
        return MStatus::kFailure;
    }
    if (std::find(cause->affects.begin(), cause->affects.end(), effect) == cause->affects.end()) {
        cause->affects.push_back(effect);
        effect->affectedBy.push_back(cause);
    }
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
