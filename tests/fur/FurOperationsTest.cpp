// The fur node's own operations: their answers, their record, and their places in the
// virtual table that the bridge relies on.
#include <xrvellfur/xrVellMaya.h>

#include <climits>
#include <functional>
#include <string>

#include "FurScene.h"

using xrvellfur::FurCall;
using xrvellfur::FurOperation;

namespace {

class FurOperations : public FurScene {
protected:
    void SetUp() override {
        FurScene::SetUp();
        fur = createFur("hair");
    }

    xrVellMaya& node() { return *static_cast<xrVellMaya*>(mayahost::userNode(fur)); }

    MObject fur;
};

struct CacheCase {
    int frame;
    const char* name;
};

const CacheCase kCacheCases[] = {
    {0, "/cache/hair.0000.xvc"},
    {7, "/cache/hair.0007.xvc"},
    {42, "/cache/hair.0042.xvc"},
    {1234, "/cache/hair.1234.xvc"},
    {12345, "/cache/hair.12345.xvc"},
    {-5, "/cache/hair.-0005.xvc"},
    {-123, "/cache/hair.-0123.xvc"},
    {-12345, "/cache/hair.-12345.xvc"},
    {INT_MAX, "/cache/hair.2147483647.xvc"},
    {INT_MIN, "/cache/hair.-2147483648.xvc"},
};

}  // namespace

// The contracted layout, written out independently of the fur node's header: the fur node's
// own operations follow MPxSurfaceShape's, in this order. Outside the anonymous namespace: a
// compiler that sees every class derived from it would bind these calls to the pure stubs.
class ContractedFurNode : public MPxSurfaceShape {
public:
    virtual int operation1() = 0;
    virtual void operation2(double) = 0;
    virtual void operation3() = 0;
    virtual void operation4(double) = 0;
    virtual double operation5(int) = 0;
    virtual std::string operation6(int, int) = 0;
    virtual std::string operation7() = 0;
    virtual bool operation8() = 0;
    virtual MBoundingBox operation9() = 0;
};

TEST_F(FurOperations, CacheFileNamesPadTheFrameToFourDigitsWithTheSignInFront) {
    mayahost::findPlug(fur, "cacheFilePattern").setString("/cache/hair.####.xvc");
    for (const CacheCase& c : kCacheCases) {
        SCOPED_TRACE(c.frame);
        EXPECT_EQ(node().getCacheFileName(c.frame, 1), c.name);
    }
}

TEST_F(FurOperations, APatternWithoutAFrameNamesOneFileForEveryFrame) {
    EXPECT_EQ(node().getCacheFileName(3, 1), "");
    mayahost::findPlug(fur, "cacheFilePattern").setString("/cache/static.xvc");
    EXPECT_EQ(node().getCacheFileName(3, 1), "/cache/static.xvc");
    EXPECT_EQ(node().getCacheFilePattern(), "/cache/static.xvc");
    mayahost::findPlug(fur, "cacheFilePattern").setString("a.####.####");
    EXPECT_EQ(node().getCacheFileName(-1, 1), "a.-0001.####");
}

TEST_F(FurOperations, RenderSamplesAreKeptSortedWithoutRepeatsAndTrimmedFromBelow) {
    node().updateRenderSample(3.0);
    node().updateRenderSample(1.0);
    node().updateRenderSample(3.0);
    node().updateRenderSample(2.0);
    ASSERT_EQ(node().renderSampleCount(), 3);
    EXPECT_EQ(node().renderSampleTime(0), 1.0);
    EXPECT_EQ(node().renderSampleTime(2), 3.0);
    EXPECT_EQ(node().renderSampleTime(3), 0.0);
    EXPECT_EQ(node().renderSampleTime(-1), 0.0);

    node().removeRenderSamplesBefore(2.0);
    ASSERT_EQ(node().renderSampleCount(), 2);
    EXPECT_EQ(node().renderSampleTime(0), 2.0);
    node().removeRenderSamples();
    EXPECT_EQ(node().renderSampleCount(), 0);
}

TEST_F(FurOperations, BoxAndRegionOfInterestComeFromTheNodesAttributes) {
    EXPECT_FALSE(node().getObeyROI());
    EXPECT_EQ(node().getROIBoundingBox().min(), MPoint(-1, -1, -1));
    mayahost::findPlug(fur, "obeyROI").setBool(true);
    mayahost::findPlug(fur, "roiMaxY").setDouble(2.5);
    mayahost::findPlug(fur, "roiMinZ").setDouble(-4.0);
    EXPECT_TRUE(node().getObeyROI());
    EXPECT_EQ(node().getROIBoundingBox().max(), MPoint(1, 2.5, 1));
    EXPECT_EQ(node().getROIBoundingBox().min(), MPoint(-1, -1, -4));

    setFurBox(fur, MPoint(1, 2, 3), MPoint(3, 4, 5));
    EXPECT_TRUE(node().isBounded());
    EXPECT_EQ(shapeBox(fur).center(), MPoint(2, 3, 4));
}

TEST_F(FurOperations, EveryCallIsRecordedWithItsNodeAndArguments) {
    MObject other = createFur("other");
    node().updateRenderSample(2.5);
    node().getCacheFileName(12, 1);
    static_cast<xrVellMaya*>(mayahost::userNode(other))->removeRenderSamplesBefore(-0.5);
    node().renderSampleTime(4);

    const xrvellfur::FurCallLog& calls = furCalls();
    ASSERT_EQ(calls.size(), 4u);
    EXPECT_EQ(calls[0].node, "hair");
    EXPECT_EQ(calls[0].operation, FurOperation::UpdateRenderSample);
    EXPECT_EQ(calls[0].time, 2.5);
    EXPECT_EQ(calls[1].operation, FurOperation::GetCacheFileName);
    EXPECT_EQ(calls[1].frame, 12);
    EXPECT_EQ(calls[1].second, 1);
    EXPECT_EQ(calls[2].node, "other");
    EXPECT_EQ(calls[2].operation, FurOperation::RemoveRenderSamplesBefore);
    EXPECT_EQ(calls[2].time, -0.5);
    EXPECT_EQ(calls[3].operation, FurOperation::RenderSampleTime);
    EXPECT_EQ(calls[3].index, 4);
}

// A slot off by one in the fur node's declaration lands a call on its neighbour.
TEST_F(FurOperations, EachContractedSlotReachesTheOperationOfThatNumber) {
    auto& contracted = *static_cast<ContractedFurNode*>(mayahost::userNode(fur));
    const std::function<void()> slots[] = {
        [&] { contracted.operation1(); },  [&] { contracted.operation2(1.0); },
        [&] { contracted.operation3(); },  [&] { contracted.operation4(1.0); },
        [&] { contracted.operation5(0); }, [&] { contracted.operation6(1, 1); },
        [&] { contracted.operation7(); },  [&] { contracted.operation8(); },
        [&] { contracted.operation9(); },
    };
    for (int slot = 1; slot <= 9; ++slot) {
        SCOPED_TRACE(slot);
        furCalls().clear();
        slots[slot - 1]();
        ASSERT_EQ(furCalls().size(), 1u);
        EXPECT_EQ(static_cast<int>(furCalls()[0].operation), slot);
    }
}
