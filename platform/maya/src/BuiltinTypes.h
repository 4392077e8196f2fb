#pragma once
// Maya's own node types that every scene has, and the nodes a new scene starts with.

namespace mayahost {
namespace detail {

// Registers "transform", "time" and "mesh" and creates "time1" at the current time.
void startHost();

}  // namespace detail
}  // namespace mayahost
