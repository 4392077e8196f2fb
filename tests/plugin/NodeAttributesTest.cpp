#include <maya/MFnData.h>
#include <maya/MFnNumericData.h>
#include <maya/MFnUnitAttribute.h>
#include <maya/MString.h>

#include "HostTest.h"

using mayahost::AttributeInfo;
using mayahost::AttributeKind;

namespace {

struct ExpectedAttribute {
    const char* longName;
    const char* shortName;
    AttributeKind kind;
    int type;  // numeric, data or unit type by kind
    unsigned int typeId;
    bool readable, writable, storable, keyable, hidden, affectsWorldSpace;
};

// In the order the node type adds them.
const ExpectedAttribute kAttributes[] = {
    {"vrayGeomInfo", "vgi", AttributeKind::Numeric, MFnNumericData::kAddr, 0, true, true, false,
     false, true, false},
    {"vrayGeomResult", "vgr", AttributeKind::Numeric, MFnNumericData::kInt, 0, true, false, false,
     false, true, false},
    {"outApiType", "oat", AttributeKind::Typed, MFnData::kString, 0, true, true, true, false, true,
     false},
    {"outApiClassification", "oac", AttributeKind::Typed, MFnData::kString, 0, true, true, true,
     false, true, false},
    {"inputData", "vid", AttributeKind::Typed, MFnData::kPlugin, 0x1158C6, false, true, false,
     false, false, false},
    {"currentTime", "time", AttributeKind::Unit, MFnUnitAttribute::kTime, 0, true, true, false,
     false, false, true},
};

int typeOf(const AttributeInfo& info) {
    switch (info.kind) {
        case AttributeKind::Numeric:
            return info.numericType;
        case AttributeKind::Typed:
            return info.dataType;
        case AttributeKind::Unit:
            return info.unitType;
    }
    return -1;
}

class NodeAttributes : public HostTest {
protected:
    void SetUp() override {
        HostTest::SetUp();
        loadBridge();
    }
};

}  // namespace

TEST_F(NodeAttributes, SixAttributesInOrderWithTheirTypesAndProperties) {
    mayahost::NodeTypeInfo type;
    ASSERT_TRUE(mayahost::findNodeType("xrVellMayaVRay", &type));
    ASSERT_EQ(type.attributes.size(), std::size(kAttributes));
    for (size_t i = 0; i < std::size(kAttributes); ++i) {
        const ExpectedAttribute& expected = kAttributes[i];
        SCOPED_TRACE(expected.longName);
        EXPECT_EQ(type.attributes[i], expected.longName);
        AttributeInfo info;
        ASSERT_TRUE(mayahost::findAttribute("xrVellMayaVRay", expected.shortName, &info));
        EXPECT_EQ(info.longName, expected.longName);
        EXPECT_EQ(info.kind, expected.kind);
        EXPECT_EQ(typeOf(info), expected.type);
        EXPECT_EQ(info.typeId, expected.typeId);
        EXPECT_EQ(info.readable, expected.readable);
        EXPECT_EQ(info.writable, expected.writable);
        EXPECT_EQ(info.storable, expected.storable);
        EXPECT_EQ(info.keyable, expected.keyable);
        EXPECT_EQ(info.hidden, expected.hidden);
        EXPECT_EQ(info.affectsWorldSpace, expected.affectsWorldSpace);
        EXPECT_FALSE(info.array);
    }
}

TEST_F(NodeAttributes, Defaults) {
    AttributeInfo info;
    ASSERT_TRUE(mayahost::findAttribute("xrVellMayaVRay", "vrayGeomInfo", &info));
    EXPECT_EQ(info.defaultAddr, nullptr);
    ASSERT_TRUE(mayahost::findAttribute("xrVellMayaVRay", "vrayGeomResult", &info));
    EXPECT_EQ(info.defaultNumber, 0.0);
    ASSERT_TRUE(mayahost::findAttribute("xrVellMayaVRay", "outApiType", &info));
    EXPECT_EQ(info.defaultString, "VRayGeometry");
    ASSERT_TRUE(mayahost::findAttribute("xrVellMayaVRay", "outApiClassification", &info));
    EXPECT_EQ(info.defaultString, "geometry");
    ASSERT_TRUE(mayahost::findAttribute("xrVellMayaVRay", "inputData", &info));
    EXPECT_FALSE(info.hasDefaultData);
    ASSERT_TRUE(mayahost::findAttribute("xrVellMayaVRay", "currentTime", &info));
    EXPECT_EQ(info.defaultNumber, 1.0);
}

TEST_F(NodeAttributes, EveryInputAffectsTheResultInDeclarationOrder) {
    const std::vector<std::pair<std::string, std::string>> expected = {
        {"vrayGeomInfo", "vrayGeomResult"},
        {"inputData", "vrayGeomResult"},
        {"currentTime", "vrayGeomResult"},
    };
    EXPECT_EQ(mayahost::attributeAffects("xrVellMayaVRay"), expected);
}

TEST_F(NodeAttributes, AFreshNodeReadsItsApiTypeAndClassification) {
    MObject node = mayahost::createNode("xrVellMayaVRay");
    EXPECT_STREQ(mayahost::findPlug(node, "outApiType").asString().asChar(), "VRayGeometry");
    EXPECT_STREQ(mayahost::findPlug(node, "oac").asString().asChar(), "geometry");
    EXPECT_EQ(mayahost::findPlug(node, "currentTime").asMTime().value(), 1.0);
    EXPECT_EQ(mayahost::findPlug(node, "vrayGeomResult").asInt(), 0);
}

TEST_F(NodeAttributes, NodesAreIndependentAndDeletable) {
    MObject first = mayahost::createNode("xrVellMayaVRay");
    MObject second = mayahost::createNode("xrVellMayaVRay");
    EXPECT_NE(mayahost::nodeName(first), mayahost::nodeName(second));
    mayahost::findPlug(first, "outApiType").setString("changed");
    EXPECT_STREQ(mayahost::findPlug(second, "outApiType").asString().asChar(), "VRayGeometry");
    EXPECT_EQ(mayahost::deleteNode(first), MStatus::kSuccess);
    EXPECT_EQ(mayahost::userNode(first), nullptr);
    EXPECT_NE(mayahost::userNode(second), nullptr);
}
