// The host's DAG: parenting, path names, transform matrices and object-space boxes.
#include <maya/MDagPath.h>
#include <maya/MFnDagNode.h>
#include <maya/MMatrix.h>

#include <cmath>

#include "FurScene.h"

namespace {

class Dag : public HostTest {};

MObject parentOf(const MObject& node) { return FurScene::transformOf(node); }

MPoint worldPoint(const MObject& shape, const MPoint& local) {
    MDagPath path;
    EXPECT_EQ(MDagPath::getAPathTo(shape, path), MStatus::kSuccess);
    return local * path.inclusiveMatrix();
}

void expectNear(const MPoint& actual, const MPoint& expected) {
    EXPECT_NEAR(actual.x, expected.x, 1e-12);
    EXPECT_NEAR(actual.y, expected.y, 1e-12);
    EXPECT_NEAR(actual.z, expected.z, 1e-12);
    EXPECT_EQ(actual.w, expected.w);
}

struct TransformCase {
    const char* what;
    double translate[3];
    double rotate[3];  // radians
    double scale[3];
    MPoint expected;  // where (1, 2, 3) lands
};

const double kQuarter = std::acos(0.0);

const TransformCase kTransformCases[] = {
    {"translate", {10, 20, 30}, {0, 0, 0}, {1, 1, 1}, MPoint(11, 22, 33)},
    {"scale", {0, 0, 0}, {0, 0, 0}, {2, 3, 4}, MPoint(2, 6, 12)},
    {"rotate x", {0, 0, 0}, {kQuarter, 0, 0}, {1, 1, 1}, MPoint(1, -3, 2)},
    {"rotate y", {0, 0, 0}, {0, kQuarter, 0}, {1, 1, 1}, MPoint(3, 2, -1)},
    {"rotate z", {0, 0, 0}, {0, 0, kQuarter}, {1, 1, 1}, MPoint(-2, 1, 3)},
    {"scale, then rotate, then translate",
     {10, 0, 0},
     {0, 0, kQuarter},
     {2, 2, 2},
     MPoint(6, 2, 6)},
    {"rotate x before y", {0, 0, 0}, {kQuarter, kQuarter, 0}, {1, 1, 1}, MPoint(2, -3, -1)},
};

}  // namespace

TEST_F(Dag, AShapeCreatedAloneGetsATransformAndTheFullPathNamesBoth) {
    MObject mesh = mayahost::createNode("mesh");
    MObject transform = parentOf(mesh);
    EXPECT_EQ(mayahost::nodeName(transform), "transform1");
    MDagPath path;
    ASSERT_EQ(MDagPath::getAPathTo(mesh, path), MStatus::kSuccess);
    EXPECT_STREQ(path.fullPathName().asChar(), "|transform1|mesh1");
    EXPECT_EQ(path.length(), 2u);
    EXPECT_EQ(path.transform(), transform);
    EXPECT_EQ(MFnDagNode(transform).childCount(), 1u);
}

TEST_F(Dag, NodesGoOnlyUnderTransforms) {
    MObject group = mayahost::createNode("transform", "group");
    std::string error;
    MObject mesh = mayahost::createNode("mesh", "m", group, &error);
    ASSERT_FALSE(mesh.isNull()) << error;
    EXPECT_EQ(parentOf(mesh), group);
    EXPECT_TRUE(mayahost::createNode("mesh", "x", mesh, &error).isNull());
    EXPECT_TRUE(mayahost::createNode("time", "t", group, &error).isNull());
    EXPECT_EQ(error, "createNode: a time cannot be placed under that parent");
}

TEST_F(Dag, InclusiveMatrixCarriesObjectSpaceIntoWorldSpace) {
    for (const TransformCase& c : kTransformCases) {
        SCOPED_TRACE(c.what);
        MObject mesh = mayahost::createNode("mesh");
        MObject transform = parentOf(mesh);
        FurScene::setChannels(transform, "translate", c.translate[0], c.translate[1],
                              c.translate[2]);
        FurScene::setChannels(transform, "rotate", c.rotate[0], c.rotate[1], c.rotate[2]);
        FurScene::setChannels(transform, "scale", c.scale[0], c.scale[1], c.scale[2]);
        expectNear(worldPoint(mesh, MPoint(1, 2, 3)), c.expected);
    }
}

