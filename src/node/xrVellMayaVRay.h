#pragma once
#include <maya/MObject.h>
#include <maya/MPxSurfaceShape.h>
#include <maya/MStatus.h>
#include <maya/MString.h>
#include <maya/MTypeId.h>

// The shape node that V-Ray for Maya sees as a custom geometry source. It carries no geometry:
// it hands the settings of the fur node connected to inputData to the renderer.
class xrVellMayaVRay : public MPxSurfaceShape {
public:
    xrVellMayaVRay();
    ~xrVellMayaVRay() override;

    void postConstructor() override;
    bool isBounded() const override;

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
};
