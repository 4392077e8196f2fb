// What the bridge's viewport UI queues for each display style and status.
#include <vector>

#include "FurScene.h"

using mayahost::DrawContext;
using mayahost::QueuedRequest;

namespace {

const int kNoColour = -1;

struct Expected {
    int token;
    M3dView::DisplayStyle style;
    int colorIndex;  // kNoColour when none is set
    int colorTable;
};

struct DrawCase {
    const char* what;
    M3dView::DisplayStyle style;
    M3dView::DisplayStatus status;
    std::vector<Expected> queued;
};

const M3dView::DisplayStyle kWire = M3dView::kWireFrame;
const M3dView::DisplayStyle kSmooth = M3dView::kGouraudShaded;
const M3dView::DisplayStyle kFlat = M3dView::kFlatShaded;

const DrawCase kDrawCases[] = {
    {"wireframe, active", kWire, M3dView::kActive, {{0, kWire, 15, 0}}},
    {"wireframe, dormant", kWire, M3dView::kDormant, {{0, kWire, 4, 2}}},
    {"wireframe, hilite", kWire, M3dView::kHilite, {{0, kWire, 17, 0}}},
    {"wireframe, lead", kWire, M3dView::kLead, {{0, kWire, 18, 0}}},
    {"wireframe, active affected", kWire, M3dView::kActiveAffected, {{0, kWire, 8, 0}}},
    {"wireframe, template", kWire, M3dView::kTemplate, {{0, kWire, kNoColour, 0}}},
    {"wireframe, live", kWire, M3dView::kLive, {{0, kWire, kNoColour, 0}}},
    {"smooth, active", kSmooth, M3dView::kActive, {{1, kWire, 15, 0}, {2, kSmooth, kNoColour, 0}}},
    {"smooth, hilite", kSmooth, M3dView::kHilite, {{1, kWire, 17, 0}, {2, kSmooth, kNoColour, 0}}},
    {"smooth, dormant", kSmooth, M3dView::kDormant, {{2, kSmooth, kNoColour, 0}}},
    {"smooth, active affected", kSmooth, M3dView::kActiveAffected, {{2, kSmooth, kNoColour, 0}}},
    {"flat, lead", kFlat, M3dView::kLead, {{1, kWire, 18, 0}, {3, kFlat, kNoColour, 0}}},
    {"flat, dormant", kFlat, M3dView::kDormant, {{3, kFlat, kNoColour, 0}}},
    {"bounding box", M3dView::kBoundingBox, M3dView::kActive, {}},
    {"points", M3dView::kPoints, M3dView::kActive, {}},
};

class DrawRequests : public FurScene {
protected:
    void SetUp() override {
        FurScene::SetUp();
        bridge = createBridge("bridge");
        MObject fur = createFur("fur");
        connectFur(fur, bridge);
    }

    std::vector<QueuedRequest> requestsFor(M3dView::DisplayStyle style,
                                           M3dView::DisplayStatus status, bool meshesShown = true) {
        DrawContext context;
        context.style = style;
        context.status = status;
        context.meshesShown = meshesShown;
        std::string error;
        auto requests = mayahost::drawRequests(bridge, context, &error);
        EXPECT_EQ(error, "");
        return requests;
    }

    MObject bridge;
};

}  // namespace

TEST_F(DrawRequests, TokensColoursAndStylesFollowTheDisplayStyleAndStatus) {
    for (const DrawCase& c : kDrawCases) {
        SCOPED_TRACE(c.what);
        std::string err;
        std::vector<QueuedRequest> requests;
        err = stderrOf([&] { requests = requestsFor(c.style, c.status); });
        EXPECT_EQ(err, "");
        ASSERT_EQ(requests.size(), c.queued.size());
        for (size_t i = 0; i < requests.size(); ++i) {
            SCOPED_TRACE(i);
            const Expected& expected = c.queued[i];
            EXPECT_EQ(requests[i].token, expected.token);
            EXPECT_EQ(requests[i].style, expected.style);
            EXPECT_EQ(requests[i].status, c.status);
            EXPECT_EQ(requests[i].colorSet, expected.colorIndex != kNoColour);
            if (expected.colorIndex != kNoColour) {
                EXPECT_EQ(requests[i].colorIndex, expected.colorIndex);
                EXPECT_EQ(requests[i].colorTable, expected.colorTable);
            }
            EXPECT_EQ(requests[i].path, "|transform1|bridge");
            EXPECT_EQ(requests[i].geometry, static_cast<const void*>(mayahost::userNode(bridge)));
        }
    }
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(DrawRequests, NothingIsQueuedWhenTheViewHidesMeshes) {
    const M3dView::DisplayStyle styles[] = {kWire, kSmooth, kFlat};
    for (M3dView::DisplayStyle style : styles) {
        SCOPED_TRACE(style);
        EXPECT_TRUE(requestsFor(style, M3dView::kActive, false).empty());
    }
}

TEST_F(DrawRequests, ShadedRequestsCarryTheEvaluatedMaterialAndItsTransparency) {
    for (bool transparent : {false, true}) {
        SCOPED_TRACE(transparent);
        mayahost::MaterialSettings material;
        material.transparent = transparent;
        ASSERT_EQ(mayahost::assignMaterial(bridge, material), MStatus::kSuccess);
        const auto requests = requestsFor(kSmooth, M3dView::kActive);
        ASSERT_EQ(requests.size(), 2u);
        const QueuedRequest& overlay = requests[0];
        const QueuedRequest& shaded = requests[1];
        EXPECT_TRUE(shaded.materialAssigned);
        EXPECT_TRUE(shaded.materialEvaluated);
        EXPECT_EQ(shaded.transparent, transparent);
        EXPECT_FALSE(overlay.materialAssigned);
        EXPECT_FALSE(overlay.transparent);
    }
}

TEST_F(DrawRequests, ATexturedMaterialEvaluatesItsTextureIntoTheDrawData) {
    EXPECT_FALSE(requestsFor(kFlat, M3dView::kLead)[1].textureEvaluated);
    mayahost::MaterialSettings material;
    material.textured = true;
    mayahost::assignMaterial(bridge, material);
    const auto requests = requestsFor(kFlat, M3dView::kLead);
    ASSERT_EQ(requests.size(), 2u);
    EXPECT_TRUE(requests[0].textureEvaluated);
    EXPECT_TRUE(requests[1].textureEvaluated);
}

TEST_F(DrawRequests, AMaterialThatFailsIsReportedOnStderrAndTheRequestStillQueued) {
    mayahost::MaterialSettings material;
    material.evaluates = false;
    material.transparent = true;
    mayahost::assignMaterial(bridge, material);
    std::vector<QueuedRequest> requests;
    const std::string err = stderrOf([&] { requests = requestsFor(kSmooth, M3dView::kDormant); });
    EXPECT_EQ(err, "Couldn't evaluate\n");
    ASSERT_EQ(requests.size(), 1u);
    EXPECT_EQ(requests[0].token, 2);
    EXPECT_TRUE(requests[0].materialAssigned);
    EXPECT_FALSE(requests[0].materialEvaluated);
    EXPECT_FALSE(requests[0].transparent);
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(DrawRequests, OnlyShapesWithAViewportUIAreAsked) {
    std::string error;
    EXPECT_TRUE(
        mayahost::drawRequests(mayahost::createNode("mesh"), DrawContext(), &error).empty());
    EXPECT_EQ(error, "drawRequests: the node has no legacy viewport UI");
}
