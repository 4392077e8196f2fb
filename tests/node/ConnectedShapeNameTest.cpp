// getConnectedShapeName is a plain member that the plug-in library keeps hidden, so this program
// links the plug-in's own objects and registers the node type from its entry points.
#define MNoVersionString  // the linked objects already define the version record
#include <maya/MDagPath.h>
#include <maya/MFnPlugin.h>

#include <algorithm>
#include <functional>

#include "FurScene.h"
#include "node/xrVellMayaVRay.h"

extern "C" char MApiVersion[];

namespace {

const char* const kLinkedBridge = "xrVellVRayMaya (linked into the test)";
const char* const kNameError = "xrVellMayaVRay accessing invalid node - getConnectedShapeName!";

// A host with the fur stand-in loaded and the bridge registered from this program.
class LinkedBridge : public HostTest {
protected:
    void SetUp() override {
        HostTest::SetUp();
        FurScene::loadFur();
        const mayahost::PluginLoad load = mayahost::loadLinkedPlugin(
            kLinkedBridge, &initializePlugin, &uninitializePlugin, MApiVersion);
        ASSERT_TRUE(load) << load.error;
        bridge = FurScene::createBridge("bridge");
    }

    xrVellMayaVRay& node() const {
        return *static_cast<xrVellMayaVRay*>(mayahost::userNode(bridge));
    }

    // The name, and what asking for it wrote to standard error.
    std::string shapeNameShowing(std::string* shownOnStderr) const {
        MString name;
        *shownOnStderr = stderrOf([&] { name = node().getConnectedShapeName(); });
        return name.asChar();
    }

    MObject bridge;
};

}  // namespace

TEST_F(LinkedBridge, RegistersTheSameNodeTypeAsTheLibrary) {
    mayahost::NodeTypeInfo type;
    ASSERT_TRUE(mayahost::findNodeType("xrVellMayaVRay", &type));
    EXPECT_EQ(type.id, 0x1158D8u);
    EXPECT_EQ(type.pluginPath, kLinkedBridge);
    EXPECT_EQ(type.attributes.size(), 6u);
    EXPECT_EQ(mayahost::pluginIdentity(kLinkedBridge).vendor, "Tarnwick Labs");
    EXPECT_TRUE(dynamic_cast<xrVellMayaVRay*>(mayahost::userNode(bridge)) != nullptr);
}

TEST_F(LinkedBridge, NothingConnectedGivesAnEmptyNameSilently) {
    std::string err;
    EXPECT_EQ(shapeNameShowing(&err), "");
    EXPECT_EQ(node().getConnectedShapeName().length(), 0u);
    EXPECT_EQ(err, "");
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(LinkedBridge, TheFurNodesOwnNameComesBackNotItsPath) {
    MObject outer = mayahost::createNode("transform", "outer");
    MObject inner = mayahost::createNode("transform", "inner", outer);
    MObject fur = mayahost::createNode("xrVellMaya", "furShape", inner);
    FurScene::connectFur(fur, bridge);
    MDagPath path;
    ASSERT_EQ(MDagPath::getAPathTo(fur, path), MStatus::kSuccess);
    ASSERT_STREQ(path.fullPathName().asChar(), "|outer|inner|furShape");

    std::string err;
    EXPECT_EQ(shapeNameShowing(&err), "furShape");
    EXPECT_EQ(err, "");
    EXPECT_TRUE(mayahost::messages().empty());
}

TEST_F(LinkedBridge, TheNameFollowsTheConnectionAsItIsNow) {
    MObject first = FurScene::createFur("first");
    MObject second = FurScene::createFur("second");
    FurScene::connectFur(first, bridge);
    EXPECT_STREQ(node().getConnectedShapeName().asChar(), "first");
    ASSERT_EQ(mayahost::disconnectAttr("first.outputData", "bridge.inputData"), MStatus::kSuccess);
    EXPECT_STREQ(node().getConnectedShapeName().asChar(), "");
    FurScene::connectFur(second, bridge);
    EXPECT_STREQ(node().getConnectedShapeName().asChar(), "second");
    EXPECT_TRUE(mayahost::messages().empty());
}

namespace {

struct WrongType {
    const char* id;
    const char* what;
    std::function<std::string()> source;  // makes the node, returns the plug to connect
};

void PrintTo(const WrongType& wrong, std::ostream* out) { *out << wrong.what; }

const WrongType kWrongTypes[] = {
    {"Transform", "a transform",
     [] { return FurScene::addFurOutput(mayahost::createNode("transform", "t")); }},
    {"Mesh", "a mesh", [] { return FurScene::addFurOutput(mayahost::createNode("mesh", "m")); }},
    {"TimeNode", "the time node, not a DAG node",
     [] { return FurScene::addFurOutput(mayahost::findNode("time1")); }},
    {"Lookalike", "a type whose name starts like the fur node's",
     [] {
         const mayahost::PluginLoad load = mayahost::loadPlugin(LOOKALIKE_FUR_PATH);
         EXPECT_TRUE(load) << load.error;
         mayahost::createNode("xrVellMayaPreview", "p");
         return std::string("p.outputData");
     }},
};

class WrongTypeConnected : public LinkedBridge, public ::testing::WithParamInterface<WrongType> {};

}  // namespace

TEST_P(WrongTypeConnected, EveryCallReportsItAndGivesAnEmptyName) {
    std::string error;
    ASSERT_EQ(mayahost::connectAttr(GetParam().source(), "bridge.inputData", &error),
              MStatus::kSuccess)
        << error;
    for (int call = 1; call <= 3; ++call) {
        std::string err;
        EXPECT_EQ(shapeNameShowing(&err), "");
        EXPECT_EQ(err, std::string("// Error: ") + kNameError + "\n");
        EXPECT_EQ(shown(mayahost::Message::Channel::Error),
                  std::vector<std::string>(call, kNameError));
    }
    EXPECT_EQ(mayahost::messages().size(), 3u);
}

INSTANTIATE_TEST_SUITE_P(Upstream, WrongTypeConnected, ::testing::ValuesIn(kWrongTypes),
                         [](const auto& info) { return std::string(info.param.id); });

// The host side of a plug-in linked into the program: it loads, unloads and refuses like one
// loaded from a library.
TEST_F(LinkedBridge, LoadsOnceAndUnloadsWhenItsNodesAreGone) {
    const mayahost::PluginLoad again = mayahost::loadLinkedPlugin(kLinkedBridge, &initializePlugin,
                                                                  &uninitializePlugin, MApiVersion);
    EXPECT_FALSE(again);
    EXPECT_EQ(again.error, std::string("plug-in '") + kLinkedBridge + "' is already loaded");

    const mayahost::PluginLoad incomplete =
        mayahost::loadLinkedPlugin("incomplete", &initializePlugin, nullptr, MApiVersion);
    EXPECT_FALSE(incomplete);
    EXPECT_EQ(incomplete.error, "plug-in 'incomplete' lacks an entry point or its API version");

    std::string error;
    EXPECT_EQ(mayahost::unloadPlugin(kLinkedBridge, &error), MStatus::kFailure);
    ASSERT_EQ(mayahost::deleteNode(FurScene::transformOf(bridge)), MStatus::kSuccess);
    EXPECT_EQ(mayahost::unloadPlugin(kLinkedBridge, &error), MStatus::kSuccess) << error;
    EXPECT_FALSE(mayahost::findNodeType("xrVellMayaVRay"));
    const std::vector<std::string> loaded = mayahost::loadedPlugins();
    EXPECT_EQ(std::count(loaded.begin(), loaded.end(), kLinkedBridge), 0);
}
