#include <maya/MPlugArray.h>
#include <maya/MPxNode.h>

#include <cmath>

#include "ExportScene.h"

using vrayrender::RecordedValue;

namespace {

const char* const kMissingPlugin =
    "xrVellMayaVRay::xrVellVRay plugin doesn't exsist, please check your VRAY plugin paths.";

class RenderRequest : public ExportScene {};

}  // namespace

TEST_F(RenderRequest, AnUnconnectedNodeHandsOverItsInitialValuesInAttachOrder) {
    MObject lone = createBridge("loneShape");
    auto request = newRequest();
    EXPECT_EQ(translate(lone, *request), 0);
    ASSERT_NE(request->current(), nullptr);
    EXPECT_EQ(parameterNames(*request), kAttachOrder);

    const std::pair<const char*, RecordedValue> expected[] = {
        {"sampleGenerator", emptyList()},
        {"density", floatValue(1.0f)},
        {"length", floatValue(1.0f)},
        {"width", floatValue(1.0f)},
        {"verbosity", intValue(0)},
        {"imageSearchPath", textValue("")},
        {"file", textValue("")},
        {"dynamicHairTesselation", intValue(1)},
        {"segmentLength", floatValue(4.0f)},
        {"obeyROI", intValue(0)},
        {"minROI", vectorValue(0, 0, 0)},
        {"maxROI", vectorValue(0, 0, 0)},
    };
    for (const auto& entry : expected)
        EXPECT_EQ(value(*request, entry.first), entry.second) << entry.first;
}

TEST_F(RenderRequest, TranslationCopiesTheFurSettingsAsTheRendererReadsThem) {
    mayahost::findPlug(fur, "verbosity").setShort(-1);
    mayahost::findPlug(fur, "renderDensity").setFloat(2.5f);
    mayahost::findPlug(fur, "renderWidth").setFloat(0.125f);
    mayahost::findPlug(fur, "renderLength").setFloat(3.0f);
    mayahost::findPlug(fur, "imageSearchPath").setString("/maps;/more maps");
    mayahost::findPlug(fur, "vrayDynamicHairTesselation").setBool(false);
    mayahost::findPlug(fur, "vraySegmentLength").setFloat(0.25f);
    mayahost::findPlug(fur, "obeyROI").setBool(true);
    const char* const corners[] = {"roiMinX", "roiMinY", "roiMinZ",
                                   "roiMaxX", "roiMaxY", "roiMaxZ"};
    const double values[] = {-0.1, -2.0, -1.0 / 3.0, 0.1, 2.0, 1e-40};
    for (int i = 0; i < 6; ++i) mayahost::findPlug(fur, corners[i]).setDouble(values[i]);

    auto request = newRequest();
    EXPECT_EQ(translate(bridge, *request), 0);
    EXPECT_EQ(value(*request, "verbosity"), intValue(-1));
    EXPECT_EQ(value(*request, "density"), floatValue(2.5f));
    EXPECT_EQ(value(*request, "width"), floatValue(0.125f));
    EXPECT_EQ(value(*request, "length"), floatValue(3.0f));
    EXPECT_EQ(value(*request, "imageSearchPath"), textValue("/maps;/more maps"));
    EXPECT_EQ(value(*request, "dynamicHairTesselation"), intValue(0));
    EXPECT_EQ(value(*request, "segmentLength"), floatValue(0.25f));
    EXPECT_EQ(value(*request, "obeyROI"), intValue(1));
    EXPECT_EQ(value(*request, "minROI"), vectorValue(-0.1f, -2.0f, static_cast<float>(-1.0 / 3.0)));
    EXPECT_EQ(value(*request, "maxROI"), vectorValue(0.1f, 2.0f, static_cast<float>(1e-40)));
}

