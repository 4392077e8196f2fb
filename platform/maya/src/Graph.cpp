#include "Graph.h"

#include <maya/MDataBlock.h>
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

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
    for (size_t at : outgoingConnections(node, attribute)) {
        const Connection& connection = state().connections[at];
        markDirty(*connection.destinationNode, *connection.destinationAttribute);
    }
}

void rebuildConnectionIndex() {
    HostState& host = state();
    host.incomingIndex.clear();
    host.outgoingIndex.clear();
    for (size_t at = 0; at < host.connections.size(); ++at) {
        const Connection& c = host.connections[at];
        host.incomingIndex[PlugKey(c.destinationNode, c.destinationAttribute)] = at;
        host.outgoingIndex[PlugKey(c.sourceNode, c.sourceAttribute)].push_back(at);
    }
    host.connectionIndexStale = false;
}

void refreshConnectionIndex() {
    if (state().connectionIndexStale) rebuildConnectionIndex();
}

}  // namespace

const Connection* incomingConnection(const NodeObj& node, const AttributeObj& attribute) {
    refreshConnectionIndex();
    HostState& host = state();
    const auto found = host.incomingIndex.find(PlugKey(&node, &attribute));
    return found == host.incomingIndex.end() ? nullptr : &host.connections[found->second];
}

const std::vector<size_t>& outgoingConnections(const NodeObj& node, const AttributeObj& attribute) {
    static const std::vector<size_t> none;
    refreshConnectionIndex();
    HostState& host = state();
    const auto found = host.outgoingIndex.find(PlugKey(&node, &attribute));
    return found == host.outgoingIndex.end() ? none : found->second;
}

void addConnection(const Connection& connection) {
    refreshConnectionIndex();
    HostState& host = state();
    const size_t at = host.connections.size();
    host.connections.push_back(connection);
    host.incomingIndex[PlugKey(connection.destinationNode, connection.destinationAttribute)] = at;
    host.outgoingIndex[PlugKey(connection.sourceNode, connection.sourceAttribute)].push_back(at);
}

void connectionsRemoved() { state().connectionIndexStale = true; }

MStatus computePlug(NodeObj& node, const AttributeObj& attribute) {
    if (!node.user) return MStatus::kUnknownParameter;
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
    } else if (attribute.isComputed() && node.user) {
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
