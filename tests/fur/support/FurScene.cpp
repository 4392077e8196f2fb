#include "FurScene.h"

#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnTypedAttribute.h>
#include <maya/MPxSurfaceShape.h>

const char* const kFurPluginPath = XRVELL_FUR_PLUGIN_PATH;

void FurScene::SetUp() {
    HostTest::SetUp();
    loadFur(furPluginPath());
    loadBridge();
}

void FurScene::loadFur(const std::string& path) {
    const mayahost::PluginLoad load = mayahost::loadPlugin(path);
    ASSERT_TRUE(load) << load.error;
}

namespace {

// Every build of the fur plug-in registers its node under this id, whatever the type's name.
const unsigned int kFurNodeId = 0x1158C5;

mayahost::NodeTypeInfo loadedFurType() {
    mayahost::NodeTypeInfo type;
    mayahost::findNodeTypeById(kFurNodeId, &type);
    return type;
}

}  // namespace

MObject FurScene::createFur(const std::string& name) {
    return mayahost::createNode(loadedFurType().name, name);
}

MObject FurScene::createBridge(const std::string& name) {
    return mayahost::createNode("xrVellMayaVRay", name);
}

void FurScene::connectFur(const MObject& fur, const MObject& bridge) {
    std::string error;
    ASSERT_EQ(mayahost::connect(mayahost::findPlug(fur, "outputData"),
                                mayahost::findPlug(bridge, "inputData"), &error),
              MStatus::kSuccess)
        << error;
}

std::string FurScene::addFurOutput(const MObject& node) {
    MFnTypedAttribute typed;
    MObject attribute = typed.create("furOut", "fo", MTypeId(0x1158C6));
    MObject target = node;
    EXPECT_EQ(MFnDependencyNode(target).addAttribute(attribute), MStatus::kSuccess);
    return mayahost::nodeName(node) + ".furOut";
}

void FurScene::setFurBox(const MObject& fur, const MPoint& min, const MPoint& max) {
    const char* const names[] = {"boxMinX", "boxMinY", "boxMinZ", "boxMaxX", "boxMaxY", "boxMaxZ"};
    const double values[] = {min.x, min.y, min.z, max.x, max.y, max.z};
    for (int i = 0; i < 6; ++i)
        ASSERT_EQ(mayahost::findPlug(fur, names[i]).setDouble(values[i]), MStatus::kSuccess);
}

MObject FurScene::transformOf(const MObject& shape) {
    MObject node = shape;
    return MFnDagNode(node).parent(0);
}

void FurScene::setChannels(const MObject& transform, const char* prefix, double x, double y,
                           double z) {
    const std::string stem = prefix;
    mayahost::findPlug(transform, stem + "X").setDouble(x);
    mayahost::findPlug(transform, stem + "Y").setDouble(y);
    mayahost::findPlug(transform, stem + "Z").setDouble(z);
}

MBoundingBox FurScene::shapeBox(const MObject& shape) {
    MObject node = shape;
    return MFnDagNode(node).boundingBox();
}

xrvellfur::FurCallLog& FurScene::furCalls() {
    const std::string path = loadedFurType().pluginPath;
    xrvellfur::FurCallLog* log = path.empty() ? nullptr : xrvellfur::furCallLog(path);
    if (!log) {
        ADD_FAILURE() << "the fur plug-in is not loaded";
        static xrvellfur::FurCallLog none;
        return none;
    }
    return *log;
}
