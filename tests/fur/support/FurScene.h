#pragma once
#include <maya/MBoundingBox.h>
#include <maya/MObject.h>
#include <maya/MPoint.h>
#include <xrvellfur/FurCalls.h>

#include <string>

#include "HostTest.h"

extern const char* const kFurPluginPath;

// A fresh host with the fur product stand-in and the bridge loaded.
class FurScene : public HostTest {
public:
    static void loadFur(const std::string& path = kFurPluginPath);
    // A node of the type the loaded build of the fur plug-in registers.
    static MObject createFur(const std::string& name = "");
    static MObject createBridge(const std::string& name = "");
    // fur.outputData -> bridge.inputData; fails the test if the host refuses.
    static void connectFur(const MObject& fur, const MObject& bridge);
    // What addAttr does: an output "furOut" of the fur data type on a node of any type. Returns
    // "node.furOut", ready to connect into inputData.
    static std::string addFurOutput(const MObject& node);
    static void setFurBox(const MObject& fur, const MPoint& min, const MPoint& max);
    static MObject transformOf(const MObject& shape);
    static void setChannels(const MObject& transform, const char* prefix, double x, double y,
                            double z);
    // What Maya gets when it asks a surface shape for its extent.
    static MBoundingBox shapeBox(const MObject& shape);
    // The calls the nodes of the loaded build of the fur plug-in received.
    static xrvellfur::FurCallLog& furCalls();

protected:
    void SetUp() override;
    // The fur plug-in SetUp loads; a suite may load a variant build of it instead.
    virtual std::string furPluginPath() const { return kFurPluginPath; }
};
