#pragma once
#include <mayahost/Host.h>

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "Node.h"
#include "NodeType.h"
#include "PluginObj.h"

namespace mayahost {
namespace detail {

struct Connection {
    NodeObj* sourceNode;
    const AttributeObj* sourceAttribute;
    NodeObj* destinationNode;
    const AttributeObj* destinationAttribute;
    // The next connection made from the same plug.
    ConnectionPosition nextFromSource = kNoConnection;
};

// A connection to or from an attribute the host does not model: kept, never evaluated.
struct KeptConnectionObj {
    NodeObj* sourceNode;
    std::string sourceAttribute;
    NodeObj* destinationNode;
    std::string destinationAttribute;
};

struct HostState {
    std::vector<std::unique_ptr<NodeType>> nodeTypes;
    std::vector<DataType> dataTypes;
    std::vector<NodeObj*> nodes;  // each holds one reference
    // The nodes of type "time", in the order made: those the current time is set on, found
    // without walking the whole scene at each time step.
    std::vector<NodeObj*> timeNodes;
    std::vector<PluginObj*> plugins;  // each holds one reference
    std::vector<Connection> connections;
    // The plugs' slots hold positions in `connections`; removing a connection moves the ones
    // after it, so the positions are rebuilt on the next lookup.
    bool connectionIndexStale = false;
    std::vector<KeptConnectionObj> keptConnections;
    std::unordered_multimap<std::string, NodeObj*> nodesByName;  // by name without the path
    std::vector<Message> messages;
    std::vector<std::string> diagnostics;
    Faults faults;
    int addAttributeCalls = 0;
    int attributeAffectsCalls = 0;
    NodeType* initializing = nullptr;  // the type whose attribute initialiser is running
    MTime currentTime{1.0, MTime::kFilm};
    UiUnits uiUnits;
    bool started = false;  // built-in types and default nodes are in place
};

HostState& state();

NodeType* findType(const std::string& name);
NodeType* findType(unsigned int id);
DataType* findDataType(const std::string& name);
DataType* findDataType(unsigned int id);
NodeObj* nodeOf(const MObject& handle);
AttributeObj* attributeOf(const MObject& handle);
void diagnose(const std::string& text);
// Keeps the message and prints `line`, the message as Maya shows it.
void showMessage(Message::Channel channel, const std::string& text, const std::string& line);
bool nextCallFails(int& counter, const std::set<int>& failing);

// Removes a node type with everything that refers to it; false when nodes of it still exist.
bool removeType(NodeType* type);
// Destroys the node and everything below it in the DAG.
void destroyNode(NodeObj* node);
// Destroys every node for which the predicate holds, however the DAG links them.
template <class Predicate>
void destroyNodesWhere(Predicate predicate) {
    // Last made first; the handles keep each node's memory while a parent may take it down.
    std::vector<MObject> doomed;
    doomed.reserve(state().nodes.size());
    for (NodeObj* node : state().nodes)
        if (predicate(*node)) doomed.push_back(Access::handle(node));
    for (auto it = doomed.rbegin(); it != doomed.rend(); ++it)
        if (NodeObj* node = nodeOf(*it)) destroyNode(node);
}

}  // namespace detail
}  // namespace mayahost
