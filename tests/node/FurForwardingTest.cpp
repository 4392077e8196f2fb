// What reaches the fur node when Maya evaluates the bridge: only the operations the bridge
// means, on the connected fur node, and nothing at all without one.
#include <maya/MFnDependencyNode.h>
#include <maya/MFnTypedAttribute.h>

#include "FurScene.h"

using xrvellfur::FurOperation;

namespace {

class FurForwarding : public FurScene {
protected:
    void SetUp() override {
        FurScene::SetUp();
        const mayahost::PluginLoad load = mayahost::loadPlugin(LOOKALIKE_FUR_PATH);
        ASSERT_TRUE(load) << load.error;
        bridge = createBridge("bridge");
        ASSERT_EQ(mayahost::connectAttr("time1.outTime", "bridge.currentTime"), MStatus::kSuccess);
    }

    // Maya pulls the result when something reads it.
    void evaluate() {
        mayahost::setCurrentTime(MTime(mayahost::currentTime().value() + 1.0));
        EXPECT_EQ(mayahost::findPlug(bridge, "vrayGeomResult").asInt(), 0);
    }

    std::vector<FurOperation> operations() {
        std::vector<FurOperation> seen;
        for (const xrvellfur::FurCall& call : furCalls()) seen.push_back(call.operation);
        return seen;
    }

    MObject bridge;
};

}  // namespace

TEST_F(FurForwarding, EvaluationCallsTheFurNodeInTheIntendedSlots) {
    MObject fur = createFur("fur");
    createFur("bystander");
    connectFur(fur, bridge);
    evaluate();
    // Nothing is dirty now, so a second read takes the stored result without a compute.
    EXPECT_EQ(mayahost::findPlug(bridge, "vrayGeomResult").asInt(), 0);
    const std::vector<FurOperation> expected = {
        FurOperation::RemoveRenderSamples, FurOperation::UpdateRenderSample,
        FurOperation::GetObeyROI, FurOperation::GetROIBoundingBox};
    EXPECT_EQ(operations(), expected);
    for (const xrvellfur::FurCall& call : furCalls()) EXPECT_EQ(call.node, "fur");
    EXPECT_EQ(furCalls()[1].time, 2.0);  // frame 1 moved on by one
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(FurForwarding, NothingReachesAnyFurNodeWithoutAConnectedOne) {
    createFur("unconnected");
    std::string err = stderrOf([&] { evaluate(); });
    EXPECT_EQ(err, "");
    EXPECT_TRUE(furCalls().empty());
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(FurForwarding, ANodeOfAnotherTypeIsPassedOverSilently) {
    createFur("unconnected");
    mayahost::createNode("xrVellMayaPreview", "p");
    ASSERT_EQ(mayahost::connectAttr("p.outputData", "bridge.inputData"), MStatus::kSuccess);
    std::string err = stderrOf([&] { evaluate(); });
    EXPECT_EQ(err, "");
    EXPECT_TRUE(furCalls().empty());
    EXPECT_TRUE(mayahost::messages().empty());

    MObject mesh = mayahost::createNode("mesh", "m");
    MFnTypedAttribute typed;
    MObject furOut = typed.create("furOut", "fo", MTypeId(0x1158C6));
    MFnDependencyNode(mesh).addAttribute(furOut);
    ASSERT_EQ(mayahost::disconnectAttr("p.outputData", "bridge.inputData"), MStatus::kSuccess);
    ASSERT_EQ(mayahost::connectAttr("m.furOut", "bridge.inputData"), MStatus::kSuccess);
    err = stderrOf([&] { evaluate(); });
    EXPECT_EQ(err, "");
    EXPECT_TRUE(furCalls().empty());
    EXPECT_TRUE(mayahost::messages().empty());
}
