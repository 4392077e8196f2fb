#pragma once
#include <string>
#include <vector>

#include "Object.h"
#include "Value.h"

namespace mayahost {
namespace detail {

struct NodeObj;
struct NodeType;

enum class AttributeKind { Numeric, Typed, Unit };

struct AttributeObj : Object {
    AttributeObj* asAttribute() override { return this; }

    std::string longName;
    std::string shortName;
    AttributeKind kind = AttributeKind::Numeric;
    int numericType = 0;      // MFnNumericData::Type for numeric attributes
    int dataType = 0;         // MFnData::Type for typed attributes
    unsigned int typeId = 0;  // user data type id for typed attributes of plug-in data
    int unitType = 0;         // MFnUnitAttribute::Type for unit attributes
    Value defaultValue;

    // Maya's defaults for a new attribute.
    bool readable = true;
    bool writable = true;
    bool storable = true;
    bool keyable = false;
    bool hidden = false;
    bool array = false;
    bool affectsWorldSpace = false;

    NodeType* owner = nullptr;  // set when added to a node type
    size_t slotIndex = 0;       // its place among its type's, or its node's dynamic, attributes
    const NodeObj* dynamicOwner = nullptr;  // set when added to one node as a dynamic attribute
    std::vector<AttributeObj*> affects;
    std::vector<AttributeObj*> affectedBy;

    bool isComputed() const { return !affectedBy.empty(); }
    bool isNamed(const std::string& name) const { return name == longName || name == shortName; }
};

}  // namespace detail
}  // namespace mayahost
