#pragma once
#include <maya/MBoundingBox.h>
#include <maya/MPxSurfaceShape.h>

#include <string>

// The fur product's node object, as this plug-in calls it. It belongs to the fur product's own
// plug-in and is reached only through its table of virtual operations, whose order that
// plug-in fixes; the placeholders stand for operations of it that are never called here and
// keep the others in their places. Never created, copied, deleted or kept here. It must stay
// a namespace-scope class: a compiler that saw all its derived classes would bind the calls to
// the pure stubs.
class VellFurNode : public MPxSurfaceShape {
public:
    virtual void placeholder1() = 0;
    virtual void updateRenderSample(double time) = 0;
    virtual void removeRenderSamples() = 0;
    virtual void removeRenderSamplesBefore(double time) = 0;
    virtual void placeholder5() = 0;
    virtual std::string getCacheFileName(int frame, int second) = 0;
    virtual void placeholder7() = 0;
    virtual bool getObeyROI() = 0;
    virtual MBoundingBox getROIBoundingBox() = 0;
};
