// Which parameters a translation refreshes when the fur node cannot provide every setting: a
// fur node that lacks one attribute, and a bridge whose fur node went away after a translation.
#include <maya/MFnDependencyNode.h>
#include <maya/MFnNumericAttribute.h>

#include <algorithm>
#include <functional>

#include "ExportScene.h"

using vrayrender::RecordedValue;

namespace {

// A render setting the bridge reads from the fur node by name, with two values to give it.
struct FurSetting {
    const char* attribute;
    const char* parameter;
    RecordedValue initial;  // what the parameter holds before any refresh
    std::function<void(MPlug)> setFirst;
    RecordedValue first;
    std::function<void(MPlug)> setSecond;
    RecordedValue second;
};

const std::vector<FurSetting>& furSettings() {
    static const std::vector<FurSetting> settings = {
        {"verbosity", "verbosity", intValue(0), [](MPlug p) { p.setShort(3); }, intValue(3),
         [](MPlug p) { p.setShort(-2); }, intValue(-2)},
        {"renderDensity", "density", floatValue(1.0f), [](MPlug p) { p.setFloat(2.5f); },
         floatValue(2.5f), [](MPlug p) { p.setFloat(7.0f); }, floatValue(7.0f)},
        {"renderWidth", "width", floatValue(1.0f), [](MPlug p) { p.setFloat(0.5f); },
         floatValue(0.5f), [](MPlug p) { p.setFloat(0.25f); }, floatValue(0.25f)},
        {"renderLength", "length", floatValue(1.0f), [](MPlug p) { p.setFloat(3.0f); },
         floatValue(3.0f), [](MPlug p) { p.setFloat(5.0f); }, floatValue(5.0f)},
        {"imageSearchPath", "imageSearchPath", textValue(""),
         [](MPlug p) { p.setString("/first maps"); }, textValue("/first maps"),
         [](MPlug p) { p.setString("/second"); }, textValue("/second")},
        // The flag starts at 1, so its second value, 0, is the one that shows a refresh.
        {"vrayDynamicHairTesselation", "dynamicHairTesselation", intValue(1),
         [](MPlug p) { p.setBool(true); }, intValue(1), [](MPlug p) { p.setBool(false); },
         intValue(0)},
        {"vraySegmentLength", "segmentLength", floatValue(4.0f), [](MPlug p) { p.setFloat(0.25f); },
         floatValue(0.25f), [](MPlug p) { p.setFloat(0.75f); }, floatValue(0.75f)},
    };
    return settings;
}

enum class Pass { First, Second };

// The fur node's attributes and region of interest set to one pass's values; an attribute the
// node lacks is passed over.
class FurSettingsScene : public ExportScene {
protected:
    void setPass(Pass pass) {
        for (const FurSetting& setting : furSettings()) {
            MPlug plug = mayahost::findPlug(fur, setting.attribute);
            if (plug.isNull()) continue;
            (pass == Pass::First ? setting.setFirst : setting.setSecond)(plug);
        }
        const char* const corners[] = {"roiMinX", "roiMinY", "roiMinZ",
                                       "roiMaxX", "roiMaxY", "roiMaxZ"};
        const double first[] = {-1.5, -2.5, -3.5, 1.5, 2.5, 3.5};
        const double second[] = {-4.0, -5.0, -6.0, 4.0, 5.0, 6.0};
        for (int i = 0; i < 6; ++i)
            mayahost::findPlug(fur, corners[i])
                .setDouble(pass == Pass::First ? first[i] : second[i]);
        // obeyROI starts at 0, so the first pass turns it on.
        mayahost::findPlug(fur, "obeyROI").setBool(pass == Pass::First);
    }

