#pragma once
#include <maya/MPxNode.h>
#include <maya/MPxSurfaceShapeUI.h>
#include <mayahost/Host.h>

#include <string>
#include <unordered_map>
#include <vector>

#include "Attribute.h"
#include "NodeType.h"

namespace mayahost {
namespace detail {

struct Slot {
    Value value;
    bool dirty = false;
    bool made = false;  // holds the attribute's default, or a value set since
    bool evaluating = false;
};

struct NodeObj : Object {
    NodeType* type = nullptr;
    std::string name;
    MPxNode* user = nullptr;          // the plug-in's node object; null for the host's own types
    MPxSurfaceShapeUI* ui = nullptr;  // the legacy viewport object of a plug-in shape
    bool alive = true;
    NodeObj* parent = nullptr;       // DAG parent; null under the world
    std::vector<NodeObj*> children;  // DAG children, in the order they were parented
    std::vector<MObject> dynamicAttributes;
    MaterialSettings material;  // the shading assigned to a shape
    // Values by the attribute's place, made on first use. Each vector is sized once for its
    // attributes, so references to slots stay valid; scenes of thousands of nodes stay compact.
    std::vector<Slot> slots;
    std::vector<Slot> dynamicSlots;
    std::unordered_map<const AttributeObj*, Slot> strays;  // attributes of no place here

    Slot& slot(const AttributeObj& attribute);
    // Static attributes of the type first, then the node's dynamic ones.
    AttributeObj* findAttribute(const std::string& name) const;
    bool has(const AttributeObj& attribute) const;
};

}  // namespace detail
}  // namespace mayahost
