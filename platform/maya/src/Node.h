#pragma once
#include <maya/MPxNode.h>

#include <string>
#include <unordered_map>

#include "Attribute.h"
#include "NodeType.h"

namespace mayahost {
namespace detail {

struct Slot {
    Value value;
    bool dirty = false;
    bool evaluating = false;
};

struct NodeObj : Object {
    NodeType* type = nullptr;
    std::string name;
    MPxNode* user = nullptr;  // the plug-in's node object; null for the host's own node types
    bool alive = true;
    std::unordered_map<const AttributeObj*, Slot> slots;

    Slot& slot(const AttributeObj& attribute);
};

}  // namespace detail
}  // namespace mayahost
