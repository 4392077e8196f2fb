#pragma once
// The DAG: parenting, transform matrices, path names and object-space boxes.
#include <maya/MBoundingBox.h>
#include <maya/MMatrix.h>

#include <string>

#include "Node.h"

namespace mayahost {
namespace detail {

// Makes the node a child of the parent (or of the world, for a null parent).
void setParent(NodeObj& node, NodeObj* parent);
void detachFromParent(NodeObj& node);
// A transform's own matrix from its translate, rotate (radians, xyz order) and scale;
// the identity for any other node.
MMatrix localMatrix(NodeObj& node);
// Object space to world space.
MMatrix inclusiveMatrix(NodeObj& node);
std::string fullPathName(const NodeObj& node);
// A shape's own box, or the box around a transform's children in its space.
MBoundingBox objectBox(NodeObj& node);

}  // namespace detail
}  // namespace mayahost
