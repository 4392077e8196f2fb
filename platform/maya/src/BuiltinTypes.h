#pragma once
// Maya's own node types that every scene has, and the nodes a new scene starts with.

namespace mayahost {
namespace detail {

// Registers "transform", "time", "mesh" and the unknown node types, and creates "time1" at the current time.
void startHost();

}  // namespace detail
}  // namespace mayahost
