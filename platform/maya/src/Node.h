#pragma once
#include <maya/MPxNode.h>
#include <maya/MPxSurfaceShapeUI.h>
#include <mayahost/Host.h>

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "Attribute.h"
#include "NodeType.h"

namespace mayahost {
namespace detail {

// A place in the host's connection list; 32 bits keep the slots of large scenes compact.
using ConnectionPosition = std::uint32_t;
// Marks the end of a chain of connection positions, or a plug without one.
constexpr ConnectionPosition kNoConnection = UINT32_MAX;

struct Slot {
    Value value;
    bool dirty = false;
    bool made = false;  // holds the attribute's default, or a value set since
    bool evaluating = false;
    // Positions in the host's connection list, kept beside the value so that following a
    // connection touches only the nodes at its ends. The connections from this plug chain on
    // through Connection::nextFromSource, in the order they were made.
    ConnectionPosition incoming = kNoConnection;
    ConnectionPosition firstOutgoing = kNoConnection;
    ConnectionPosition lastOutgoing = kNoConnection;
};

// What the host keeps of a node without modelling it, as the scene wrote it: the type an unknown
// node stands for, the attributes the scene added, and values of attributes the host has no
// model of (a later value for the same attribute replaces the earlier one).
struct Unmodelled {
    std::string realType;
    std::vector<std::string> addedAttributes;  // long and short names
    std::vector<std::pair<std::string, std::string>> values;
};

// What every access through a handle or a plug reads comes first, with the reference count, so
// that it shares a cache line: a render walks thousands of nodes at each time step.
struct NodeObj : Object {
    NodeObj* asNode() override { return this; }

    bool alive = true;
    NodeType* type = nullptr;
    // Values by the attribute's place, made on first use. Each vector is sized once for its
    // attributes, so references to slots stay valid; scenes of thousands of nodes stay compact.
    std::vector<Slot> slots;
    MPxNode* user = nullptr;  // the plug-in's node object; null for the host's own types
    std::string name;
    MPxSurfaceShapeUI* ui = nullptr;  // the legacy viewport object of a plug-in shape
    NodeObj* parent = nullptr;        // DAG parent; null under the world
    std::vector<NodeObj*> children;   // DAG children, in the order they were parented
    std::vector<MObject> dynamicAttributes;
    MaterialSettings material;  // the shading assigned to a shape
    std::vector<Slot> dynamicSlots;
    std::unordered_map<const AttributeObj*, Slot> strays;  // attributes of no place here
    std::unique_ptr<Unmodelled> unmodelled;  // made when the node first keeps something

    // The attribute's slot, holding its default when first used.
    Slot& slot(const AttributeObj& attribute);
    // The same slot without making its value, for the connection positions alone.
    Slot& storage(const AttributeObj& attribute);
    // The slot if one has been laid out for the attribute; null before.
    const Slot* laidOut(const AttributeObj& attribute) const;
    // Static attributes of the type first, then the node's dynamic ones.
    AttributeObj* findAttribute(const std::string& name) const;
    bool has(const AttributeObj& attribute) const;
};

}  // namespace detail
}  // namespace mayahost
