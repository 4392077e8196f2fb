#include <maya/MPlug.h>
#include <maya/MPlugArray.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "../Graph.h"

using namespace mayahost::detail;

namespace {

void set(MStatus* target, MStatus value) {
    if (target) *target = value;
}

struct Resolved {
    NodeObj* node = nullptr;
    AttributeObj* attribute = nullptr;
    explicit operator bool() const { return node && attribute; }
};

Resolved resolve(const MObject& node, const MObject& attribute) {
    Resolved result{nodeOf(node), attributeOf(attribute)};
    if (result && !result.node->has(*result.attribute)) return Resolved();
    return result;
}

template <class Read>
auto readValue(const MObject& node, const MObject& attribute, MStatus* ReturnStatus, Read read)
    -> decltype(read(*static_cast<Value*>(nullptr))) {
    Resolved plug = resolve(node, attribute);
    set(ReturnStatus, plug ? MStatus::kSuccess : MStatus::kInvalidParameter);
    using Result = decltype(read(*static_cast<Value*>(nullptr)));
    if (!plug) return Result();
    return read(evaluate(*plug.node, *plug.attribute));
}

template <class Write>
MStatus writeValue(const MObject& node, const MObject& attribute, Write write) {
    Resolved plug = resolve(node, attribute);
    if (!plug) return MStatus::kInvalidParameter;
    if (incomingConnection(*plug.node, *plug.attribute)) {
        diagnose("cannot set " + plug.node->name + "." + plug.attribute->longName +
                 ": it is the destination of a connection");
        return MStatus::kFailure;
    }
    Value value = plug.node->slot(*plug.attribute).value;
    write(value);
    assign(*plug.node, *plug.attribute, value);
    return MStatus::kSuccess;
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MPlug::MPlug() = default;
MPlug::MPlug(const MObject& node, const MObject& attribute) : fNode(node), fAttribute(attribute) {}
MPlug::MPlug(const MPlug& other) = default;
MPlug::~MPlug() = default;
MPlug& MPlug::operator=(const MPlug& other) = default;

MObject MPlug::node(MStatus* ReturnStatus) const {
    set(ReturnStatus, fNode.isNull() ? MStatus::kInvalidParameter : MStatus::kSuccess);
    return fNode;
}

MObject MPlug::attribute(MStatus* ReturnStatus) const {
    set(ReturnStatus, fAttribute.isNull() ? MStatus::kInvalidParameter : MStatus::kSuccess);
    return fAttribute;
}

bool MPlug::isNull(MStatus* ReturnStatus) const {
    set(ReturnStatus, MStatus::kSuccess);
    return !resolve(fNode, fAttribute);
}

MString MPlug::name(MStatus* ReturnStatus) const {
    Resolved plug = resolve(fNode, fAttribute);
    set(ReturnStatus, plug ? MStatus::kSuccess : MStatus::kInvalidParameter);
    if (!plug) return MString();
    return MString((plug.node->name + "." + plug.attribute->longName).c_str());
}

MString MPlug::partialName(bool includeNodeName, bool, bool, bool, bool, bool useLongNames,
                           MStatus* ReturnStatus) const {
    Resolved plug = resolve(fNode, fAttribute);
    set(ReturnStatus, plug ? MStatus::kSuccess : MStatus::kInvalidParameter);
    if (!plug) return MString();
    std::string text = useLongNames ? plug.attribute->longName : plug.attribute->shortName;
    if (includeNodeName) text = plug.node->name + "." + text;
    return MString(text.c_str());
}

bool MPlug::connectedTo(MPlugArray& array, bool asDst, bool asSrc, MStatus* ReturnStatus) const {
    array.clear();
    Resolved plug = resolve(fNode, fAttribute);
    set(ReturnStatus, plug ? MStatus::kSuccess : MStatus::kInvalidParameter);
    if (!plug) return false;
    // The answer keeps the order the connections were made in: the connection into the plug
    // goes among those from it by its position in the connection list.
    const std::vector<Connection>& connections = state().connections;
    const Connection* in = asDst ? incomingConnection(*plug.node, *plug.attribute) : nullptr;
    const auto inAt = in ? static_cast<ConnectionPosition>(in - connections.data()) : kNoConnection;
    const auto appendSource = [&] {
        array.append(MPlug(Access::handle(in->sourceNode),
                           Access::handle(const_cast<AttributeObj*>(in->sourceAttribute))));
    };
    const ConnectionPosition firstOut =
        asSrc ? firstOutgoingConnection(*plug.node, *plug.attribute) : kNoConnection;
    for (ConnectionPosition at = firstOut; at != kNoConnection;
         at = connections[at].nextFromSource) {
        if (in && inAt < at) {
            appendSource();
            in = nullptr;
        }
        const Connection& c = connections[at];
        array.append(MPlug(Access::handle(c.destinationNode),
                           Access::handle(const_cast<AttributeObj*>(c.destinationAttribute))));
    }
    if (in) appendSource();
    return array.length() > 0;
}

bool MPlug::isConnected(MStatus* ReturnStatus) const {
    MPlugArray connected;
    return connectedTo(connected, true, true, ReturnStatus);
}

bool MPlug::asBool(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.b; });
}
short MPlug::asShort(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.s; });
}
int MPlug::asInt(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.i; });
}
float MPlug::asFloat(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.f; });
}
double MPlug::asDouble(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.d; });
}
MString MPlug::asString(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.str; });
}
MTime MPlug::asMTime(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.time(); });
}
MObject MPlug::asMObject(MStatus* s) const {
    return readValue(fNode, fAttribute, s, [](Value& v) { return v.data; });
}

MStatus MPlug::setBool(bool value) const {
    return writeValue(fNode, fAttribute, [&](Value& v) { v.setNumber(value ? 1.0 : 0.0); });
}
MStatus MPlug::setShort(short value) const {
    return writeValue(fNode, fAttribute, [&](Value& v) { v.setNumber(value); });
}
MStatus MPlug::setInt(int value) const {
    return writeValue(fNode, fAttribute, [&](Value& v) { v.setNumber(value); });
}
MStatus MPlug::setFloat(float value) const {
    return writeValue(fNode, fAttribute, [&](Value& v) { v.setNumber(value); });
}
MStatus MPlug::setDouble(double value) const {
    return writeValue(fNode, fAttribute, [&](Value& v) { v.setNumber(value); });
}
MStatus MPlug::setString(const MString& value) const {
    return writeValue(fNode, fAttribute, [&](Value& v) { v.setString(value); });
}
MStatus MPlug::setMTime(const MTime& value) const {
    return writeValue(fNode, fAttribute, [&](Value& v) { v.setTime(value); });
}

bool MPlug::operator==(const MPlug& other) const {
    return fNode == other.fNode && fAttribute == other.fAttribute;
}
bool MPlug::operator==(const MObject& attribute) const { return fAttribute == attribute; }
bool MPlug::operator!=(const MPlug& other) const { return !(*this == other); }
bool MPlug::operator!=(const MObject& attribute) const { return !(*this == attribute); }

OPENMAYA_NAMESPACE_CLOSE
