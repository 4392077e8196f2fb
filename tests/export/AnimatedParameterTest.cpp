#include <maya/MString.h>

#include <cmath>
#include <limits>

#include "ExportScene.h"

using xrvellfur::FurOperation;

namespace {

class AnimatedParameter : public ExportScene {
protected:
    void SetUp() override {
        ExportScene::SetUp();
        request = newRequest();
        translate(bridge, *request);
        samplesKeys = keyframes(*request, "sampleGenerator");
        fileKeys = keyframes(*request, "file");
        ASSERT_NE(samplesKeys, nullptr);
        ASSERT_NE(fileKeys, nullptr);
        furCalls().clear();
        mayahost::findPlug(fur, "cacheFilePattern").setString("/cache/hair.####.xvc");
    }

    const char* readFile(double time) { return parameter(*request, "file")->getString(0, time); }

    std::unique_ptr<vrayrender::GeomRequest> request;
    VUtils::AnimatedParameterInterface* samplesKeys = nullptr;
    VUtils::AnimatedParameterInterface* fileKeys = nullptr;
};

}  // namespace

TEST_F(AnimatedParameter, OnlyTheTwoAnimatedParametersAnswerTheKeyframeInterface) {
    for (const char* name :
         {"density", "length", "width", "verbosity", "imageSearchPath", "dynamicHairTesselation",
          "segmentLength", "obeyROI", "minROI", "maxROI"})
        EXPECT_EQ(keyframes(*request, name), nullptr) << name;
    EXPECT_STREQ(samplesKeys->getInterfaceName(), "EXT_ANIMATEDPARAM");
    EXPECT_EQ(samplesKeys->getPlugin(), nullptr);
    EXPECT_EQ(samplesKeys->numKeyframesPerFrame(), 0);
    EXPECT_EQ(fileKeys->numKeyframesPerFrame(), 1);
}

TEST_F(AnimatedParameter, SamplesKeepTheirOrderAndDuplicates) {
    for (double time : {1.25, 1.0, 1.25}) samplesKeys->createKeyFrame(time, 0);
    EXPECT_EQ(samples(*request), (std::vector<float>{1.25f, 1.0f, 1.25f}));
    EXPECT_EQ(callsOf(FurOperation::UpdateRenderSample).size(), 3u);
}

TEST_F(AnimatedParameter, AKeyframeOfAnotherIndexChangesNothingAndReachesNoFurNode) {
    samplesKeys->createKeyFrame(2.0, 1);
    EXPECT_TRUE(samples(*request).empty());
    EXPECT_TRUE(furCalls().empty());
}

TEST_F(AnimatedParameter, TheFurNodeGetsTheSceneTimeNotTheKeyframeTime) {
    mayahost::setCurrentTime(MTime(1.0 / 3.0, MTime::kFilm));
    samplesKeys->createKeyFrame(5.0, 0);
    const auto updated = callsOf(FurOperation::UpdateRenderSample);
    ASSERT_EQ(updated.size(), 1u);
    EXPECT_EQ(updated[0].time, static_cast<double>(static_cast<float>(1.0 / 3.0)));
    EXPECT_EQ(samples(*request), std::vector<float>{5.0f});
}

TEST_F(AnimatedParameter, ClearingDropsOnlyEarlierSamplesAndTellsTheFurNode) {
    for (double time : {2.0, 1.0, 1.5}) samplesKeys->createKeyFrame(time, 0);
    samplesKeys->clearKeyFrames(1.5, 7);
    EXPECT_EQ(samples(*request), (std::vector<float>{2.0f, 1.5f}));
    const auto before = callsOf(FurOperation::RemoveRenderSamplesBefore);
    ASSERT_EQ(before.size(), 1u);
    EXPECT_EQ(before[0].time, 1.5);
    EXPECT_TRUE(callsOf(FurOperation::RemoveRenderSamples).empty());
}

