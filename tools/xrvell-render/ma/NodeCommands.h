#pragma once
#include <map>
#include <set>
#include <string>

#include "MaTokenizer.h"
#include "ReadContext.h"

namespace xrvell {

// createNode, select and parent: the scene's nodes and their places, by Maya's rules. A node
// of a type the host does not know is kept as Maya keeps one: an unknown node.
class NodeCommands {
public:
    explicit NodeCommands(ReadContext& context);

    bool createNode(const MaStatement& statement);
    bool select(const MaStatement& statement);
    bool parent(const MaStatement& statement);

    // Nodes of this type cannot be kept as unknown nodes: without its plug-in there is nothing to
    // render. `problem` says why the plug-in is missing.
    void refuseType(const std::string& type, const std::string& problem);

private:
    bool createUnknown(const std::string& type, const std::string& name, const MObject& parent);
    bool adopt(const MObject& node, const std::string& name);

    ReadContext& context;
    std::map<std::string, std::string> refusedTypes;
    std::set<std::string> notedTypes;
};

}  // namespace xrvell
