#include "BuiltinTypes.h"

#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnUnitAttribute.h>
#include <mayahost/Host.h>

#include "HostState.h"
#include "UnknownNodes.h"

namespace mayahost {
namespace detail {
void addAffects(AttributeObj& cause, AttributeObj& effect) {
    cause.affects.push_back(&effect);
    effect.affectedBy.push_back(&cause);
}

namespace {

// Four-character ids, in the style of Maya's built-in types, outside the plug-in id ranges.
const unsigned int kTransformId = 0x5846524d;  // 'XFRM'
const unsigned int kTimeId = 0x54494d45;       // 'TIME'
const unsigned int kMeshId = 0x444d5348;       // 'DMSH'

}  // namespace

AttributeObj& addAttribute(NodeType& type, const char* longName, const char* shortName,
                           AttributeKind kind) {
    auto* attribute = new AttributeObj;
    attribute->longName = longName;
    attribute->shortName = shortName;
    attribute->kind = kind;
    attribute->owner = &type;
    attribute->slotIndex = type.attributes.size();
    type.attributes.push_back(Access::handle(attribute));
    return *attribute;
}

void addDouble(NodeType& type, const char* longName, const char* shortName, double value) {
    AttributeObj& attribute = addAttribute(type, longName, shortName, AttributeKind::Numeric);
    attribute.numericType = MFnNumericData::kDouble;
    attribute.keyable = true;
    attribute.defaultValue.setNumber(value);
}

namespace {

// Rotation is kept in radians, Maya's internal angle unit.
void addTransformType() {
    NodeType& type = addType("transform", kTransformId);
    type.isDag = true;
    type.isTransform = true;
    const struct {
        const char* longName;
        const char* shortName;
        double value;
    } channels[] = {
        {"translateX", "tx", 0.0}, {"translateY", "ty", 0.0}, {"translateZ", "tz", 0.0},
        {"rotateX", "rx", 0.0},    {"rotateY", "ry", 0.0},    {"rotateZ", "rz", 0.0},
        {"scaleX", "sx", 1.0},     {"scaleY", "sy", 1.0},     {"scaleZ", "sz", 1.0},
    };
    for (const auto& channel : channels)
        addDouble(type, channel.longName, channel.shortName, channel.value);
}

void addTimeType() {
    NodeType& type = addType("time", kTimeId);
    AttributeObj& outTime = addAttribute(type, "outTime", "o", AttributeKind::Unit);
    outTime.unitType = MFnUnitAttribute::kTime;
    outTime.writable = false;
    outTime.storable = false;
}

// A polygon mesh shape without geometry: enough to be a DAG shape of another type.
void addMeshType() {
    NodeType& type = addType("mesh", kMeshId);
    type.isDag = true;
    type.isShape = true;
    AttributeObj& outMesh = addAttribute(type, "outMesh", "o", AttributeKind::Typed);
    outMesh.dataType = MFnData::kMesh;
    outMesh.writable = false;
    outMesh.storable = false;
}

}  // namespace

NodeType& addType(const char* name, unsigned int id) {
    auto type = std::make_unique<NodeType>();
    type->name = name;
    type->id = id;
    NodeType& added = *type;
    state().nodeTypes.push_back(std::move(type));
    return added;
}

void startHost() {
    addTransformType();
    addTimeType();
    addMeshType();
    addUnknownTypes();
    createNode("time", "time1");
    setCurrentTime(state().currentTime);
}

}  // namespace detail
}  // namespace mayahost
