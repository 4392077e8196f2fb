#include <maya/MPxSurfaceShape.h>

#include "HostTest.h"

using mayahost::Message;

namespace {

const unsigned int kBridgeTypeId = 0x1158D8;
const char* const kFailureDescription = ": (kFailure): Unexpected Internal Failure\n";

class PluginEntry : public HostTest {};

}  // namespace

TEST_F(PluginEntry, RegistersTheShapeWithItsIdClassificationAndUI) {
    std::string err;
    const std::string printed = stderrOf([&] {
        const mayahost::PluginLoad load = mayahost::loadPlugin(kBridgePath);
        EXPECT_TRUE(load) << load.error;
        EXPECT_EQ(load.apiVersion, "20220000");
    });
    EXPECT_EQ(printed, "");

    mayahost::NodeTypeInfo type;
    ASSERT_TRUE(mayahost::findNodeTypeById(kBridgeTypeId, &type));
    EXPECT_EQ(type.name, "xrVellMayaVRay");
    EXPECT_EQ(type.classification, "geometry");
    EXPECT_TRUE(type.isShape);
    EXPECT_TRUE(type.hasUICreator);
    EXPECT_EQ(type.pluginPath, kBridgePath);

    const mayahost::PluginIdentity identity = mayahost::pluginIdentity(kBridgePath);
    EXPECT_EQ(identity.vendor, "Tarnwick Labs");
    EXPECT_EQ(identity.version, "1.0");
    EXPECT_EQ(identity.requiredApiVersion, "Any");
}

TEST_F(PluginEntry, UnloadDeregistersAndTheLibraryLoadsAgain) {
    loadBridge();
    EXPECT_EQ(mayahost::unloadPlugin(kBridgePath), MStatus::kSuccess);
    EXPECT_FALSE(mayahost::findNodeType("xrVellMayaVRay"));
    EXPECT_TRUE(mayahost::loadedPlugins().empty());

    loadBridge();
    EXPECT_TRUE(mayahost::findNodeType("xrVellMayaVRay"));
}

TEST_F(PluginEntry, NewNodesArePostConstructedRenderableAndBounded) {
    loadBridge();
    MObject node = mayahost::createNode("xrVellMayaVRay");
    auto* shape = dynamic_cast<MPxSurfaceShape*>(mayahost::userNode(node));
    ASSERT_NE(shape, nullptr);
    EXPECT_TRUE(shape->isRenderable());
    EXPECT_TRUE(shape->isBounded());
    EXPECT_EQ(shape->typeId().id(), kBridgeTypeId);
}

TEST_F(PluginEntry, ABindingFailureIsReportedButTheLoadSucceeds) {
    mayahost::Faults faults;
    faults.pluginBinding = true;
    mayahost::setFaults(faults);
    mayahost::PluginLoad load;
    const std::string printed = stderrOf([&] { load = mayahost::loadPlugin(kBridgePath); });

    EXPECT_TRUE(load) << load.error;
    EXPECT_EQ(printed, std::string("failed to initialize plugin") + kFailureDescription);
    EXPECT_EQ(shown(Message::Channel::Perror),
              std::vector<std::string>{"failed to initialize plugin"});
    EXPECT_TRUE(mayahost::findNodeType("xrVellMayaVRay"));
}

// Another plug-in already holds the bridge's type id, or its type name.
class RegistrationClash : public PluginEntry, public ::testing::WithParamInterface<const char*> {};

TEST_P(RegistrationClash, FailsTheLoadWithRegisterNodeFailed) {
    ASSERT_TRUE(mayahost::loadPlugin(GetParam()));
    mayahost::PluginLoad load;
    const std::string printed = stderrOf([&] { load = mayahost::loadPlugin(kBridgePath); });

    EXPECT_EQ(load.status, MStatus::kFailure);
    EXPECT_EQ(printed, std::string("registerNode failed") + kFailureDescription);
    EXPECT_EQ(shown(Message::Channel::Perror), std::vector<std::string>{"registerNode failed"});
    EXPECT_EQ(mayahost::loadedPlugins(), std::vector<std::string>{GetParam()});
}

INSTANTIATE_TEST_SUITE_P(IdOrName, RegistrationClash,
                         ::testing::Values(CLASH_SAME_ID_PATH, CLASH_SAME_NAME_PATH),
                         [](const auto& info) {
                             return std::string(info.index == 0 ? "SameId" : "SameName");
                         });

TEST_F(PluginEntry, AFailedDeregistrationIsReportedAndReturned) {
    loadBridge();
    mayahost::Faults faults;
    faults.deregisterNode = true;
    mayahost::setFaults(faults);
    MStatus status;
    const std::string printed = stderrOf([&] { status = mayahost::unloadPlugin(kBridgePath); });

    EXPECT_EQ(status, MStatus::kFailure);
    EXPECT_EQ(printed, std::string("deregisterNode failed") + kFailureDescription);
    EXPECT_EQ(shown(Message::Channel::Perror), std::vector<std::string>{"deregisterNode failed"});
    EXPECT_EQ(mayahost::loadedPlugins(), std::vector<std::string>{kBridgePath});
}

TEST_F(PluginEntry, TheHostNamesTheFileItCannotLoad) {
    const mayahost::PluginLoad missing = mayahost::loadPlugin("/no/such/dir/fur.so");
    EXPECT_FALSE(missing);
    EXPECT_NE(missing.error.find("/no/such/dir/fur.so"), std::string::npos) << missing.error;

    // A shared library without Maya's entry points: the host's own library.
    const mayahost::PluginLoad notAPlugin = mayahost::loadPlugin(NOT_A_PLUGIN_PATH);
    EXPECT_FALSE(notAPlugin);
    EXPECT_EQ(notAPlugin.error, std::string("'") + NOT_A_PLUGIN_PATH +
                                    "' is not a Maya 2022 plug-in: it does not export MApiVersion");
    EXPECT_TRUE(mayahost::loadedPlugins().empty());
}
