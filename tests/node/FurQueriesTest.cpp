// How the bridge node finds the fur node connected to inputData and reports its box.
#include <maya/MPxSurfaceShape.h>

#include <functional>

#include "FurScene.h"

using xrvellfur::FurOperation;

namespace {

const char* const kBoxError = "xrVellMayaVRay accessing invalid node - getConnectedBoundingBox!";

bool isEmpty(const MBoundingBox& box) { return !box.contains(box.min()); }

struct WrongType {
    const char* what;
    std::function<std::string()> source;  // makes the node, returns the plug to connect
};

const WrongType kWrongTypes[] = {
    {"a transform", [] { return FurScene::addFurOutput(mayahost::createNode("transform", "t")); }},
    {"a mesh", [] { return FurScene::addFurOutput(mayahost::createNode("mesh", "m")); }},
    {"the time node, not a DAG node",
     [] { return FurScene::addFurOutput(mayahost::findNode("time1")); }},
    {"a type whose name starts like the fur node's",
     [] {
         mayahost::createNode("xrVellMayaPreview", "p");
         return std::string("p.outputData");
     }},
};

class FurQueries : public FurScene {
protected:
    void SetUp() override {
        FurScene::SetUp();
        const mayahost::PluginLoad load = mayahost::loadPlugin(LOOKALIKE_FUR_PATH);
        ASSERT_TRUE(load) << load.error;
        bridge = createBridge("bridge");
    }

    const MPxSurfaceShape& bridgeShape() const {
        return *static_cast<MPxSurfaceShape*>(mayahost::userNode(bridge));
    }

    // Asks for the box the way Maya does, and the stderr it caused.
    MBoundingBox boxShowing(std::string* shownOnStderr) const {
        MBoundingBox box;
        *shownOnStderr = stderrOf([&] { box = bridgeShape().boundingBox(); });
        return box;
    }

    MObject bridge;
};

}  // namespace

TEST_F(FurQueries, NothingConnectedGivesAnEmptyBoxSilentlyAndTheNodeIsStillBounded) {
    std::string err;
    EXPECT_TRUE(isEmpty(boxShowing(&err)));
    EXPECT_EQ(err, "");
    EXPECT_TRUE(bridgeShape().isBounded());
    EXPECT_TRUE(isEmpty(shapeBox(bridge)));
    EXPECT_TRUE(mayahost::messages().empty());
    EXPECT_TRUE(furCalls().empty());
}

TEST_F(FurQueries, ANodeOfAnotherTypeGivesAnEmptyBoxAndTheErrorOncePerCall) {
    for (const WrongType& wrong : kWrongTypes) {
        SCOPED_TRACE(wrong.what);
        mayahost::reset();
        SetUp();
        std::string error;
        ASSERT_EQ(mayahost::connectAttr(wrong.source(), "bridge.inputData", &error),
                  MStatus::kSuccess)
            << error;
        for (int call = 1; call <= 2; ++call) {
            std::string err;
            EXPECT_TRUE(isEmpty(boxShowing(&err)));
            EXPECT_EQ(err, std::string("// Error: ") + kBoxError + "\n");
            EXPECT_EQ(shown(mayahost::Message::Channel::Error),
                      std::vector<std::string>(call, kBoxError));
        }
        EXPECT_TRUE(bridgeShape().isBounded());
        EXPECT_EQ(mayahost::messages().size(), 2u);
        EXPECT_TRUE(furCalls().empty());
    }
}

// Corners no float holds: the box keeps its doubles on the way.
TEST_F(FurQueries, TheFurNodesBoxComesBackSilentlyFromTheFurNode) {
    MObject fur = createFur("fur");
    const MPoint min(0.1, -2.7e-3, -1001.3);
    const MPoint max(1001.3, 2.7e-3, 1e10 + 0.5);
    setFurBox(fur, min, max);
    connectFur(fur, bridge);
    std::string err;
    const MBoundingBox box = boxShowing(&err);
    EXPECT_EQ(box.min(), min);
    EXPECT_EQ(box.max(), max);
    EXPECT_EQ(err, "");
    EXPECT_TRUE(mayahost::messages().empty());
    ASSERT_EQ(furCalls().size(), 1u);
    EXPECT_EQ(furCalls()[0].node, "fur");
    EXPECT_EQ(furCalls()[0].operation, FurOperation::BoundingBox);

    // Maya's own query of the bridge's extent lands on the same box.
    EXPECT_EQ(shapeBox(bridge).max(), max);
    EXPECT_EQ(furCalls().size(), 2u);
}

TEST_F(FurQueries, TheBoxStaysInTheFurNodesObjectSpaceWhenItsTransformMoves) {
    MObject fur = createFur("fur");
    setFurBox(fur, MPoint(1, 2, 3), MPoint(3, 4, 5));
    connectFur(fur, bridge);
    const MObject transform = transformOf(fur);
    setChannels(transform, "translate", 100, -50, 7);
    setChannels(transform, "rotate", 0.5, 1.0, 1.5);
    setChannels(transform, "scale", 2, 3, 4);
    setChannels(transformOf(bridge), "translate", 9, 9, 9);
    const MBoundingBox box = bridgeShape().boundingBox();
    EXPECT_EQ(box.min(), MPoint(1, 2, 3));
    EXPECT_EQ(box.max(), MPoint(3, 4, 5));
}

TEST_F(FurQueries, OnlyWhatFeedsInputDataCounts) {
    MObject fur = createFur("fur");
    ASSERT_EQ(mayahost::connectAttr("bridge.outApiClassification", "fur.imageSearchPath"),
              MStatus::kSuccess);
    std::string err;
    EXPECT_TRUE(isEmpty(boxShowing(&err)));
    EXPECT_EQ(err, "");
    EXPECT_TRUE(furCalls().empty());
    // inputData is not readable, so it can never be the source of a connection.
    mayahost::createNode("xrVellMayaPreview", "p");
    std::string error;
    EXPECT_EQ(mayahost::connectAttr("bridge.inputData", "p.outputData", &error), MStatus::kFailure);
    EXPECT_EQ(error, "connect: bridge.inputData is not readable");
}

TEST_F(FurQueries, EveryQueryFollowsTheConnectionAsItIsNow) {
    MObject first = createFur("first");
    MObject second = createFur("second");
    setFurBox(second, MPoint(10, 10, 10), MPoint(20, 20, 20));
    connectFur(first, bridge);
    EXPECT_EQ(bridgeShape().boundingBox().max(), MPoint(1, 1, 1));
    ASSERT_EQ(mayahost::disconnectAttr("first.outputData", "bridge.inputData"), MStatus::kSuccess);
    EXPECT_TRUE(isEmpty(bridgeShape().boundingBox()));
    connectFur(second, bridge);
    EXPECT_EQ(bridgeShape().boundingBox().max(), MPoint(20, 20, 20));
    EXPECT_TRUE(mayahost::messages().empty());
}
