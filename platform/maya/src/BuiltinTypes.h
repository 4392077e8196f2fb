#pragma once
// Maya's own node types that every scene has, and the nodes a new scene starts with.

#include "Attribute.h"

namespace mayahost {
namespace detail {

struct NodeType;

// Registers one of Maya's own node types, without attributes.
NodeType& addType(const char* name, unsigned int id);

// Adds a static attribute to one of Maya's own types.
AttributeObj& addAttribute(NodeType& type, const char* longName, const char* shortName,
                           AttributeKind kind);
// Declares that a change of cause dirties effect, which the type then computes.
void addAffects(AttributeObj& cause, AttributeObj& effect);
// A keyable double with its default.
void addDouble(NodeType& type, const char* longName, const char* shortName, double value);

// Registers "transform", "time", "mesh" and the unknown node types, and creates "time1" at the
// current time.
void startHost();

}  // namespace detail
}  // namespace mayahost
