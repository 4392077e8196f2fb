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
// Position in the connection list of the first connection from this plug, or kNoConnection;
// the others follow through Connection::nextFromSource, in the order they were made.
ConnectionPosition firstOutgoingConnection(const NodeObj& node, const AttributeObj& attribute);
// Throws std::length_error when the list has no position left for it.
void addConnection(const Connection& connection);
// To be called whenever connections leave the list.
void connectionsRemoved();
MStatus computePlug(NodeObj& node, const AttributeObj& attribute);

}  // namespace detail
}  // namespace mayahost
