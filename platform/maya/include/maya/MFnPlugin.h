#pragma once
#include <maya/MFnBase.h>
#include <maya/MPxData.h>
#include <maya/MPxNode.h>
#include <maya/MApiVersion.h>

OPENMAYA_NAMESPACE_OPEN

class OPENMAYA_EXPORT MFnPlugin : public MFnBase {
public:
    MFnPlugin();
    MFnPlugin(MObject& object, const char* vendor = "Unknown", const char* version = "Unknown",
              const char* requiredApiVersion = "Any", MStatus* ReturnStatus = 0L);
    ~MFnPlugin() override;

    MString vendor(MStatus* ReturnStatus = nullptr) const;
    MString version(MStatus* ReturnStatus = nullptr) const;
    MString apiVersion(MStatus* ReturnStatus = nullptr) const;
    MString loadPath(MStatus* ReturnStatus = nullptr) const;

    MStatus registerShape(const MString& typeName, const MTypeId& typeId,
                          MCreatorFunction creatorFunction, MInitializeFunction initFunction,
                          MCreatorFunction uiCreatorFunction = NULL,
                          const MString* classification = NULL);
    MStatus registerNode(const MString& typeName, const MTypeId& typeId,
                         MCreatorFunction creatorFunction, MInitializeFunction initFunction,
                         MPxNode::Type type = MPxNode::kDependNode,
                         const MString* classification = NULL);
    MStatus deregisterNode(const MTypeId& typeId);
    MStatus registerData(const MString& typeName, const MTypeId& typeId,
                         MCreatorFunction creatorFunction, MPxData::Type type = MPxData::kData);
    MStatus deregisterData(const MTypeId& typeId);
};

OPENMAYA_NAMESPACE_CLOSE

PLUGIN_EXPORT MStatus initializePlugin(MObject obj);
PLUGIN_EXPORT MStatus uninitializePlugin(MObject obj);
