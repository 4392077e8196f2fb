#pragma once
#include <vector>

#include "params/AnimatedParameterInterface.h"
#include "params/DefFloatListParam.h"

class xrVellMayaVRay;

// The "sampleGenerator" parameter: the motion-blur sample times the renderer creates keyframes
// for, kept in step with the fur node's own render samples.
class xrVellVraySamplesParam : public VUtils::DefFloatListParam,
                               public VUtils::AnimatedParameterInterface {
public:
    xrVellVraySamplesParam();
    ~xrVellVraySamplesParam() override;

    PluginInterface* newInterface(unsigned long interfaceID) override;
    // A view of the samples, not a copy; valid until the samples next change.
    VUtils::PtrArray<float> getFloatList(double time) override;
    void createKeyFrame(double time, int index) override;
    void clearKeyFrames(double time, int index) override;

    void setOwner(xrVellMayaVRay* node) { owner = node; }

private:
    void dropSamplesBefore(double time);

    xrVellMayaVRay* owner;
    std::vector<float> samples;
};