TEST_F(Dag, NestedTransformsApplyInnermostFirst) {
    MObject outer = mayahost::createNode("transform", "outer");
    MObject inner = mayahost::createNode("transform", "inner", outer);
    MObject mesh = mayahost::createNode("mesh", "m", inner);
    FurScene::setChannels(outer, "translate", 0, 5, 0);
    FurScene::setChannels(inner, "scale", 2, 2, 2);
    expectNear(worldPoint(mesh, MPoint(1, 2, 3)), MPoint(2, 9, 6));
    MDagPath path;
    MDagPath::getAPathTo(mesh, path);
    EXPECT_STREQ(path.fullPathName().asChar(), "|outer|inner|m");
    expectNear(MPoint(1, 2, 3) * path.exclusiveMatrix(), MPoint(2, 9, 6));
}

TEST_F(Dag, DeletingATransformTakesItsChildrenAndDeletingAShapeLeavesItsTransform) {
    MObject first = mayahost::createNode("mesh", "firstShape");
    MObject firstTransform = parentOf(first);
    const std::string transformName = mayahost::nodeName(firstTransform);
    ASSERT_FALSE(transformName.empty());
    ASSERT_EQ(mayahost::deleteNode(first), MStatus::kSuccess);
    EXPECT_EQ(mayahost::nodeName(first), "");
    EXPECT_EQ(mayahost::nodeName(firstTransform), transformName);
    EXPECT_TRUE(mayahost::findNode(transformName) == firstTransform);
    MStatus bound = MStatus::kFailure;
    MFnDagNode transform(firstTransform, &bound);
    EXPECT_EQ(bound, MStatus::kSuccess);
    EXPECT_EQ(transform.childCount(), 0u);

    MObject second = mayahost::createNode("mesh", "secondShape");
    MObject secondTransform = parentOf(second);
    ASSERT_EQ(mayahost::deleteNode(secondTransform), MStatus::kSuccess);
    EXPECT_EQ(mayahost::nodeName(second), "");
    EXPECT_EQ(mayahost::nodeName(secondTransform), "");
    MFnDagNode gone(secondTransform, &bound);
    EXPECT_EQ(bound, MStatus::kInvalidParameter);
}

TEST_F(Dag, DagFunctionSetsRefuseDependencyNodes) {
    MObject time = mayahost::findNode("time1");
    MStatus status;
    MFnDagNode dag(time, &status);
    EXPECT_EQ(status, MStatus::kInvalidParameter);
    EXPECT_STREQ(dag.typeName().asChar(), "");
    EXPECT_FALSE(dag.boundingBox().contains(MPoint()));
    MFnDependencyNode dependency(time, &status);
    EXPECT_EQ(status, MStatus::kSuccess);
    EXPECT_STREQ(dependency.typeName().asChar(), "time");
    EXPECT_EQ(dependency.userNode(), nullptr);
}

TEST_F(Dag, ATransformsBoxHoldsItsChildrensBoxesInItsOwnSpace) {
    FurScene::loadFur();
    MObject group = mayahost::createNode("transform", "group");
    MObject offset = mayahost::createNode("transform", "offset", group);
    FurScene::setChannels(offset, "translate", 10, 0, 0);
    MObject fur = mayahost::createNode("xrVellMaya", "fur", offset);
    mayahost::createNode("mesh", "empty", group);
    FurScene::setChannels(group, "translate", 0, 100, 0);  // the group's own matrix stays out

    const MBoundingBox box = FurScene::shapeBox(group);
    EXPECT_EQ(box.min(), MPoint(9, -1, -1));
    EXPECT_EQ(box.max(), MPoint(11, 1, 1));
    EXPECT_EQ(FurScene::shapeBox(fur).min(), MPoint(-1, -1, -1));
}