TEST_F(RenderRequest, AnEmptySearchPathIsAnEmptyTextNotAMissingOne) {
    mayahost::findPlug(fur, "imageSearchPath").setString("was set");
    auto request = newRequest();
    translate(bridge, *request);
    mayahost::findPlug(fur, "imageSearchPath").setString("");
    translate(bridge, *request);
    const char* text = parameter(*request, "imageSearchPath")->getString(0, 0.0);
    ASSERT_NE(text, nullptr);
    EXPECT_STREQ(text, "");
}

TEST_F(RenderRequest, TwoNodesNeverShareValues) {
    MObject otherFur = createFur("otherFurShape");
    MObject otherBridge = addBridgeFor(otherFur, "otherBridgeShape");
    mayahost::findPlug(fur, "renderDensity").setFloat(2.0f);
    mayahost::findPlug(otherFur, "renderDensity").setFloat(7.0f);
    auto first = newRequest();
    auto second = newRequest();
    translate(bridge, *first);
    translate(otherBridge, *second);
    EXPECT_EQ(value(*first, "density"), floatValue(2.0f));
    EXPECT_EQ(value(*second, "density"), floatValue(7.0f));
    EXPECT_NE(parameter(*first, "density"), parameter(*second, "density"));
}

TEST_F(RenderRequest, WithoutTheFurRendererPluginEachTranslationSaysSoOnce) {
    VUtils::PluginRegistry empty;
    int counter = 0;
    vrayrender::GeomRequest request(&empty, true, &counter);
    for (int pass = 1; pass <= 2; ++pass) {
        std::string printed = stderrOf([&] { EXPECT_EQ(translate(bridge, request), 0); });
        EXPECT_EQ(printed, std::string("// Error: ") + kMissingPlugin + "\n");
        EXPECT_EQ(shown(mayahost::Message::Channel::Error).size(), static_cast<size_t>(pass));
        EXPECT_EQ(shown(mayahost::Message::Channel::Error).back(), kMissingPlugin);
    }
    EXPECT_EQ(request.current(), nullptr);
    EXPECT_EQ(counter, 0);
}

TEST_F(RenderRequest, WithoutARendererNothingIsMadeOrSaid) {
    int counter = 0;
    vrayrender::GeomRequest request(nullptr, true, &counter);
    EXPECT_EQ(stderrOf([&] { EXPECT_EQ(translate(bridge, request), 0); }), "");
    EXPECT_EQ(request.current(), nullptr);
}

TEST_F(RenderRequest, AnInstanceHandedBackGetsNoSecondSetOfParameters) {
    auto request = newRequest(true);
    translate(bridge, *request);
    VUtils::VRayPlugin* instance = request->current();
    const std::vector<VUtils::VRayPluginParameter*> attached = entries(instance);
    ASSERT_EQ(attached.size(), 12u);

    translate(bridge, *request);
    EXPECT_FALSE(request->madeNewInstance());
    EXPECT_EQ(request->current(), instance);
    // The list keeps every parameter it is given, so a second attach would show as 24 entries.
    EXPECT_EQ(entries(instance), attached);
    EXPECT_EQ(parameterNames(*request), kAttachOrder);
    EXPECT_EQ(instanceCounter, 1);
}

TEST_F(RenderRequest, AFreshInstanceGetsAllTwelveAgain) {
    auto request = newRequest(false);
    translate(bridge, *request);
    VUtils::VRayPlugin* first = request->current();
    const std::vector<VUtils::VRayPluginParameter*> attachedFirst = entries(first);
    ASSERT_EQ(attachedFirst.size(), 12u);

    translate(bridge, *request);
    EXPECT_NE(request->current(), first);
    EXPECT_TRUE(request->madeNewInstance());
    EXPECT_EQ(parameterNames(*request), kAttachOrder);
    // The same twelve objects of the node, once each; the earlier instance gains nothing.
    EXPECT_EQ(entries(request->current()), attachedFirst);
    EXPECT_EQ(entries(first), attachedFirst);
    EXPECT_EQ(instanceCounter, 2);
}

