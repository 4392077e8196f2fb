// Selecting the bridge in the legacy viewport: always accepted, with the point at the
// world-space centre of the fur node's box for a single click.
#include <cmath>

#include "FurScene.h"

namespace {

const char* const kBoxError = "xrVellMayaVRay accessing invalid node - getConnectedBoundingBox!";

class Selection : public FurScene {
protected:
    void SetUp() override {
        FurScene::SetUp();
        bridge = createBridge("bridge");
        fur = createFur("fur");
        setFurBox(fur, MPoint(1, 2, 3), MPoint(3, 4, 5));  // centre (2, 3, 4)
        // The bridge's own transform: scale 2, then a quarter turn about z, then (10, 0, 0).
        const MObject transform = transformOf(bridge);
        setChannels(transform, "scale", 2, 2, 2);
        setChannels(transform, "rotate", 0, 0, std::acos(0.0));
        setChannels(transform, "translate", 10, 0, 0);
    }

    static void expectPoint(const MPoint& actual, const MPoint& expected) {
        EXPECT_NEAR(actual.x, expected.x, 1e-12);
        EXPECT_NEAR(actual.y, expected.y, 1e-12);
        EXPECT_NEAR(actual.z, expected.z, 1e-12);
        EXPECT_EQ(actual.w, expected.w);
    }

    MObject bridge;
    MObject fur;
};

}  // namespace

TEST_F(Selection, ASingleClickSelectsAtTheWorldSpaceCentreOfTheFurBox) {
    connectFur(fur, bridge);
    const mayahost::Selection selection = mayahost::select(bridge, true);
    EXPECT_TRUE(selection.selected);
    EXPECT_EQ(selection.list, std::vector<std::string>{"|transform1|bridge"});
    ASSERT_EQ(selection.calls.size(), 1u);
    const mayahost::SelectionCall& call = selection.calls[0];
    EXPECT_EQ(call.items, std::vector<std::string>{"|transform1|bridge"});
    EXPECT_EQ(call.maskTypes, std::vector<int>{11});
    EXPECT_FALSE(call.isComponent);
    // (2, 3, 4) scaled to (4, 6, 8), turned to (-6, 4, 8), moved to (4, 4, 8).
    expectPoint(call.point, MPoint(4, 4, 8));
    ASSERT_EQ(selection.points.size(), 1u);
    expectPoint(selection.points[0], MPoint(4, 4, 8));
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(Selection, AMarqueeSelectsAtTheUntransformedOrigin) {
    connectFur(fur, bridge);
    const mayahost::Selection selection = mayahost::select(bridge, false);
    EXPECT_TRUE(selection.selected);
    ASSERT_EQ(selection.calls.size(), 1u);
    EXPECT_EQ(selection.calls[0].point, MPoint(0, 0, 0, 1));
    EXPECT_EQ(selection.calls[0].maskTypes, std::vector<int>{11});
    EXPECT_TRUE(furCalls().empty());  // no box is asked for
}

TEST_F(Selection, SelectionIsAcceptedWithoutAFurNode) {
    std::string err;
    mayahost::Selection selection;
    err = stderrOf([&] { selection = mayahost::select(bridge, true); });
    EXPECT_TRUE(selection.selected);
    EXPECT_EQ(selection.list.size(), 1u);
    EXPECT_EQ(err, "");
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(Selection, ANodeOfAnotherTypeIsReportedOncePerSingleClick) {
    ASSERT_TRUE(mayahost::loadPlugin(LOOKALIKE_FUR_PATH));
    mayahost::createNode("xrVellMayaPreview", "p");
    ASSERT_EQ(mayahost::connectAttr("p.outputData", "bridge.inputData"), MStatus::kSuccess);
    EXPECT_TRUE(mayahost::select(bridge, true).selected);
    EXPECT_TRUE(mayahost::select(bridge, true).selected);
    EXPECT_TRUE(mayahost::select(bridge, false).selected);
    EXPECT_EQ(shown(mayahost::Message::Channel::Error), std::vector<std::string>(2, kBoxError));
}
