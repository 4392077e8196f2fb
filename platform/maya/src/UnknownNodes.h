#pragma once
// Maya's stand-ins for nodes of types it does not know, and what the host keeps of attributes it
// does not model.
#include "Node.h"

namespace mayahost {
namespace detail {

// Registers "unknown", "unknownDag" and "unknownTransform".
void addUnknownTypes();
// An unknown node that something is placed under is a transform from then on, as in Maya.
void becomeTransformIfUnknown(NodeObj& node);

}  // namespace detail
}  // namespace mayahost
