#pragma once
// Node names as Maya keeps them: a DAG node's name is unique among its siblings, a dependency
// node's among the nodes outside the DAG and those right under the world. Names are found by
// full path ("|charA|fur|furShape"), partial path ("fur|furShape") or short name, with
// namespaces ("char:furShape") as part of each name.
#include <string>
#include <vector>

#include "Node.h"

namespace mayahost {
namespace detail {

// The requested name if it is free among the node's future siblings; otherwise the next free
// number after the one it ends in (or 1), as Maya gives it. Without a name, the type name with the
// lowest number free in the whole scene.
std::string freeName(const std::string& requested, const std::string& typeName,
                     const NodeObj* parent);
void addName(NodeObj& node);
void removeName(NodeObj& node);
// Every node a name or DAG path names.
std::vector<NodeObj*> nodesNamed(const std::string& name);
// The shortest path that names the node alone: its name, or as many parents as that needs.
std::string partialPathName(const NodeObj& node);

}  // namespace detail
}  // namespace mayahost
