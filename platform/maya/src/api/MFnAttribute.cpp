#include <maya/MFnAttribute.h>
#include <maya/MFnNumericAttribute.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MFnUnitAttribute.h>

#include "../DataObj.h"
#include "../HostState.h"

using namespace mayahost::detail;

namespace {

void set(MStatus* target, MStatus value) {
    if (target) *target = value;
}

MObject newAttribute(MObject& boundTo, const MString& fullName, const MString& briefName,
                     AttributeKind kind, AttributeObj** created) {
    auto* attribute = new AttributeObj;
    attribute->longName = fullName.asChar();
    attribute->shortName = briefName.asChar();
    attribute->kind = kind;
    *created = attribute;
    boundTo = Access::handle(attribute);
    return boundTo;
}

template <class Getter>
auto read(const MObject& object, MStatus* ReturnStatus, Getter getter)
    -> decltype(getter(*static_cast<AttributeObj*>(nullptr))) {
    AttributeObj* attribute = attributeOf(object);
    set(ReturnStatus, attribute ? MStatus::kSuccess : MStatus::kInvalidParameter);
    using Result = decltype(getter(*attribute));
    return attribute ? getter(*attribute) : Result();
}

MStatus write(const MObject& object, bool AttributeObj::*property, bool state) {
    AttributeObj* attribute = attributeOf(object);
    if (!attribute) return MStatus::kInvalidParameter;
    attribute->*property = state;
    return MStatus::kSuccess;
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MFnAttribute::MFnAttribute() = default;
MFnAttribute::MFnAttribute(MObject& object, MStatus* ReturnStatus) {
    *fObject = object;
    set(ReturnStatus, attributeOf(object) ? MStatus::kSuccess : MStatus::kInvalidParameter);
}
MFnAttribute::~MFnAttribute() = default;

bool MFnAttribute::isReadable(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return a.readable; });
}
bool MFnAttribute::isWritable(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return a.writable; });
}
bool MFnAttribute::isStorable(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return a.storable; });
}
bool MFnAttribute::isKeyable(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return a.keyable; });
}
bool MFnAttribute::isHidden(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return a.hidden; });
}
bool MFnAttribute::isArray(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return a.array; });
}
bool MFnAttribute::affectsWorldSpace(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return a.affectsWorldSpace; });
}
MString MFnAttribute::name() const {
    return read(*fObject, nullptr, [](AttributeObj& a) { return MString(a.longName.c_str()); });
}
MString MFnAttribute::shortName(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return MString(a.shortName.c_str()); });
}

MStatus MFnAttribute::setReadable(bool state) {
    return write(*fObject, &AttributeObj::readable, state);
}
MStatus MFnAttribute::setWritable(bool state) {
    return write(*fObject, &AttributeObj::writable, state);
}
MStatus MFnAttribute::setStorable(bool state) {
    return write(*fObject, &AttributeObj::storable, state);
}
MStatus MFnAttribute::setKeyable(bool state) {
    return write(*fObject, &AttributeObj::keyable, state);
}
MStatus MFnAttribute::setHidden(bool state) {
    return write(*fObject, &AttributeObj::hidden, state);
}
MStatus MFnAttribute::setArray(bool state) { return write(*fObject, &AttributeObj::array, state); }
MStatus MFnAttribute::setAffectsWorldSpace(bool state) {
    return write(*fObject, &AttributeObj::affectsWorldSpace, state);
}

MFnNumericAttribute::MFnNumericAttribute() = default;
MFnNumericAttribute::MFnNumericAttribute(MObject& object, MStatus* ReturnStatus)
    : MFnAttribute(object, ReturnStatus) {}
MFnNumericAttribute::~MFnNumericAttribute() = default;

MObject MFnNumericAttribute::create(const MString& fullName, const MString& briefName,
                                    MFnNumericData::Type unitType, double defaultValue,
                                    MStatus* ReturnStatus) {
    AttributeObj* attribute = nullptr;
    MObject result =
        newAttribute(*fObject, fullName, briefName, AttributeKind::Numeric, &attribute);
    attribute->numericType = unitType;
    attribute->defaultValue.setNumber(defaultValue);
    set(ReturnStatus, MStatus::kSuccess);
    return result;
}

MObject MFnNumericAttribute::createAddr(const MString& fullName, const MString& briefName,
                                        void* defaultValue, MStatus* ReturnStatus) {
    AttributeObj* attribute = nullptr;
    MObject result =
        newAttribute(*fObject, fullName, briefName, AttributeKind::Numeric, &attribute);
    attribute->numericType = MFnNumericData::kAddr;
    attribute->defaultValue.setAddr(defaultValue);
    set(ReturnStatus, MStatus::kSuccess);
    return result;
}

MFnNumericData::Type MFnNumericAttribute::unitType(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return MFnNumericData::Type(a.numericType); });
}

MFnTypedAttribute::MFnTypedAttribute() = default;
MFnTypedAttribute::MFnTypedAttribute(MObject& object, MStatus* ReturnStatus)
    : MFnAttribute(object, ReturnStatus) {}
MFnTypedAttribute::~MFnTypedAttribute() = default;

MObject MFnTypedAttribute::create(const MString& fullName, const MString& briefName,
                                  MFnData::Type type, MObject defaultData, MStatus* ReturnStatus) {
    AttributeObj* attribute = nullptr;
    MObject result = newAttribute(*fObject, fullName, briefName, AttributeKind::Typed, &attribute);
    attribute->dataType = type;
    attribute->defaultValue.setData(defaultData);
    if (auto* text = Access::as<StringDataObj>(defaultData))
        attribute->defaultValue.setString(text->value);
    set(ReturnStatus, MStatus::kSuccess);
    return result;
}

MObject MFnTypedAttribute::create(const MString& fullName, const MString& briefName,
                                  const MTypeId& id, MObject defaultData, MStatus* ReturnStatus) {
    AttributeObj* attribute = nullptr;
    MObject result = newAttribute(*fObject, fullName, briefName, AttributeKind::Typed, &attribute);
    attribute->dataType = MFnData::kPlugin;
    attribute->typeId = id.id();
    attribute->defaultValue.setData(defaultData);
    set(ReturnStatus, MStatus::kSuccess);
    return result;
}

MFnData::Type MFnTypedAttribute::attrType(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return MFnData::Type(a.dataType); });
}

MFnUnitAttribute::MFnUnitAttribute() = default;
MFnUnitAttribute::MFnUnitAttribute(MObject& object, MStatus* ReturnStatus)
    : MFnAttribute(object, ReturnStatus) {}
MFnUnitAttribute::~MFnUnitAttribute() = default;

MObject MFnUnitAttribute::create(const MString& fullName, const MString& briefName, Type unitType,
                                 double defaultValue, MStatus* ReturnStatus) {
    AttributeObj* attribute = nullptr;
    MObject result = newAttribute(*fObject, fullName, briefName, AttributeKind::Unit, &attribute);
    attribute->unitType = unitType;
    if (unitType == kTime)
        attribute->defaultValue.setTime(MTime(defaultValue, MTime::uiUnit()));
    else
        attribute->defaultValue.setNumber(defaultValue);
    set(ReturnStatus, MStatus::kSuccess);
    return result;
}

MFnUnitAttribute::Type MFnUnitAttribute::unitType(MStatus* s) const {
    return read(*fObject, s, [](AttributeObj& a) { return MFnUnitAttribute::Type(a.unitType); });
}

OPENMAYA_NAMESPACE_CLOSE
