#include "Dag.h"

#include <maya/MPxSurfaceShape.h>

#include <algorithm>
#include <cmath>

#include "Graph.h"

namespace mayahost {
namespace detail {
namespace {

double number(NodeObj& node, const char* attributeName) {
    const AttributeObj* attribute = node.findAttribute(attributeName);
    return attribute ? evaluate(node, *attribute).d : 0.0;
}

MMatrix scaling(double x, double y, double z) {
    MMatrix m;
    m[0][0] = x;
    m[1][1] = y;
    m[2][2] = z;
    return m;
}

MMatrix translation(double x, double y, double z) {
    MMatrix m;
    m[3][0] = x;
    m[3][1] = y;
    m[3][2] = z;
    return m;
}

// Rotation of row vectors about one axis (0 x, 1 y, 2 z) by the angle in radians.
MMatrix rotation(int axis, double angle) {
    const int a = (axis + 1) % 3;
    const int b = (axis + 2) % 3;
    MMatrix m;
    m[a][a] = std::cos(angle);
    m[a][b] = std::sin(angle);
    m[b][a] = -std::sin(angle);
    m[b][b] = std::cos(angle);
    return m;
}

}  // namespace

void detachFromParent(NodeObj& node) {
    if (!node.parent) return;
    auto& siblings = node.parent->children;
    siblings.erase(std::remove(siblings.begin(), siblings.end(), &node), siblings.end());
    node.parent = nullptr;
}

void setParent(NodeObj& node, NodeObj* parent) {
    detachFromParent(node);
    node.parent = parent;
    if (parent) parent->children.push_back(&node);
}

MMatrix localMatrix(NodeObj& node) {
    // An unknown transform never evaluates, so its channels are not known either.
    if (!node.type->isTransform || node.type->isUnknown) return MMatrix();
    const MMatrix scale =
        scaling(number(node, "scaleX"), number(node, "scaleY"), number(node, "scaleZ"));
    const MMatrix rotate = rotation(0, number(node, "rotateX")) *
                           rotation(1, number(node, "rotateY")) *
                           rotation(2, number(node, "rotateZ"));
    const MMatrix translate = translation(number(node, "translateX"), number(node, "translateY"),
                                          number(node, "translateZ"));
    return scale * rotate * translate;
}

MMatrix inclusiveMatrix(NodeObj& node) {
    MMatrix matrix = localMatrix(node);
    for (NodeObj* above = node.parent; above; above = above->parent) matrix *= localMatrix(*above);
    return matrix;
}

std::string fullPathName(const NodeObj& node) {
    std::string path;
    for (const NodeObj* n = &node; n; n = n->parent) path = "|" + n->name + path;
    return path;
}

MBoundingBox objectBox(NodeObj& node) {
    if (node.type->isTransform) {
        MBoundingBox box;
        for (NodeObj* child : node.children) {
            MBoundingBox childBox = objectBox(*child);
            childBox.transformUsing(localMatrix(*child));
            box.expand(childBox);
        }
        return box;
    }
    if (node.type->isShape && node.user) {
        const auto* shape = static_cast<const MPxSurfaceShape*>(node.user);
        return shape->isBounded() ? shape->boundingBox() : MBoundingBox();
    }
    return MBoundingBox();
}

}  // namespace detail
}  // namespace mayahost
