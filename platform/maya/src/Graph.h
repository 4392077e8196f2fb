#pragma once
// Pull evaluation and dirty propagation over the host's nodes and connections.
#include "HostState.h"

namespace mayahost {
namespace detail {

// The attribute's current value, computing or pulling it through a connection when dirty.
Value& evaluate(NodeObj& node, const AttributeObj& attribute);
// Stores a new value set from outside and dirties everything downstream of it.
void assign(NodeObj& node, const AttributeObj& attribute, const Value& value);
void markDirty(NodeObj& node, const AttributeObj& attribute);
void markClean(NodeObj& node, const AttributeObj& attribute);
const Connection* incomingConnection(const NodeObj& node, const AttributeObj& attribute);
// Positions in the connection list of the connections from this plug, in the order made.
const std::vector<size_t>& outgoingConnections(const NodeObj& node, const AttributeObj& attribute);
void addConnection(const Connection& connection);
// To be called whenever connections leave the list.
void connectionsRemoved();
MStatus computePlug(NodeObj& node, const AttributeObj& attribute);

}  // namespace detail
}  // namespace mayahost
