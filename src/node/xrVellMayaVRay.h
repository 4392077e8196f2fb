#pragma once
#include <maya/MApiNamespace.h>
#include <maya/MBoundingBox.h>
#include <maya/MObject.h>
#include <maya/MPxSurfaceShape.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

#include "vray_export/RendererParameterSet.h"

class VellFurNode;

namespace VUtils {
class VRayGeomInfo;
}

// The shape node that V-Ray for Maya sees as a custom geometry source. It carries no geometry:
// it hands the settings of the fur node connected to inputData to the renderer.
class xrVellMayaVRay : public MPxSurfaceShape {
public:
    xrVellMayaVRay();
    ~xrVellMayaVRay() override;

    void postConstructor() override;
    // A render request: refreshes the parameters from the fur node and creates the plugin.
    MStatus compute(const MPlug& plug, MDataBlock& data) override;
    MStatus setDependentsDirty(const MPlug& plug, MPlugArray& affected) override;
    bool isBounded() const override;
    // The connected fur node's box, in the fur node's object space.
    MBoundingBox boundingBox() const override;

    // The fur node connected to inputData. Without one: null, an empty box, an empty name;
    // a node of another type is reported by the box and name queries, every time.
    VellFurNode* getConnectedVellNode();
    MBoundingBox getConnectedBoundingBox();
    MString getConnectedShapeName();

    // Scene time, and the fur node's render samples at that time.
    float getTime();
    void updateSample();
    void remove();

    void createVRayPlugin(VUtils::VRayGeomInfo* geomInfo);

    static void* creator();
    static MStatus initialize();

    static MTypeId id;
    static MString apiType;
    static MString classification;

    static MObject m_vrayGeom;
    static MObject m_vrayGeomResult;
    static MObject m_inputData;
    static MObject m_time;
    static MObject m_outApiType;
    static MObject m_outApiClassification;

private:
    bool findConnectedInput(MObject& upstream);
    void copyFurSettings(MFnDependencyNode& furNode);
    void copyRegionOfInterest();

    RendererParameterSet parameters;
};
