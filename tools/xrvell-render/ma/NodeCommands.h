#pragma once
#include <map>
#include <set>
#include <string>

#include "MaArguments.h"
#include "MaTokenizer.h"
#include "ReadContext.h"

namespace xrvell {

// What the files of one scene share about node types: those that cannot be kept as unknown
// nodes, and those already noted as not modelled.
struct NodeTypeRules {
    std::map<std::string, std::string> refused;  // type -> why its plug-in is missing
    std::set<std::string> noted;
};

// createNode, select and parent: the scene's nodes and their places, by Maya's rules. A node
// of a type the host does not know is kept as Maya keeps one: an unknown node.
class NodeCommands {
public:
    NodeCommands(ReadContext& context, NodeTypeRules& rules);

    // Maya's node names: letters, digits and '_', not starting with a digit, with ':' between
    // namespaces.
    static bool isNodeName(const std::string& name);

    bool createNode(const MaStatement& statement);
    bool select(const MaStatement& statement);
    bool parent(const MaStatement& statement);

    // Nodes of this type cannot be kept as unknown nodes: without its plug-in there is nothing to
    // render. `problem` says why the plug-in is missing.
    void refuseType(const std::string& type, const std::string& problem);

private:
    std::string inNamespace(const MaArguments& args) const;
    bool selectShared(const std::string* parentName, const std::string& name,
                      const std::string& written);
    bool createUnknown(const std::string& type, const std::string& name, const MObject& parent);
    bool adopt(const MObject& node, const std::string& name);

    ReadContext& context;
    NodeTypeRules& rules;
};

}  // namespace xrvell
