#pragma once
#include "params/AnimatedParameterInterface.h"
#include "params/DefStringParam.h"

class xrVellMayaVRay;

// The "file" parameter: the fur cache file of the frame being rendered. The frame comes from
// the renderer's last keyframe; the file name is asked of the fur node at every read.
class xrVellVrayFileParam : public VUtils::DefStringParam,
                            public VUtils::AnimatedParameterInterface {
public:
    xrVellVrayFileParam();
    ~xrVellVrayFileParam() override;

    PluginInterface* newInterface(unsigned long interfaceID) override;
    const char* getString(int index, double time) override;
    void createKeyFrame(double time, int index) override;
    void clearKeyFrames(double time, int index) override;
    int numKeyframesPerFrame() override;

    void setOwner(xrVellMayaVRay* node) { owner = node; }

private:
    xrVellMayaVRay* owner;
    double keyframeTime;
};
