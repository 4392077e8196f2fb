#include <maya/MString.h>

#include <cmath>
#include <limits>
#include <utility>

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

// An interface added under an id the parameter answers itself never hides its own; each of the
// two takes the other's interfaces, which carry the same ids.
TEST_F(AnimatedParameter, AddedInterfacesNeverShadowTheirOwn) {
    VUtils::VRayPluginParameter* const both[] = {parameter(*request, "sampleGenerator"),
                                                 parameter(*request, "file")};
    for (int which = 0; which < 2; ++which) {
        VUtils::VRayPluginParameter* param = both[which];
        for (unsigned long id :
             {EXT_ANIMATEDPARAM, EXT_SETTABLE_PARAM, EXT_CLONEABLE_PARAM, EXT_RTTEX, EXT_TEXTURE,
              EXT_TEXTURE_FLOAT, EXT_TEXTURE_INT, EXT_TEXTURE_TRANSFORM, EXT_TEXTURE_VECTOR}) {
            PluginInterface* own = param->newInterface(id);
            PluginInterface* shadow = both[1 - which]->newInterface(id);
            ASSERT_NE(own, nullptr) << param->getName() << " " << id;
            ASSERT_NE(shadow, own);
            param->addInterface(shadow, 0);
            EXPECT_EQ(param->newInterface(id), own) << param->getName() << " " << id;
            EXPECT_TRUE(param->removeInterface(shadow));
        }
    }
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

// The time is the scene's, in the scene's unit, narrowed to float on its way.
TEST_F(AnimatedParameter, TheFurNodeGetsTheSceneTimeNotTheKeyframeTime) {
    const std::pair<MTime::Unit, double> sceneTimes[] = {
        {MTime::kFilm, 1.0 / 3.0},
        {MTime::kNTSCFrame, 1001.3},
        {MTime::kPALFrame, -2.7e-3},
        {MTime::k23_976FPS, 1001.0}};
    for (const auto& scene : sceneTimes) {
        MTime::setUIUnit(scene.first);
        mayahost::setCurrentTime(MTime(scene.second, scene.first));
        furCalls().clear();
        samplesKeys->createKeyFrame(0.1, 0);
        const auto updated = callsOf(FurOperation::UpdateRenderSample);
        ASSERT_EQ(updated.size(), 1u);
        EXPECT_EQ(updated[0].time, static_cast<double>(static_cast<float>(scene.second)))
            << scene.second;
    }
    EXPECT_EQ(samples(*request), std::vector<float>(std::size(sceneTimes), 0.1f));
}

// A sample is compared with the clearing time as a double: the float nearest 1001.3 lies below
// it and goes, the float nearest 1001.7 lies above it and stays.
TEST_F(AnimatedParameter, ClearingDropsOnlyEarlierSamplesAndTellsTheFurNode) {
    for (double time : {1001.7, 1001.3, 1001.25, 1001.0}) samplesKeys->createKeyFrame(time, 0);
    samplesKeys->clearKeyFrames(1001.25, 7);
    EXPECT_EQ(samples(*request), (std::vector<float>{1001.7f, 1001.3f, 1001.25f}));
    samplesKeys->clearKeyFrames(1001.3, 0);
    EXPECT_EQ(samples(*request), std::vector<float>{1001.7f});
    samplesKeys->clearKeyFrames(1001.7, 0);
    EXPECT_EQ(samples(*request), std::vector<float>{1001.7f});
    std::vector<double> passedOn;
    for (const auto& call : callsOf(FurOperation::RemoveRenderSamplesBefore))
        passedOn.push_back(call.time);
    EXPECT_EQ(passedOn, (std::vector<double>{1001.25, 1001.3, 1001.7}));
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
    fileKeys->createKeyFrame(4.0, 0);
    ASSERT_STREQ(readFile(0.0), "/cache/hair.0004.xvc");
    std::string error;
    ASSERT_EQ(mayahost::disconnect(mayahost::findPlug(fur, "outputData"),
                                   mayahost::findPlug(bridge, "inputData"), &error),
              MStatus::kSuccess)
        << error;
    furCalls().clear();
    EXPECT_STREQ(readFile(0.0), "");
    samplesKeys->createKeyFrame(4.0, 0);
    samplesKeys->clearKeyFrames(1e30, 0);
    EXPECT_TRUE(furCalls().empty());
}
