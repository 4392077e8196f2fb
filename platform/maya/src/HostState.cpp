#include "HostState.h"

#include <algorithm>

#include "BuiltinTypes.h"
#include "Dag.h"
#include "Graph.h"
#include "Names.h"

namespace mayahost {
namespace detail {

HostState& state() {
    static HostState* instance = new HostState;  // outlives plug-ins unloaded at exit
    if (!instance->started) {
        instance->started = true;  // set first: starting the host calls back in here
        startHost();
    }
    return *instance;
}

NodeType* findType(const std::string& name) {
    for (auto& type : state().nodeTypes)
        if (type->name == name) return type.get();
    return nullptr;
}

NodeType* findType(unsigned int id) {
    for (auto& type : state().nodeTypes)
        if (type->id == id) return type.get();
    return nullptr;
}

DataType* findDataType(const std::string& name) {
    for (DataType& type : state().dataTypes)
        if (type.name == name) return &type;
    return nullptr;
}

DataType* findDataType(unsigned int id) {
    for (DataType& type : state().dataTypes)
        if (type.id == id) return &type;
    return nullptr;
}

NodeObj* nodeOf(const MObject& handle) {
    Object* object = Access::object(handle);
    NodeObj* node = object ? object->asNode() : nullptr;
    return node && node->alive ? node : nullptr;
}

AttributeObj* attributeOf(const MObject& handle) {
    Object* object = Access::object(handle);
    return object ? object->asAttribute() : nullptr;
}

AttributeObj* NodeType::findAttribute(const std::string& attributeName) const {
    for (const MObject& handle : attributes) {
        AttributeObj* attribute = attributeOf(handle);
        if (attribute->isNamed(attributeName)) return attribute;
    }
    return nullptr;
}

Slot& NodeObj::storage(const AttributeObj& attribute) {
    if (attribute.owner == type) {
        if (slots.size() < type->attributes.size()) slots.resize(type->attributes.size());
        return slots[attribute.slotIndex];
    }
    if (attribute.dynamicOwner == this) {
        if (dynamicSlots.size() < dynamicAttributes.size())
            dynamicSlots.resize(dynamicAttributes.size());
        return dynamicSlots[attribute.slotIndex];
    }
    return strays[&attribute];
}

const Slot* NodeObj::laidOut(const AttributeObj& attribute) const {
    if (attribute.owner == type)
        return attribute.slotIndex < slots.size() ? &slots[attribute.slotIndex] : nullptr;
    if (attribute.dynamicOwner == this)
        return attribute.slotIndex < dynamicSlots.size() ? &dynamicSlots[attribute.slotIndex]
                                                         : nullptr;
    const auto found = strays.find(&attribute);
    return found == strays.end() ? nullptr : &found->second;
}

Slot& NodeObj::slot(const AttributeObj& attribute) {
    Slot* slot = &storage(attribute);
    if (!slot->made) {
        slot->made = true;
        slot->value = attribute.defaultValue;
        slot->dirty = attribute.isComputed();
    }
    return *slot;
}

AttributeObj* NodeObj::findAttribute(const std::string& attributeName) const {
    if (AttributeObj* found = type->findAttribute(attributeName)) return found;
    for (const MObject& handle : dynamicAttributes) {
        AttributeObj* attribute = attributeOf(handle);
        if (attribute->isNamed(attributeName)) return attribute;
    }
    return nullptr;
}

bool NodeObj::has(const AttributeObj& attribute) const {
    return attribute.owner == type || attribute.dynamicOwner == this;
}

void diagnose(const std::string& text) { state().diagnostics.push_back(text); }

bool nextCallFails(int& counter, const std::set<int>& failing) {
    ++counter;
    return failing.count(counter) != 0;
}

void destroyNode(NodeObj* node) {
    while (!node->children.empty()) destroyNode(node->children.back());
    detachFromParent(*node);
    HostState& host = state();
    auto& connections = host.connections;
    connections.erase(std::remove_if(connections.begin(), connections.end(),
                                     [node](const Connection& c) {
                                         return c.sourceNode == node || c.destinationNode == node;
                                     }),
                      connections.end());
    connectionsRemoved();
    if (!host.nodes.empty() && host.nodes.back() == node)
        host.nodes.pop_back();  // the usual case when a whole scene goes, last made first
    else
        host.nodes.erase(std::remove(host.nodes.begin(), host.nodes.end(), node), host.nodes.end());
    removeName(*node);
    auto& kept = host.keptConnections;
    kept.erase(std::remove_if(kept.begin(), kept.end(),
                              [node](const KeptConnectionObj& c) {
                                  return c.sourceNode == node || c.destinationNode == node;
                              }),
               kept.end());
    auto& timeNodes = host.timeNodes;
    timeNodes.erase(std::remove(timeNodes.begin(), timeNodes.end(), node), timeNodes.end());
    delete node->ui;  // the viewport object goes before the shape it refers to
    node->ui = nullptr;
    MPxNode* user = node->user;
    node->user = nullptr;
    node->alive = false;
    delete user;
    // Values may hold data made by the plug-in; they must go while its code is loaded.
    node->slots.clear();
    node->dynamicSlots.clear();
    node->strays.clear();
    node->unmodelled.reset();
    for (const MObject& handle : node->dynamicAttributes)
        attributeOf(handle)->dynamicOwner = nullptr;
    node->dynamicAttributes.clear();
    release(node);
}

bool removeType(NodeType* type) {
    HostState& host = state();
    for (NodeObj* node : host.nodes)
        if (node->type == type) return false;
    for (const MObject& handle : type->attributes) {
        AttributeObj* attribute = attributeOf(handle);
        attribute->owner = nullptr;
        attribute->affects.clear();
        attribute->affectedBy.clear();
    }
    auto& types = host.nodeTypes;
    types.erase(
        std::remove_if(types.begin(), types.end(),
                       [type](const std::unique_ptr<NodeType>& t) { return t.get() == type; }),
        types.end());
    return true;
}

}  // namespace detail
}  // namespace mayahost
