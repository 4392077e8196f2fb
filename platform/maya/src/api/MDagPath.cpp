#include <maya/MDagPath.h>

#include "../Dag.h"
#include "../HostState.h"
#include "../Names.h"

using namespace mayahost::detail;

namespace {

void set(MStatus* target, MStatus value) {
    if (target) *target = value;
}

NodeObj* dagNode(const MObject& handle) {
    NodeObj* node = nodeOf(handle);
    return node && node->type->isDag ? node : nullptr;
}

NodeObj* valid(const MObject& handle, MStatus* ReturnStatus) {
    NodeObj* node = dagNode(handle);
    set(ReturnStatus, node ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return node;
}

}  // namespace

namespace mayahost {
namespace detail {

MDagPath Access::dagPath(Object* node) {
    MDagPath path;
    path.fNode = handle(node);
    return path;
}

Object* Access::node(const MDagPath& path) { return path.fNode.fObj; }

}  // namespace detail
}  // namespace mayahost

OPENMAYA_NAMESPACE_OPEN

MDagPath::MDagPath() = default;
MDagPath::MDagPath(const MDagPath& src) = default;
MDagPath::~MDagPath() = default;
MDagPath& MDagPath::operator=(const MDagPath& src) = default;
bool MDagPath::operator==(const MDagPath& other) const { return fNode == other.fNode; }

MStatus MDagPath::getAPathTo(const MObject& node, MDagPath& path) {
    NodeObj* dag = dagNode(node);
    if (!dag) return MStatus::kInvalidParameter;
    path = Access::dagPath(dag);
    return MStatus::kSuccess;
}

bool MDagPath::isValid(MStatus* ReturnStatus) const {
    set(ReturnStatus, MStatus::kSuccess);
    return dagNode(fNode) != nullptr;
}

MObject MDagPath::node(MStatus* ReturnStatus) const {
    NodeObj* node = valid(fNode, ReturnStatus);
    return node ? fNode : MObject();
}

MObject MDagPath::transform(MStatus* ReturnStatus) const {
    NodeObj* node = valid(fNode, ReturnStatus);
    if (!node) return MObject();
    if (node->type->isTransform || !node->parent) return fNode;
    return Access::handle(node->parent);
}

unsigned int MDagPath::length(MStatus* ReturnStatus) const {
    unsigned int count = 0;
    for (NodeObj* node = valid(fNode, ReturnStatus); node; node = node->parent) ++count;
    return count;
}

MString MDagPath::fullPathName(MStatus* ReturnStatus) const {
    NodeObj* node = valid(fNode, ReturnStatus);
    return node ? MString(mayahost::detail::fullPathName(*node).c_str()) : MString();
}

MString MDagPath::partialPathName(MStatus* ReturnStatus) const {
    NodeObj* node = valid(fNode, ReturnStatus);
    return node ? MString(mayahost::detail::partialPathName(*node).c_str()) : MString();
}

MMatrix MDagPath::inclusiveMatrix(MStatus* ReturnStatus) const {
    NodeObj* node = valid(fNode, ReturnStatus);
    return node ? mayahost::detail::inclusiveMatrix(*node) : MMatrix();
}

MMatrix MDagPath::exclusiveMatrix(MStatus* ReturnStatus) const {
    NodeObj* node = valid(fNode, ReturnStatus);
    return node && node->parent ? mayahost::detail::inclusiveMatrix(*node->parent) : MMatrix();
}

OPENMAYA_NAMESPACE_CLOSE