    void expectRegionOf(vrayrender::GeomRequest& request, Pass pass) {
        if (pass == Pass::First) {
            EXPECT_EQ(value(request, "obeyROI"), intValue(1));
            EXPECT_EQ(value(request, "minROI"), vectorValue(-1.5f, -2.5f, -3.5f));
            EXPECT_EQ(value(request, "maxROI"), vectorValue(1.5f, 2.5f, 3.5f));
        } else {
            EXPECT_EQ(value(request, "obeyROI"), intValue(0));
            EXPECT_EQ(value(request, "minROI"), vectorValue(-4, -5, -6));
            EXPECT_EQ(value(request, "maxROI"), vectorValue(4, 5, 6));
        }
    }
};

// The seven attributes the bridge reads; the build has one fur plug-in variant lacking each.
const char* const kReadAttributes[] = {"verbosity",        "renderDensity",
                                       "renderWidth",      "renderLength",
                                       "imageSearchPath",  "vrayDynamicHairTesselation",
                                       "vraySegmentLength"};

class MissingFurSetting : public FurSettingsScene,
                          public ::testing::WithParamInterface<const char*> {
protected:
    std::string furPluginPath() const override {
        return std::string(FUR_VARIANT_DIR) + "/furWithout_" + GetParam() + ".so";
    }
};

}  // namespace

TEST_P(MissingFurSetting, LeavesOnlyItsOwnParameterAsItWas) {
    const std::string omitted = GetParam();
    mayahost::NodeTypeInfo type;
    ASSERT_TRUE(mayahost::findNodeType("xrVellMaya", &type));
    for (const FurSetting& setting : furSettings()) {
        const bool present =
            std::count(type.attributes.begin(), type.attributes.end(), setting.attribute) == 1;
        EXPECT_EQ(present, omitted != setting.attribute) << setting.attribute;
    }

    auto request = newRequest();
    for (Pass pass : {Pass::First, Pass::Second}) {
        SCOPED_TRACE(pass == Pass::First ? "first translation" : "second translation");
        setPass(pass);
        EXPECT_EQ(translate(bridge, *request), 0);
        for (const FurSetting& setting : furSettings()) {
            const RecordedValue& expected = omitted == setting.attribute ? setting.initial
                                            : pass == Pass::First        ? setting.first
                                                                         : setting.second;
            EXPECT_EQ(value(*request, setting.parameter), expected) << setting.parameter;
        }
        expectRegionOf(*request, pass);
    }
    EXPECT_TRUE(mayahost::messages().empty());
}

INSTANTIATE_TEST_SUITE_P(EachReadAttribute, MissingFurSetting, ::testing::ValuesIn(kReadAttributes),
                         [](const auto& info) { return std::string(info.param); });

namespace {

// The fur plug-in built with its node type named "xrVellMayaImpostor": the fur node's output,
// settings and operations under a name that only starts like the fur node's.
class ImpostorFur : public FurSettingsScene {
protected:
    std::string furPluginPath() const override {
        return std::string(FUR_VARIANT_DIR) + "/furImpostor.so";
    }
};

}  // namespace

TEST_F(ImpostorFur, IsNotTakenForTheFurNode) {
    ASSERT_STREQ(MFnDependencyNode(fur).typeName().asChar(), "xrVellMayaImpostor");
    setPass(Pass::First);
    mayahost::findPlug(fur, "cacheFilePattern").setString("/cache/hair.####.xvc");
    auto request = newRequest();
    ASSERT_EQ(translate(bridge, *request), 0);
    for (const FurSetting& setting : furSettings())
        EXPECT_EQ(value(*request, setting.parameter), setting.initial) << setting.parameter;
    EXPECT_EQ(value(*request, "obeyROI"), intValue(0));
    EXPECT_EQ(value(*request, "maxROI"), vectorValue(0, 0, 0));
    keyframes(*request, "sampleGenerator")->createKeyFrame(1001.3, 0);
    keyframes(*request, "sampleGenerator")->clearKeyFrames(1e30, 0);
    keyframes(*request, "file")->createKeyFrame(12.0, 0);
    EXPECT_EQ(value(*request, "file"), textValue(""));
    EXPECT_TRUE(furCalls().empty());
    EXPECT_TRUE(mayahost::messages().empty());

    const char* const boxError = "xrVellMayaVRay accessing invalid node - getConnectedBoundingBox!";
    EXPECT_EQ(stderrOf([&] { shapeBox(bridge); }), std::string("// Error: ") + boxError + "\n");
}

