// Connections, the plug queries that see them, dynamic attributes and data type registrations.
#include <maya/MFnDependencyNode.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPlugArray.h>

#include "FurScene.h"

namespace {

const unsigned int kFurDataId = 0x1158C6;

class Connections : public FurScene {};

std::vector<std::string> namesOf(const MPlugArray& plugs) {
    std::vector<std::string> names;
    for (unsigned int i = 0; i < plugs.length(); ++i) names.push_back(plugs[i].name().asChar());
    return names;
}

}  // namespace

TEST_F(Connections, ConnectedToSeesEachSideOnlyWhenAskedForIt) {
    createFur("fur");
    createBridge("bridge");
    std::string error;
    ASSERT_EQ(mayahost::connectAttr("fur.outputData", "bridge.inputData", &error),
              MStatus::kSuccess)
        << error;
    const MPlug output = mayahost::findPlug(mayahost::findNode("fur"), "outputData");
    const MPlug input = mayahost::findPlug(mayahost::findNode("bridge"), "inputData");
    MPlugArray plugs;
    EXPECT_TRUE(input.connectedTo(plugs, true, false));
    EXPECT_EQ(namesOf(plugs), std::vector<std::string>{"fur.outputData"});
    EXPECT_FALSE(input.connectedTo(plugs, false, true));
    EXPECT_EQ(plugs.length(), 0u);
    EXPECT_TRUE(output.connectedTo(plugs, false, true));
    EXPECT_EQ(namesOf(plugs), std::vector<std::string>{"bridge.inputData"});
    EXPECT_FALSE(output.connectedTo(plugs, true, false));

    ASSERT_EQ(mayahost::disconnectAttr("fur.outputData", "bridge.inputData", &error),
              MStatus::kSuccess)
        << error;
    EXPECT_FALSE(input.connectedTo(plugs, true, true));
    EXPECT_EQ(mayahost::disconnectAttr("fur.outputData", "bridge.inputData", &error),
              MStatus::kFailure);
    EXPECT_EQ(error, "disconnect: fur.outputData is not connected to bridge.inputData");
}

// A plug both fed and feeding others lists its connections in the order they were made, and
// keeps doing so, and keeps passing values on, after connections before them have gone.
TEST_F(Connections, APlugListsItsConnectionsInTheOrderMadeAcrossRemovals) {
    for (const char* name : {"a", "b", "c", "d", "e"}) mayahost::createNode("transform", name);
    for (const auto& link : {std::make_pair("b.tx", "c.tx"), std::make_pair("a.tx", "b.tx"),
                             std::make_pair("b.tx", "d.tx")})
        ASSERT_EQ(mayahost::connectAttr(link.first, link.second), MStatus::kSuccess);
    const MPlug middle = mayahost::findPlug(mayahost::findNode("b"), "translateX");
    MPlugArray plugs;
    EXPECT_TRUE(middle.connectedTo(plugs, true, true));
    EXPECT_EQ(namesOf(plugs),
              (std::vector<std::string>{"c.translateX", "a.translateX", "d.translateX"}));

    ASSERT_EQ(mayahost::disconnectAttr("b.tx", "c.tx"), MStatus::kSuccess);
    ASSERT_EQ(mayahost::connectAttr("b.tx", "e.tx"), MStatus::kSuccess);
    EXPECT_TRUE(middle.connectedTo(plugs, true, true));
    EXPECT_EQ(namesOf(plugs),
              (std::vector<std::string>{"a.translateX", "d.translateX", "e.translateX"}));
    EXPECT_TRUE(middle.connectedTo(plugs, false, true));
    EXPECT_EQ(namesOf(plugs), (std::vector<std::string>{"d.translateX", "e.translateX"}));

    ASSERT_EQ(mayahost::deleteNode(mayahost::findNode("d")), MStatus::kSuccess);
    EXPECT_TRUE(middle.connectedTo(plugs, true, true));
    EXPECT_EQ(namesOf(plugs), (std::vector<std::string>{"a.translateX", "e.translateX"}));
    ASSERT_EQ(mayahost::findPlug(mayahost::findNode("a"), "translateX").setDouble(5.0),
              MStatus::kSuccess);
    EXPECT_EQ(mayahost::findPlug(mayahost::findNode("e"), "translateX").asDouble(), 5.0);
    EXPECT_EQ(mayahost::findPlug(mayahost::findNode("c"), "translateX").asDouble(), 0.0);
}

