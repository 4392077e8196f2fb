#include <mayahost/Host.h>

#include <maya/MPxSurfaceShape.h>

#include <algorithm>

#include "BuiltinTypes.h"
#include "DataObj.h"
#include "Dag.h"
#include "Graph.h"
#include "Names.h"
#include "UnknownNodes.h"

namespace mayahost {
namespace detail {
void unloadAllPlugins();
}  // namespace detail

using namespace detail;

namespace {

void setError(std::string* error, const std::string& text) {
    if (error) *error = text;
}

NodeTypeInfo describe(const NodeType& type) {
    NodeTypeInfo info;
    info.name = type.name;
    info.id = type.id;
    info.classification = type.classification;
    info.isShape = type.isShape;
    info.hasUICreator = type.uiCreator != nullptr;
    info.pluginPath = type.plugin ? type.plugin->path : "";
    for (const MObject& handle : type.attributes)
        info.attributes.push_back(attributeOf(handle)->longName);
    return info;
}

AttributeInfo describe(const AttributeObj& a) {
    AttributeInfo info;
    info.longName = a.longName;
    info.shortName = a.shortName;
    info.kind = static_cast<mayahost::AttributeKind>(a.kind);
    info.numericType = a.numericType;
    info.dataType = a.dataType;
    info.typeId = a.typeId;
    info.unitType = a.unitType;
    info.defaultNumber = a.defaultValue.d;
    info.defaultAddr = a.defaultValue.addr;
    info.defaultString = a.defaultValue.str.asChar();
    info.hasDefaultData = !a.defaultValue.data.isNull();
    info.readable = a.readable;
    info.writable = a.writable;
    info.storable = a.storable;
    info.keyable = a.keyable;
    info.hidden = a.hidden;
    info.array = a.array;
    info.affectsWorldSpace = a.affectsWorldSpace;
    return info;
}

NodeObj* makeNode(NodeType& type, const std::string& name, NodeObj* parent) {
    auto* node = new NodeObj;
    retain(node);
    node->type = &type;
    node->name = freeName(name, type.name, type.isDag ? parent : nullptr);
    state().nodes.push_back(node);
    addName(*node);
    if (type.name == "time") state().timeNodes.push_back(node);
    if (type.isDag) setParent(*node, parent);
    if (type.creator) {
        node->user = static_cast<MPxNode*>(type.creator());
        Access::bind(*node->user, node);
        node->user->postConstructor();
    }
    if (type.uiCreator) {
        node->ui = static_cast<MPxSurfaceShapeUI*>(type.uiCreator());
        Access::bind(*node->ui, static_cast<MPxSurfaceShape*>(node->user));
    }
    return node;
}

struct PlugParts {
    NodeObj* node;
    AttributeObj* attribute;
};

bool partsOf(const MPlug& plug, PlugParts* parts) {
    parts->node = nodeOf(plug.node());
    parts->attribute = attributeOf(plug.attribute());
    return parts->node && parts->attribute && parts->node->has(*parts->attribute);
}

bool sameData(const AttributeObj& a, const AttributeObj& b) {
    using Kind = detail::AttributeKind;
    if (a.kind != b.kind) return a.kind != Kind::Typed && b.kind != Kind::Typed;
    if (a.kind == Kind::Typed) return a.dataType == b.dataType && a.typeId == b.typeId;
    return true;
}

bool dataTypeKnown(const AttributeObj& attribute) {
    return attribute.kind != detail::AttributeKind::Typed || attribute.typeId == 0 ||
           findDataType(attribute.typeId) != nullptr;
}

// "node.attribute" as MEL writes it.
MPlug plugNamed(const std::string& name, std::string* error) {
    const std::size_t dot = name.find('.');
    MPlug plug;
    if (dot != std::string::npos)
        plug = findPlug(findNode(name.substr(0, dot)), name.substr(dot + 1));
    if (plug.isNull()) setError(error, "no plug named \"" + name + "\"");
    return plug;
}

std::string plugName(const PlugParts& p) { return p.node->name + "." + p.attribute->longName; }

}  // namespace

void reset() {
    HostState& host = state();
    host.faults = Faults();
    // Everything goes, so the connections go at once and the nodes last made first, while the
    // plug-ins that made them are still loaded.
    host.connections.clear();
    connectionsRemoved();
    // Last made first, which is mostly a leaf; a node's DAG children go with it wherever they are.
    while (!host.nodes.empty()) destroyNode(host.nodes.back());
    unloadAllPlugins();
    host.nodeTypes.clear();
    host.dataTypes.clear();
    host.messages.clear();
    host.diagnostics.clear();
    host.addAttributeCalls = 0;
    host.attributeAffectsCalls = 0;
    host.initializing = nullptr;
    MTime::setUIUnit(MTime::kFilm);
    host.currentTime = MTime(1.0, MTime::kFilm);
    host.uiUnits = UiUnits();
    startHost();
}

bool findNodeType(const std::string& name, NodeTypeInfo* info) {
    NodeType* type = findType(name);
    if (type && info) *info = describe(*type);
    return type != nullptr;
}

bool findNodeTypeById(unsigned int id, NodeTypeInfo* info) {
    NodeType* type = findType(id);
    if (type && info) *info = describe(*type);
    return type != nullptr;
}

bool findDataTypeById(unsigned int id, DataTypeInfo* info) {
    DataType* type = findDataType(id);
    if (type && info)
        *info = DataTypeInfo{type->name, type->id, type->plugin ? type->plugin->path : ""};
    return type != nullptr;
}

bool findAttribute(const std::string& typeName, const std::string& attribute, AttributeInfo* info) {
    NodeType* type = findType(typeName);
    AttributeObj* found = type ? type->findAttribute(attribute) : nullptr;
    if (found && info) *info = describe(*found);
    return found != nullptr;
}

std::vector<std::pair<std::string, std::string>> attributeAffects(const std::string& typeName) {
    std::vector<std::pair<std::string, std::string>> pairs;
    NodeType* type = findType(typeName);
    if (!type) return pairs;
    for (const MObject& handle : type->attributes) {
        const AttributeObj* cause = attributeOf(handle);
        for (const AttributeObj* effect : cause->affects)
            pairs.emplace_back(cause->longName, effect->longName);
    }
    return pairs;
}

MObject createNode(const std::string& typeName, const std::string& name, std::string* error) {
    NodeType* type = findType(typeName);
    if (type && type->isDag && !type->isTransform) {
        MObject transform = createNode("transform", "", error);
        return createNode(typeName, name, transform, error);
    }
    return createNode(typeName, name, MObject(), error);
}

MObject createNode(const std::string& typeName, const std::string& name, const MObject& parent,
                   std::string* error) {
    NodeType* type = findType(typeName);
    if (!type) {
        setError(error, "unknown node type \"" + typeName + "\"");
        return MObject();
    }
    NodeObj* above = nodeOf(parent);
    if (above && type->isDag) becomeTransformIfUnknown(*above);
    if (!parent.isNull() && (!above || !above->type->isTransform || !type->isDag)) {
        setError(error, "createNode: a " + typeName + " cannot be placed under that parent");
        return MObject();
    }
    return Access::handle(makeNode(*type, name, above));
}

MStatus deleteNode(const MObject& handle) {
    NodeObj* node = nodeOf(handle);
    if (!node) return MStatus::kInvalidParameter;
    destroyNode(node);
    return MStatus::kSuccess;
}

MObject findNode(const std::string& name, std::string* error) {
    const std::vector<NodeObj*> found = nodesNamed(name);
    if (found.size() == 1) return Access::handle(found[0]);
    // Maya's own words, which a scene's author will recognise.
    setError(error,
             (found.empty() ? "No object matches name: " : "More than one object matches name: ") +
                 name);
    return MObject();
}

std::string uniquePathName(const MObject& handle) {
    NodeObj* node = nodeOf(handle);
    return node ? partialPathName(*node) : std::string();
}

std::string nodeName(const MObject& handle) {
    NodeObj* node = nodeOf(handle);
    return node ? node->name : std::string();
}

MPxNode* userNode(const MObject& handle) {
    NodeObj* node = nodeOf(handle);
    return node ? node->user : nullptr;
}

MPlug findPlug(const MObject& handle, const std::string& attribute) {
    NodeObj* node = nodeOf(handle);
    AttributeObj* found = node ? node->findAttribute(attribute) : nullptr;
    if (!found) return MPlug();
    return MPlug(handle, Access::handle(found));
}

MStatus compute(const MPlug& plug) {
    PlugParts parts;
    if (!partsOf(plug, &parts)) return MStatus::kInvalidParameter;
    return computePlug(*parts.node, *parts.attribute);
}

MStatus connect(const MPlug& source, const MPlug& destination, std::string* error) {
    PlugParts from, to;
    if (!partsOf(source, &from) || !partsOf(destination, &to)) {
        setError(error, "connect: both plugs must be attributes of existing nodes");
        return MStatus::kInvalidParameter;
    }
    if (!from.attribute->readable) {
        setError(error, "connect: " + plugName(from) + " is not readable");
        return MStatus::kFailure;
    }
    if (!to.attribute->writable) {
        setError(error, "connect: " + plugName(to) + " is not writable");
        return MStatus::kFailure;
    }
    if (!sameData(*from.attribute, *to.attribute)) {
        setError(error, "connect: " + plugName(from) + " and " + plugName(to) +
                            " carry different kinds of data");
        return MStatus::kFailure;
    }
    if (!dataTypeKnown(*to.attribute)) {
        setError(error, "connect: the data type of " + plugName(to) + " is not registered");
        return MStatus::kFailure;
    }
    if (incomingConnection(*to.node, *to.attribute)) {
        setError(error, "connect: " + plugName(to) + " already has an incoming connection");
        return MStatus::kFailure;
    }
    addConnection(Connection{from.node, from.attribute, to.node, to.attribute});
    markClean(*to.node, *to.attribute);
    markDirty(*to.node, *to.attribute);
    return MStatus::kSuccess;
}

MStatus disconnect(const MPlug& source, const MPlug& destination, std::string* error) {
    PlugParts from, to;
    if (!partsOf(source, &from) || !partsOf(destination, &to)) {
        setError(error, "disconnect: both plugs must be attributes of existing nodes");
        return MStatus::kInvalidParameter;
    }
    auto& connections = state().connections;
    auto found = std::find_if(connections.begin(), connections.end(), [&](const Connection& c) {
        return c.sourceNode == from.node && c.sourceAttribute == from.attribute &&
               c.destinationNode == to.node && c.destinationAttribute == to.attribute;
    });
    if (found == connections.end()) {
        setError(error, "disconnect: " + plugName(from) + " is not connected to " + plugName(to));
        return MStatus::kFailure;
    }
    connections.erase(found);
    connectionsRemoved();
    // The destination keeps the last value it received, as in Maya.
    const Value last = to.node->slot(*to.attribute).value;
    assign(*to.node, *to.attribute, last);
    return MStatus::kSuccess;
}

MStatus connectAttr(const std::string& source, const std::string& destination, std::string* error) {
    const MPlug from = plugNamed(source, error);
    const MPlug to = plugNamed(destination, error);
    if (from.isNull() || to.isNull()) return MStatus::kInvalidParameter;
    return connect(from, to, error);
}

MStatus disconnectAttr(const std::string& source, const std::string& destination,
                       std::string* error) {
    const MPlug from = plugNamed(source, error);
    const MPlug to = plugNamed(destination, error);
    if (from.isNull() || to.isNull()) return MStatus::kInvalidParameter;
    return disconnect(from, to, error);
}

void setCurrentTime(const MTime& time) {
    HostState& host = state();
    host.currentTime = time;
    Value value;
    value.setTime(MTime(time.as(MTime::uiUnit()), MTime::uiUnit()));
    for (NodeObj* node : std::vector<NodeObj*>(host.timeNodes)) {
        if (const AttributeObj* outTime = node->findAttribute("outTime"))
            assign(*node, *outTime, value);
    }
}
MTime currentTime() { return state().currentTime; }

std::vector<Message> messages() { return state().messages; }
void clearMessages() { state().messages.clear(); }
std::vector<std::string> diagnostics() { return state().diagnostics; }

void setFaults(const Faults& faults) {
    HostState& host = state();
    host.faults = faults;
    host.addAttributeCalls = 0;
    host.attributeAffectsCalls = 0;
}

void setUiUnits(const UiUnits& units) { state().uiUnits = units; }

UiUnits uiUnits() { return state().uiUnits; }

}  // namespace mayahost
