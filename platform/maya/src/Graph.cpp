#include "Graph.h"

#include <maya/MDataBlock.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

#include <stdexcept>

namespace mayahost {
namespace detail {
namespace {

MPlug plugOf(NodeObj& node, const AttributeObj& attribute) {
    return MPlug(Access::handle(&node), Access::handle(const_cast<AttributeObj*>(&attribute)));
}

// Asks the node which further plugs a change of this one dirties, as Maya does for each plug.
void dirtyDependents(NodeObj& node, const AttributeObj& attribute) {
    for (const AttributeObj* affected : attribute.affects) markDirty(node, *affected);
    if (node.user) {
        MPlugArray extra;
        node.user->setDependentsDirty(plugOf(node, attribute), extra);
        for (unsigned int i = 0; i < extra.length(); ++i) {
            NodeObj* target = nodeOf(extra[i].node());
            AttributeObj* targetAttribute = attributeOf(extra[i].attribute());
            if (target && targetAttribute) markDirty(*target, *targetAttribute);
        }
    }
    const std::vector<Connection>& connections = state().connections;
    for (ConnectionPosition at = firstOutgoingConnection(node, attribute); at != kNoConnection;
         at = connections[at].nextFromSource) {
        const Connection& connection = connections[at];
        markDirty(*connection.destinationNode, *connection.destinationAttribute);
    }
}

void clearConnectionPositions(std::vector<Slot>& slots) {
    for (Slot& slot : slots) slot.incoming = slot.firstOutgoing = slot.lastOutgoing = kNoConnection;
}

// Records the connection at this position in the slots of the plugs at both ends.
void indexConnection(ConnectionPosition at) {
    Connection& connection = state().connections[at];
    connection.nextFromSource = kNoConnection;
    connection.destinationNode->storage(*connection.destinationAttribute).incoming = at;
    Slot& source = connection.sourceNode->storage(*connection.sourceAttribute);
    if (source.lastOutgoing == kNoConnection)
        source.firstOutgoing = at;
    else
        state().connections[source.lastOutgoing].nextFromSource = at;
    source.lastOutgoing = at;
}

void rebuildConnectionIndex() {
    HostState& host = state();
    for (NodeObj* node : host.nodes) {
        clearConnectionPositions(node->slots);
        clearConnectionPositions(node->dynamicSlots);
    }
    const auto count = static_cast<ConnectionPosition>(host.connections.size());
    for (ConnectionPosition at = 0; at < count; ++at) indexConnection(at);
    host.connectionIndexStale = false;
}

void refreshConnectionIndex() {
    if (state().connectionIndexStale) rebuildConnectionIndex();
}

}  // namespace

const Connection* incomingConnection(const NodeObj& node, const AttributeObj& attribute) {
    refreshConnectionIndex();
    const Slot* slot = node.laidOut(attribute);
    return slot && slot->incoming != kNoConnection ? &state().connections[slot->incoming] : nullptr;
}

ConnectionPosition firstOutgoingConnection(const NodeObj& node, const AttributeObj& attribute) {
    refreshConnectionIndex();
    const Slot* slot = node.laidOut(attribute);
    return slot ? slot->firstOutgoing : kNoConnection;
}

void addConnection(const Connection& connection) {
    refreshConnectionIndex();
    HostState& host = state();
    if (host.connections.size() >= kNoConnection) throw std::length_error("too many connections");
    host.connections.push_back(connection);
    indexConnection(static_cast<ConnectionPosition>(host.connections.size() - 1));
}

void connectionsRemoved() { state().connectionIndexStale = true; }

MStatus computePlug(NodeObj& node, const AttributeObj& attribute) {
    if (!node.user)
        return node.type->compute ? node.type->compute(node, attribute)
                                  : MStatus::kUnknownParameter;
    MDataBlock block = Access::dataBlock(node);
    return node.user->compute(plugOf(node, attribute), block);
}

Value& evaluate(NodeObj& node, const AttributeObj& attribute) {
    Slot& slot = node.slot(attribute);
    if (!slot.dirty || slot.evaluating) return slot.value;
    slot.evaluating = true;
    if (const Connection* connection = incomingConnection(node, attribute)) {
        NodeObj& source = *connection->sourceNode;
        const Value& upstream = evaluate(source, *connection->sourceAttribute);
        node.slot(attribute).value = upstream;
        node.slot(attribute).dirty = false;
    } else if (attribute.isComputed() && (node.user || node.type->compute)) {
        // A plug the node does not compute keeps its stored value.
        if (computePlug(node, attribute) == MStatus::kUnknownParameter)
            node.slot(attribute).dirty = false;
    } else {
        slot.dirty = false;
    }
    Slot& after = node.slot(attribute);
    after.evaluating = false;
    return after.value;
}

void assign(NodeObj& node, const AttributeObj& attribute, const Value& value) {
    Slot& slot = node.slot(attribute);
    slot.value = value;
    slot.dirty = false;
    dirtyDependents(node, attribute);
}

void markDirty(NodeObj& node, const AttributeObj& attribute) {
    Slot& slot = node.slot(attribute);
    if (slot.dirty) return;
    slot.dirty = true;
    dirtyDependents(node, attribute);
}

void markClean(NodeObj& node, const AttributeObj& attribute) { node.slot(attribute).dirty = false; }

}  // namespace detail
}  // namespace mayahost