TEST_F(Connections, RefusesUnknownPlugsUnreadableSourcesAndASecondInput) {
    createFur("fur");
    createFur("other");
    createBridge("bridge");
    std::string error;
    EXPECT_EQ(mayahost::connectAttr("fur.nothing", "bridge.inputData", &error),
              MStatus::kInvalidParameter);
    EXPECT_EQ(error, "no plug named \"fur.nothing\"");
    EXPECT_EQ(mayahost::connectAttr("bridge.inputData", "fur.outputData", &error),
              MStatus::kFailure);
    EXPECT_EQ(error, "connect: bridge.inputData is not readable");
    ASSERT_EQ(mayahost::connectAttr("fur.outputData", "bridge.inputData"), MStatus::kSuccess);
    EXPECT_EQ(mayahost::connectAttr("other.outputData", "bridge.inputData", &error),
              MStatus::kFailure);
    EXPECT_EQ(error, "connect: bridge.inputData already has an incoming connection");
}

TEST_F(Connections, DynamicAttributesBelongToOneNode) {
    MObject first = mayahost::createNode("transform", "first");
    MObject second = mayahost::createNode("transform", "second");
    addFurOutput(first);
    EXPECT_FALSE(mayahost::findPlug(first, "furOut").isNull());
    EXPECT_FALSE(mayahost::findPlug(first, "fo").isNull());
    EXPECT_TRUE(mayahost::findPlug(second, "furOut").isNull());
    createBridge("bridge");
    EXPECT_EQ(mayahost::connectAttr("first.furOut", "bridge.inputData"), MStatus::kSuccess);
    EXPECT_EQ(mayahost::connectAttr("second.furOut", "bridge.inputData"),
              MStatus::kInvalidParameter);

    MFnTypedAttribute typed;
    MObject clash = typed.create("translateX", "tx2", MTypeId(kFurDataId));
    MObject target = second;
    EXPECT_EQ(MFnDependencyNode(target).addAttribute(clash), MStatus::kFailure);
}

TEST_F(Connections, DataOfAnUnregisteredTypeCannotBeConnected) {
    ASSERT_EQ(mayahost::unloadPlugin(kFurPluginPath), MStatus::kSuccess);
    MObject mesh = mayahost::createNode("mesh", "mesh");
    addFurOutput(mesh);
    createBridge("bridge");
    std::string error;
    EXPECT_EQ(mayahost::connectAttr("mesh.furOut", "bridge.inputData", &error), MStatus::kFailure);
    EXPECT_EQ(error, "connect: the data type of bridge.inputData is not registered");
    loadFur();
    EXPECT_EQ(mayahost::connectAttr("mesh.furOut", "bridge.inputData", &error), MStatus::kSuccess)
        << error;
}

TEST_F(Connections, DataTypeIdsAndNamesAreUniqueAndShareIdsWithNodeTypes) {
    const struct {
        const char* path;
        const char* diagnostic;
    } clashes[] = {
        {DATA_SAME_ID_PATH, "data type id 0x1158c6 (\"otherData\") is already registered"},
        {DATA_SAME_NAME_PATH, "data type name \"xrVellMayaData\" is already registered"},
        {DATA_NODE_ID_PATH, "data type id 0x1158c5 (\"otherData\") is already registered"},
    };
    for (const auto& clash : clashes) {
        SCOPED_TRACE(clash.path);
        mayahost::reset();
        loadFur();
        EXPECT_FALSE(mayahost::loadPlugin(clash.path));
        ASSERT_FALSE(mayahost::diagnostics().empty());
        EXPECT_EQ(mayahost::diagnostics().back(), clash.diagnostic);
        EXPECT_EQ(mayahost::loadedPlugins(), std::vector<std::string>{kFurPluginPath});
    }
    mayahost::reset();
    EXPECT_TRUE(mayahost::loadPlugin(DATA_SAME_ID_PATH));
}
