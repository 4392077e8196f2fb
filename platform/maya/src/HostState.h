#pragma once
#include <mayahost/Host.h>

#include <memory>
#include <string>
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
};

struct HostState {
    std::vector<std::unique_ptr<NodeType>> nodeTypes;
    std::vector<DataType> dataTypes;
    std::vector<NodeObj*> nodes;      // each holds one reference
    std::vector<PluginObj*> plugins;  // each holds one reference
    std::vector<Connection> connections;
    std::vector<Message> messages;
    std::vector<std::string> diagnostics;
    Faults faults;
    int addAttributeCalls = 0;
    int attributeAffectsCalls = 0;
    NodeType* initializing = nullptr;  // the type whose attribute initialiser is running
    MTime currentTime{1.0, MTime::kFilm};
};

HostState& state();

NodeType* findType(const std::string& name);
NodeType* findType(unsigned int id);
NodeObj* nodeOf(const MObject& handle);
AttributeObj* attributeOf(const MObject& handle);
void diagnose(const std::string& text);
void showMessage(Message::Channel channel, const std::string& text);
bool nextCallFails(int& counter, const std::set<int>& failing);

// Removes a node type with everything that refers to it; false when nodes of it still exist.
bool removeType(NodeType* type);
void destroyNode(NodeObj* node);

}  // namespace detail
}  // namespace mayahost