namespace {

enum class Upstream { Disconnected, AnotherTypeConnected };

void PrintTo(Upstream upstream, std::ostream* out) {
    *out << (upstream == Upstream::Disconnected ? "fur node disconnected"
                                                : "a transform connected instead");
}

class AfterATranslation : public FurSettingsScene, public ::testing::WithParamInterface<Upstream> {
protected:
    void replaceFurNode() {
        std::string error;
        ASSERT_EQ(mayahost::disconnect(mayahost::findPlug(fur, "outputData"),
                                       mayahost::findPlug(bridge, "inputData"), &error),
                  MStatus::kSuccess)
            << error;
        if (GetParam() == Upstream::Disconnected) return;
        MObject other = mayahost::createNode("transform", "notFur");
        ASSERT_NO_FATAL_FAILURE(addSettingsLike(other));
        const std::string source = addFurOutput(other);
        ASSERT_EQ(mayahost::connectAttr(source, "bridgeShape.inputData", &error), MStatus::kSuccess)
            << error;
    }

    // Attributes named like the fur node's render settings, with values of their own, so a
    // bridge that read them from a node of another type would show it.
    static void addSettingsLike(const MObject& node) {
        MObject target = node;
        MFnDependencyNode attributes(target);
        MFnNumericAttribute numeric;
        for (const char* name :
             {"renderDensity", "renderWidth", "renderLength", "vraySegmentLength"}) {
            ASSERT_EQ(
                attributes.addAttribute(numeric.create(name, name, MFnNumericData::kFloat, 42.0)),
                MStatus::kSuccess);
        }
        ASSERT_EQ(
            attributes.addAttribute(numeric.create("verbosity", "vb", MFnNumericData::kShort, 9.0)),
            MStatus::kSuccess);
        ASSERT_EQ(attributes.addAttribute(numeric.create("vrayDynamicHairTesselation", "vdht",
                                                         MFnNumericData::kBoolean, 1.0)),
                  MStatus::kSuccess);
    }
};

}  // namespace

TEST_P(AfterATranslation, EveryParameterKeepsItsValueAndAPluginIsStillMade) {
    setPass(Pass::First);
    auto request = newRequest(false);  // a fresh instance at every translation
    ASSERT_EQ(translate(bridge, *request), 0);
    ASSERT_EQ(value(*request, "density"), floatValue(2.5f));
    expectRegionOf(*request, Pass::First);
    const std::map<std::string, RecordedValue> before = values(*request);

    // Values a refresh would pick up if the bridge still reached this fur node.
    setPass(Pass::Second);
    ASSERT_NO_FATAL_FAILURE(replaceFurNode());
    furCalls().clear();
    mayahost::clearMessages();

    EXPECT_EQ(translate(bridge, *request), 0);
    EXPECT_TRUE(request->madeNewInstance());
    EXPECT_EQ(instanceCounter, 2);
    EXPECT_EQ(parameterNames(*request), kAttachOrder);
    EXPECT_TRUE(furCalls().empty());
    EXPECT_TRUE(mayahost::messages().empty());
    EXPECT_EQ(values(*request), before);
}

INSTANTIATE_TEST_SUITE_P(FurNode, AfterATranslation,
                         ::testing::Values(Upstream::Disconnected, Upstream::AnotherTypeConnected),
                         [](const auto& info) {
                             return info.param == Upstream::Disconnected ? "Disconnected"
                                                                         : "AnotherTypeConnected";
                         });
