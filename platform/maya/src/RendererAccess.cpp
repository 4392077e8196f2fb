#include <maya/MFnNumericData.h>
#include <mayahost/Renderer.h>

#include "Graph.h"

namespace mayahost {

using namespace detail;

std::vector<MObject> nodes() {
    std::vector<MObject> all;
    all.reserve(state().nodes.size());
    for (NodeObj* node : state().nodes) all.push_back(Access::handle(node));
    return all;
}

MStatus setAddress(const MPlug& plug, void* address) {
    NodeObj* node = nodeOf(plug.node());
    AttributeObj* attribute = attributeOf(plug.attribute());
    if (!node || !attribute || attribute->owner != node->type) return MStatus::kInvalidParameter;
    if (attribute->kind != detail::AttributeKind::Numeric ||
        attribute->numericType != MFnNumericData::kAddr) {
        diagnose("setAddress: " + node->name + "." + attribute->longName +
                 " is not an address attribute");
        return MStatus::kInvalidParameter;
    }
    Value value = node->slot(*attribute).value;
    value.setAddr(address);
    assign(*node, *attribute, value);
    return MStatus::kSuccess;
}

}  // namespace mayahost
