#pragma once
// Maya's own node types that every scene has, and the nodes a new scene starts with.

namespace mayahost {
namespace detail {

struct NodeType;

// Registers one of Maya's own node types, without attributes.
NodeType& addType(const char* name, unsigned int id);

// Registers "transform", "time", "mesh" and the unknown node types, and creates "time1" at the
// current time.
void startHost();

}  // namespace detail
}  // namespace mayahost