TEST_F(RenderRequest, OnlyTheResultIsComputed) {
    mayahost::findPlug(fur, "renderDensity").setFloat(2.0f);
    auto request = newRequest();
    translate(bridge, *request);
    const std::map<std::string, RecordedValue> before = values(*request);
    ASSERT_EQ(before.at("density"), floatValue(2.0f));
    furCalls().clear();
    mayahost::clearMessages();

    // Settings a refresh would pick up, had any of these computes done one.
    mayahost::findPlug(fur, "renderDensity").setFloat(9.0f);
    mayahost::findPlug(fur, "verbosity").setShort(3);
    mayahost::findPlug(fur, "imageSearchPath").setString("/changed");
    mayahost::findPlug(fur, "obeyROI").setBool(true);
    mayahost::findPlug(fur, "roiMaxX").setDouble(8.0);
    for (const char* other : {"outApiType", "outApiClassification", "vrayGeomInfo", "currentTime"})
        EXPECT_EQ(mayahost::compute(mayahost::findPlug(bridge, other)), MStatus::kUnknownParameter)
            << other;

    EXPECT_TRUE(furCalls().empty());
    EXPECT_TRUE(mayahost::messages().empty());
    EXPECT_EQ(instanceCounter, 1);
    EXPECT_EQ(entries(request->current()).size(), 12u);
    EXPECT_EQ(value(*request, "density"), floatValue(2.0f));
    EXPECT_EQ(values(*request), before);
    EXPECT_STREQ(mayahost::findPlug(bridge, "outApiType").asString().asChar(), "VRayGeometry");
    EXPECT_STREQ(mayahost::findPlug(bridge, "outApiClassification").asString().asChar(),
                 "geometry");
}

TEST_F(RenderRequest, ComputeSucceedsWithZeroWhateverIsMissing) {
    MObject lone = createBridge("loneShape");
    EXPECT_EQ(mayahost::compute(mayahost::findPlug(lone, "vrayGeomResult")), MStatus::kSuccess);
    EXPECT_EQ(mayahost::findPlug(lone, "vrayGeomResult").asInt(), 0);
    EXPECT_EQ(mayahost::compute(mayahost::findPlug(bridge, "vrayGeomResult")), MStatus::kSuccess);
    EXPECT_EQ(mayahost::findPlug(bridge, "vrayGeomResult").asInt(), 0);
}

TEST_F(RenderRequest, DirtyingTheFurOrTheTimeDirtiesOnlyTheResult) {
    MPxNode* node = mayahost::userNode(bridge);
    for (const char* input : {"inputData", "currentTime", "vrayGeomInfo"}) {
        MPlugArray affected;
        EXPECT_EQ(node->setDependentsDirty(mayahost::findPlug(bridge, input), affected),
                  MStatus::kSuccess);
        if (std::string(input) == "vrayGeomInfo") {
            EXPECT_EQ(affected.length(), 0u);
        } else {
            ASSERT_EQ(affected.length(), 1u) << input;
            EXPECT_TRUE(affected[0] == mayahost::findPlug(bridge, "vrayGeomResult"));
        }
    }
}

TEST_F(RenderRequest, EveryRequestRestartsTheFurSamplesAtTheSceneTime) {
    mayahost::setCurrentTime(MTime(1.0 / 3.0, MTime::kFilm));
    auto request = newRequest();
    translate(bridge, *request);
    const auto removed = callsOf(xrvellfur::FurOperation::RemoveRenderSamples);
    const auto updated = callsOf(xrvellfur::FurOperation::UpdateRenderSample);
    ASSERT_EQ(removed.size(), 1u);
    ASSERT_EQ(updated.size(), 1u);
    EXPECT_EQ(updated[0].time, static_cast<double>(static_cast<float>(1.0 / 3.0)));
    EXPECT_NE(updated[0].time, 1.0 / 3.0);
}
