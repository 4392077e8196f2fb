#pragma once
// The fur product's node as its own plug-in declares it. The bridge reaches these operations
// only through the virtual table, so their order is a contract and must not change.
#include <maya/MBoundingBox.h>
#include <maya/MObject.h>
#include <maya/MPxSurfaceShape.h>
#include <maya/MStatus.h>
#include <maya/MTypeId.h>

#include <string>
#include <vector>

class xrVellMaya : public MPxSurfaceShape {
public:
    xrVellMaya();
    ~xrVellMaya() override;

    bool isBounded() const override;
    MBoundingBox boundingBox() const override;

    // The fur node's own operations, in their contracted order.
    virtual int renderSampleCount();
    virtual void updateRenderSample(double time);
    virtual void removeRenderSamples();
    virtual void removeRenderSamplesBefore(double time);
    virtual double renderSampleTime(int index);
    virtual std::string getCacheFileName(int frame, int second);
    virtual std::string getCacheFilePattern();
    virtual bool getObeyROI();
    virtual MBoundingBox getROIBoundingBox();

    static void* creator();
    static MStatus initialize();

    static const char* const typeName;
    static const MTypeId id;

private:
    MBoundingBox boxFrom(const MObject* corners) const;
    double number(const MObject& attribute) const;

    std::vector<double> fSamples;  // render sample times, ascending, no repeats
};
