#include <maya/MDataBlock.h>

#include "../Graph.h"

using namespace mayahost::detail;

namespace {

NodeObj* nodeIn(Object* object) { return object ? object->asNode() : nullptr; }
AttributeObj* attributeIn(Object* object) { return object ? object->asAttribute() : nullptr; }

void set(MStatus* target, MStatus value) {
    if (target) *target = value;
}

// Data handles of a bad attribute point at a scratch value so reads stay harmless.
Value& scratch() {
    static Value value;
    value = Value();
    return value;
}

Value& valueOf(const MDataHandle& handle) {
    auto* node = nodeIn(Access::node(handle));
    auto* attribute = attributeIn(Access::attribute(handle));
    if (!node || !attribute) return scratch();
    return node->slot(*attribute).value;
}

MDataHandle handleFor(Object* blockNode, const MObject& attribute, bool pull, MStatus* status) {
    auto* node = nodeIn(blockNode);
    AttributeObj* attr = attributeOf(attribute);
    if (!node || !attr || !node->has(*attr)) {
        set(status, MStatus::kInvalidParameter);
        return MDataHandle();
    }
    if (pull) evaluate(*node, *attr);
    set(status, MStatus::kSuccess);
    return Access::dataHandle(*node, *attr);
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MDataHandle MDataBlock::inputValue(const MPlug& plug, MStatus* s) {
    return handleFor(fNode, plug.attribute(), true, s);
}
MDataHandle MDataBlock::inputValue(const MObject& attribute, MStatus* s) {
    return handleFor(fNode, attribute, true, s);
}
MDataHandle MDataBlock::outputValue(const MPlug& plug, MStatus* s) {
    return handleFor(fNode, plug.attribute(), false, s);
}
MDataHandle MDataBlock::outputValue(const MObject& attribute, MStatus* s) {
    return handleFor(fNode, attribute, false, s);
}

MStatus MDataBlock::setClean(const MPlug& plug) { return setClean(plug.attribute()); }

MStatus MDataBlock::setClean(const MObject& attribute) {
    auto* node = nodeIn(fNode);
    AttributeObj* attr = attributeOf(attribute);
    if (!node || !attr) return MStatus::kInvalidParameter;
    markClean(*node, *attr);
    return MStatus::kSuccess;
}

MDataHandle::MDataHandle() : fNode(nullptr), fAttribute(nullptr) {}

bool& MDataHandle::asBool() const { return valueOf(*this).b; }
char& MDataHandle::asChar() const { return valueOf(*this).c; }
short& MDataHandle::asShort() const { return valueOf(*this).s; }
int& MDataHandle::asInt() const { return valueOf(*this).i; }
float& MDataHandle::asFloat() const { return valueOf(*this).f; }
double& MDataHandle::asDouble() const { return valueOf(*this).d; }
void*& MDataHandle::asAddr() const { return valueOf(*this).addr; }
MString& MDataHandle::asString() const { return valueOf(*this).str; }
MTime MDataHandle::asTime() const { return valueOf(*this).time(); }
MObject MDataHandle::data() { return valueOf(*this).data; }

void MDataHandle::setBool(bool value) { valueOf(*this).setNumber(value ? 1.0 : 0.0); }
void MDataHandle::setChar(char value) { valueOf(*this).setNumber(value); }
void MDataHandle::setShort(short value) { valueOf(*this).setNumber(value); }
void MDataHandle::setInt(int value) { valueOf(*this).setNumber(value); }
void MDataHandle::setFloat(float value) { valueOf(*this).setNumber(value); }
void MDataHandle::setDouble(double value) { valueOf(*this).setNumber(value); }
void MDataHandle::setString(const MString& value) { valueOf(*this).setString(value); }
void MDataHandle::setMTime(const MTime& value) { valueOf(*this).setTime(value); }

void MDataHandle::setClean() {
    auto* node = nodeIn(fNode);
    auto* attribute = attributeIn(fAttribute);
    if (node && attribute) markClean(*node, *attribute);
}

OPENMAYA_NAMESPACE_CLOSE
