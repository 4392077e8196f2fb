// Maya's naming rules in the host: names unique among siblings, full and partial DAG paths,
// Maya's own message for an ambiguous name, and the unknown nodes that keep what the host does
// not model.
#include <maya/MDagPath.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MMatrix.h>

#include "FurScene.h"

namespace {

std::string typeOf(MObject node) { return MFnDependencyNode(node).typeName().asChar(); }

class Names : public HostTest {
protected:
    // |charA|fur|furShape and |charB|fur|furShape, and a dependency node "furShape1".
    void SetUp() override {
        HostTest::SetUp();
        for (const char* character : {"charA", "charB"}) {
            const MObject top = mayahost::createNode("transform", character);
            const MObject fur = mayahost::createNode("transform", "fur", top);
            shapes.push_back(mayahost::createNode("mesh", "furShape", fur));
        }
    }
    std::vector<MObject> shapes;
};

TEST_F(Names, RepeatedShortNamesAreReachedByFullAndPartialPaths) {
    ASSERT_EQ(mayahost::nodeName(shapes[0]), "furShape");
    ASSERT_EQ(mayahost::nodeName(shapes[1]), "furShape");
    const struct {
        const char* name;
        int shape;
    } cases[] = {{"|charA|fur|furShape", 0},
                 {"charA|fur|furShape", 0},
                 {"charB|fur|furShape", 1},
                 {"|charB|fur|furShape", 1},
                 {":charB|fur|furShape", 1}};
    for (const auto& c : cases) EXPECT_EQ(mayahost::findNode(c.name), shapes[c.shape]) << c.name;
    EXPECT_EQ(mayahost::uniquePathName(shapes[1]), "charB|fur|furShape");
    MDagPath path;
    ASSERT_EQ(MDagPath::getAPathTo(shapes[0], path), MStatus::kSuccess);
    EXPECT_STREQ(path.partialPathName().asChar(), "charA|fur|furShape");
    EXPECT_STREQ(path.fullPathName().asChar(), "|charA|fur|furShape");
}

TEST_F(Names, AnAmbiguousOrMissingNameFindsNothingWithMayasMessage) {
    const struct {
        const char* name;
        const char* message;
    } cases[] = {{"furShape", "More than one object matches name: furShape"},
                 {"fur|furShape", "More than one object matches name: fur|furShape"},
                 {"|fur|furShape", "No object matches name: |fur|furShape"},
                 {"charC|fur|furShape", "No object matches name: charC|fur|furShape"},
                 {"char:furShape", "No object matches name: char:furShape"}};
    for (const auto& c : cases) {
        std::string error;
        EXPECT_TRUE(mayahost::findNode(c.name, &error).isNull()) << c.name;
        EXPECT_EQ(error, c.message);
    }
}

TEST_F(Names, ATakenNameGetsTheNextFreeNumberWhereItMustBeUnique) {
    const MObject fur = mayahost::findNode("charA|fur");
    const MObject second = mayahost::createNode("mesh", "furShape", fur);
    EXPECT_EQ(mayahost::nodeName(second), "furShape1");
    EXPECT_EQ(mayahost::findNode("charA|fur|furShape"), shapes[0]);
    // Dependency nodes share one space with the nodes under the world.
    EXPECT_EQ(mayahost::nodeName(mayahost::createUnknownNode("lambert", "charA")), "charA1");
    EXPECT_EQ(mayahost::nodeName(mayahost::createUnknownNode("lambert", "fur")), "fur");
    EXPECT_EQ(mayahost::nodeName(mayahost::createNode("transform", "grp7")), "grp7");
    EXPECT_EQ(mayahost::nodeName(mayahost::createNode("transform", "grp7")), "grp8");
    // A name Maya makes up is unique in the whole scene.
    EXPECT_EQ(mayahost::nodeName(mayahost::createNode("mesh")), "mesh1");
    EXPECT_EQ(mayahost::nodeName(mayahost::createNode("mesh")), "mesh2");
}

TEST_F(Names, AnUnknownNodeGivenAChildBecomesATransformAndKeepsItsPlace) {
    const MObject joint = mayahost::createUnknownNode("joint", "root");
    EXPECT_EQ(typeOf(joint), "unknown");
    const MObject elbow = mayahost::createUnknownNode("joint", "elbow", joint);
    EXPECT_EQ(typeOf(joint), "unknownTransform");
    EXPECT_EQ(typeOf(elbow), "unknownDag");
    EXPECT_EQ(mayahost::realTypeName(elbow), "joint");
    EXPECT_EQ(mayahost::realTypeName(shapes[0]), "mesh");
    const MObject shape = mayahost::createNode("mesh", "skin", elbow);
    ASSERT_FALSE(shape.isNull());
    EXPECT_EQ(typeOf(elbow), "unknownTransform");
    EXPECT_EQ(mayahost::findNode("|root|elbow|skin"), shape);
    // It never evaluates: its channels move nothing.
    MDagPath path;
    MDagPath::getAPathTo(shape, path);
    EXPECT_EQ(path.inclusiveMatrix(), MMatrix());
    EXPECT_EQ(mayahost::parentNode(shapes[0], elbow), MStatus::kSuccess);
    EXPECT_EQ(mayahost::findNode("elbow|furShape"), shapes[0]);
    EXPECT_EQ(mayahost::parentNode(joint, elbow), MStatus::kFailure);
    // Deleting the top takes what lies below it, as for any transform.
    EXPECT_EQ(mayahost::deleteNode(joint), MStatus::kSuccess);
    EXPECT_TRUE(mayahost::findNode("skin").isNull());
}

TEST_F(Names, WhatTheHostDoesNotModelIsKeptAsWritten) {
    loadBridge();
    const MObject bridge = mayahost::createNode("xrVellMayaVRay", "bridge");
    const MObject shadingGroup = mayahost::createUnknownNode("shadingEngine", "furSG");
    const struct {
        MObject node;
        const char* attribute;
        bool kept;
    } cases[] = {
        {shadingGroup, "dsm[0]", true},     {shapes[0], "vt[0:7]", true},
        {bridge, "iog[0].og[1].gcl", true}, {bridge, "visibility", true},
        {bridge, "castsShadows", true},     {bridge, "density", false},
        {bridge, "inputData", false},  // modelled: never kept
    };
    for (const auto& c : cases) {
        EXPECT_EQ(mayahost::keepValue(c.node, c.attribute, "-type \"string\" \"a\""), c.kept)
            << c.attribute;
        std::string text;
        EXPECT_EQ(mayahost::keptValue(c.node, c.attribute, &text), c.kept) << c.attribute;
    }
    EXPECT_TRUE(mayahost::keepValue(bridge, "visibility", "no"));
    std::string text;
    ASSERT_TRUE(mayahost::keptValue(bridge, "visibility", &text));
    EXPECT_EQ(text, "no");
    ASSERT_EQ(mayahost::addKeptAttribute(bridge, "density", "dn"), MStatus::kSuccess);
    EXPECT_TRUE(mayahost::keepValue(bridge, "dn", "3"));
    EXPECT_EQ(mayahost::keepConnection(bridge, "iog", shadingGroup, "dsm", nullptr),
              MStatus::kSuccess);
    std::string error;
    EXPECT_EQ(mayahost::keepConnection(bridge, "nothing", shadingGroup, "dsm", &error),
              MStatus::kInvalidParameter);
    EXPECT_EQ(error, "connect: no attribute bridge.nothing");
    const auto kept = mayahost::keptConnections(shadingGroup);
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(kept[0].source, "bridge.iog");
    EXPECT_EQ(kept[0].destination, "furSG.dsm");
    mayahost::deleteNode(bridge);
    EXPECT_TRUE(mayahost::keptConnections(shadingGroup).empty());
}

}  // namespace
