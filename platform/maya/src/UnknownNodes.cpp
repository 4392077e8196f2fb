#include "UnknownNodes.h"

#include <mayahost/Host.h>

#include <algorithm>
#include <memory>

#include "BuiltinTypes.h"
#include "Dag.h"
#include "HostState.h"
#include "Names.h"

namespace mayahost {
namespace detail {
namespace {

// Four-character ids, in the style of Maya's built-in types, outside the plug-in id ranges.
const unsigned int kUnknownId = 0x554e4b4e;           // 'UNKN'
const unsigned int kUnknownDagId = 0x554e4b44;        // 'UNKD'
const unsigned int kUnknownTransformId = 0x554e4b54;  // 'UNKT'

void addUnknownType(const char* name, unsigned int id, bool dag, bool transform) {
    NodeType& type = addType(name, id);
    type.isDag = dag;
    type.isTransform = transform;
    type.isUnknown = true;
}

// The attributes Maya's abstract node types give every node, DAG node or shape, which scene
// files set on plug-in nodes too (hidden shapes, display overrides, render flags).
enum class Scope { AnyNode, DagNode, Shape };

const struct {
    Scope scope;
    const char* shortName;
    const char* longName;
} kInheritedAttributes[] = {
    {Scope::AnyNode, "msg", "message"},
    {Scope::AnyNode, "cch", "caching"},
    {Scope::AnyNode, "fzn", "frozen"},
    {Scope::AnyNode, "ihi", "isHistoricallyInteresting"},
    {Scope::AnyNode, "nds", "nodeState"},
    {Scope::AnyNode, "bnm", "binMembership"},
    {Scope::DagNode, "v", "visibility"},
    {Scope::DagNode, "tmp", "template"},
    {Scope::DagNode, "io", "intermediateObject"},
    {Scope::DagNode, "lod", "lodVisibility"},
    {Scope::DagNode, "lodv", "lodVisibility"},
    {Scope::DagNode, "gh", "ghosting"},
    {Scope::DagNode, "iog", "instObjGroups"},
    {Scope::DagNode, "uoc", "useObjectColor"},
    {Scope::DagNode, "oc", "objectColor"},
    {Scope::DagNode, "obcc", "objectColorRGB"},
    {Scope::DagNode, "wfcc", "wireColorRGB"},
    {Scope::DagNode, "do", "drawOverride"},
    {Scope::DagNode, "ovdt", "overrideDisplayType"},
    {Scope::DagNode, "ovlod", "overrideLevelOfDetail"},
    {Scope::DagNode, "ovs", "overrideShading"},
    {Scope::DagNode, "ovt", "overrideTexturing"},
    {Scope::DagNode, "ovp", "overridePlayback"},
    {Scope::DagNode, "ove", "overrideEnabled"},
    {Scope::DagNode, "ovv", "overrideVisibility"},
    {Scope::DagNode, "hpb", "hideOnPlayback"},
    {Scope::DagNode, "ovrgbf", "overrideRGBColors"},
    {Scope::DagNode, "ovc", "overrideColor"},
    {Scope::DagNode, "ovrgb", "overrideColorRGB"},
    {Scope::DagNode, "ri", "renderInfo"},
    {Scope::DagNode, "rlio", "renderLayerInfo"},
    {Scope::DagNode, "hio", "hiddenInOutliner"},
    {Scope::DagNode, "uocol", "useOutlinerColor"},
    {Scope::DagNode, "oclr", "outlinerColor"},
    {Scope::DagNode, "sech", "selectionChildHighlighting"},
    {Scope::Shape, "ciog", "compInstObjGroups"},
    {Scope::Shape, "csh", "castsShadows"},
    {Scope::Shape, "rcsh", "receiveShadows"},
    {Scope::Shape, "vis", "primaryVisibility"},
    {Scope::Shape, "vir", "visibleInReflections"},
    {Scope::Shape, "vif", "visibleInRefractions"},
    {Scope::Shape, "mb", "motionBlur"},
    {Scope::Shape, "smo", "smoothShading"},
    {Scope::Shape, "ds", "doubleSided"},
    {Scope::Shape, "op", "opposite"},
    {Scope::Shape, "hot", "holdOut"},
    {Scope::Shape, "iss", "ignoreSelfShadowing"},
};

bool inheritedFromMaya(const NodeType& type, const std::string& attribute) {
    for (const auto& entry : kInheritedAttributes) {
        const bool applies = entry.scope == Scope::AnyNode ||
                             (entry.scope == Scope::DagNode && type.isDag) ||
                             (entry.scope == Scope::Shape && type.isShape);
        if (applies && (attribute == entry.shortName || attribute == entry.longName)) return true;
    }
    return false;
}

// ".iog[0].og[0].gcl" belongs to "iog".
std::string rootAttribute(const std::string& attribute) {
    return attribute.substr(0, attribute.find_first_of("[."));
}

Unmodelled& unmodelledOf(NodeObj& node) {
    if (!node.unmodelled) node.unmodelled = std::make_unique<Unmodelled>();
    return *node.unmodelled;
}

bool keeps(const NodeObj& node, const std::string& attribute) {
    if (node.type->isUnknown || !node.type->plugin) return true;
    const std::string root = rootAttribute(attribute);
    if (node.unmodelled) {
        const auto& added = node.unmodelled->addedAttributes;
        if (std::find(added.begin(), added.end(), root) != added.end()) return true;
    }
    return inheritedFromMaya(*node.type, root);
}

// An end of a connection: an attribute the node models, or one it keeps.
bool connectable(const NodeObj& node, const std::string& attribute) {
    return node.findAttribute(attribute) || keeps(node, attribute);
}

std::string endName(const NodeObj& node, const std::string& attribute) {
    return partialPathName(node) + "." + attribute;
}

void setError(std::string* error, const std::string& text) {
    if (error) *error = text;
}

bool isAbove(const NodeObj& node, const NodeObj* below) {
    for (const NodeObj* at = below; at; at = at->parent)
        if (at == &node) return true;
    return false;
}

}  // namespace

void addUnknownTypes() {
    addUnknownType("unknown", kUnknownId, false, false);
    addUnknownType("unknownDag", kUnknownDagId, true, false);
    addUnknownType("unknownTransform", kUnknownTransformId, true, true);
}

void becomeTransformIfUnknown(NodeObj& node) {
    if (node.type->isUnknown && !node.type->isTransform) node.type = findType("unknownTransform");
}

}  // namespace detail

using namespace detail;

MObject createUnknownNode(const std::string& realType, const std::string& name,
                          const MObject& parent, std::string* error) {
    const MObject node =
        createNode(parent.isNull() ? "unknown" : "unknownDag", name, parent, error);
    if (NodeObj* created = nodeOf(node)) unmodelledOf(*created).realType = realType;
    return node;
}

std::string realTypeName(const MObject& handle) {
    const NodeObj* node = nodeOf(handle);
    if (!node) return "";
    return node->type->isUnknown && node->unmodelled ? node->unmodelled->realType
                                                     : node->type->name;
}

MStatus parentNode(const MObject& childHandle, const MObject& parentHandle, std::string* error) {
    NodeObj* child = nodeOf(childHandle);
    NodeObj* parent = nodeOf(parentHandle);
    if (!child || !child->type->isDag || (!parentHandle.isNull() && !parent)) {
        setError(error, "parent: only a DAG node can be placed under a transform");
        return MStatus::kInvalidParameter;
    }
    if (parent) becomeTransformIfUnknown(*parent);
    if (parent && (!parent->type->isTransform || isAbove(*child, parent))) {
        setError(error, "parent: " + partialPathName(*child) + " cannot be placed under " +
                            partialPathName(*parent));
        return MStatus::kFailure;
    }
    removeName(*child);
    child->name = freeName(child->name, child->type->name, parent);
    addName(*child);
    setParent(*child, parent);
    return MStatus::kSuccess;
}

bool keepsAttribute(const MObject& handle, const std::string& attribute) {
    const NodeObj* node = nodeOf(handle);
    return node && !attribute.empty() && keeps(*node, attribute);
}

MStatus addKeptAttribute(const MObject& handle, const std::string& longName,
                         const std::string& shortName) {
    NodeObj* node = nodeOf(handle);
    if (!node || longName.empty()) return MStatus::kInvalidParameter;
    auto& added = unmodelledOf(*node).addedAttributes;
    added.push_back(longName);
    if (!shortName.empty()) added.push_back(shortName);
    return MStatus::kSuccess;
}

bool keepValue(const MObject& handle, const std::string& attribute, const std::string& text) {
    NodeObj* node = nodeOf(handle);
    if (!node || attribute.empty() || node->findAttribute(attribute) || !keeps(*node, attribute))
        return false;
    auto& values = unmodelledOf(*node).values;
    for (auto& value : values) {
        if (value.first == attribute) {
            value.second = text;
            return true;
        }
    }
    values.emplace_back(attribute, text);
    return true;
}

bool keptValue(const MObject& handle, const std::string& attribute, std::string* text) {
    const NodeObj* node = nodeOf(handle);
    if (!node || !node->unmodelled) return false;
    for (const auto& value : node->unmodelled->values) {
        if (value.first != attribute) continue;
        if (text) *text = value.second;
        return true;
    }
    return false;
}

MStatus keepConnection(const MObject& sourceHandle, const std::string& sourceAttribute,
                       const MObject& destinationHandle, const std::string& destinationAttribute,
                       std::string* error) {
    NodeObj* source = nodeOf(sourceHandle);
    NodeObj* destination = nodeOf(destinationHandle);
    if (!source || !destination) {
        setError(error, "connect: both ends must be existing nodes");
        return MStatus::kInvalidParameter;
    }
    for (const auto& end : {std::make_pair(source, &sourceAttribute),
                            std::make_pair(destination, &destinationAttribute)}) {
        if (!connectable(*end.first, *end.second)) {
            setError(error, "connect: no attribute " + endName(*end.first, *end.second));
            return MStatus::kInvalidParameter;
        }
    }
    state().keptConnections.push_back(
        KeptConnectionObj{source, sourceAttribute, destination, destinationAttribute});
    return MStatus::kSuccess;
}

std::vector<KeptConnection> keptConnections(const MObject& handle) {
    std::vector<KeptConnection> found;
    const NodeObj* node = nodeOf(handle);
    for (const KeptConnectionObj& c : state().keptConnections) {
        if (node && (c.sourceNode == node || c.destinationNode == node))
            found.push_back({endName(*c.sourceNode, c.sourceAttribute),
                             endName(*c.destinationNode, c.destinationAttribute)});
    }
    return found;
}

}  // namespace mayahost