TEST_F(AnimatedParameter, OnlyATimeBeyondTheEndOfRenderEmptiesEverything) {
    for (double time : {1.0, 2.0}) samplesKeys->createKeyFrame(time, 0);
    samplesKeys->clearKeyFrames(1e29, 0);
    EXPECT_EQ(samples(*request).size(), 0u);  // both below 1e29
    EXPECT_TRUE(callsOf(FurOperation::RemoveRenderSamples).empty());

    const double huge = 1e40;  // beyond float: kept as infinity
    samplesKeys->createKeyFrame(huge, 0);
    samplesKeys->clearKeyFrames(1e29, 0);
    ASSERT_EQ(samples(*request).size(), 1u);
    EXPECT_EQ(samples(*request)[0], std::numeric_limits<float>::infinity());
    samplesKeys->clearKeyFrames(std::nan(""), 0);
    EXPECT_EQ(samples(*request).size(), 1u);

    samplesKeys->clearKeyFrames(1e30, 0);
    EXPECT_TRUE(samples(*request).empty());
    EXPECT_EQ(callsOf(FurOperation::RemoveRenderSamples).size(), 1u);
}

TEST_F(AnimatedParameter, TheSampleListIsAViewWhileTheCountReportsTheBaseList) {
    VUtils::VRayPluginParameter* list = parameter(*request, "sampleGenerator");
    for (double time : {1.0, 2.0, 3.0}) samplesKeys->createKeyFrame(time, 0);
    const VUtils::PtrArray<float> first = list->getFloatList(0.0);
    const VUtils::PtrArray<float> second = list->getFloatList(99.0);
    EXPECT_EQ(first.ptr, second.ptr);
    EXPECT_EQ(first.length, 3);
    EXPECT_EQ(first.refCounter, nullptr);
    EXPECT_EQ(first.type, VUtils::PtrArray<float>::ownerTypeNone);
    EXPECT_EQ(list->getCount(0.0), 0);
    EXPECT_EQ(list->getType(0, 0.0), 1);
}

TEST_F(AnimatedParameter, TheFileNameIsForTheLastKeyframesFrameTruncated) {
    struct Case {
        double keyframe;
        int flag;
        double readAt;
        const char* expected;
    };
    const Case cases[] = {
        {7.99, 0, 3.0, "/cache/hair.0007.xvc"},
        {-1.5, 0, 0.0, "/cache/hair.-0001.xvc"},
        {5.0, 1, 0.0, "/cache/hair.-0001.xvc"},  // another index leaves the frame
        {12.0, 0, 12.0, "/cache/hair.0012.xvc"},
    };
    EXPECT_STREQ(readFile(0.0), "/cache/hair.0000.xvc");  // before any keyframe
    for (const Case& c : cases) {
        fileKeys->createKeyFrame(c.keyframe, c.flag);
        EXPECT_STREQ(readFile(c.readAt), c.expected) << c.keyframe;
    }
    fileKeys->clearKeyFrames(1e30, 0);
    EXPECT_STREQ(readFile(0.0), "/cache/hair.0012.xvc");
    const auto asked = callsOf(FurOperation::GetCacheFileName);
    ASSERT_EQ(asked.size(), 6u);
    EXPECT_EQ(asked[1].frame, 7);
    EXPECT_EQ(asked[1].second, 1);
}

// The old text's address may come back from the allocator, so what shows the replacement is a
// fresh answer from the fur node on every read (and, under the leak checker, nothing left over).
TEST_F(AnimatedParameter, EveryReadAsksTheFurNodeAgainAndReplacesTheStoredText) {
    fileKeys->createKeyFrame(3.0, 0);
    const std::string first = readFile(0.0);
    mayahost::findPlug(fur, "cacheFilePattern").setString("/elsewhere/hair.####.xvc");
    const std::string second = readFile(0.0);
    const std::string third = readFile(0.0);
    EXPECT_EQ(first, "/cache/hair.0003.xvc");
    EXPECT_EQ(second, "/elsewhere/hair.0003.xvc");
    EXPECT_EQ(third, second);
    EXPECT_EQ(callsOf(FurOperation::GetCacheFileName).size(), 3u);
}

TEST_F(AnimatedParameter, WithoutAFurNodeTheFileIsEmpty) {
    std::string error;
    ASSERT_EQ(mayahost::disconnect(mayahost::findPlug(fur, "outputData"),
                                   mayahost::findPlug(bridge, "inputData"), &error),
              MStatus::kSuccess)
        << error;
    fileKeys->createKeyFrame(4.0, 0);
    EXPECT_STREQ(readFile(0.0), "");
    samplesKeys->createKeyFrame(4.0, 0);
    samplesKeys->clearKeyFrames(1e30, 0);
    EXPECT_TRUE(furCalls().empty());
}
