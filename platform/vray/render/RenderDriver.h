#pragma once
#include <maya/MObject.h>

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "GeomRequest.h"
#include "RenderRecord.h"
#include "RenderSettings.h"

namespace VUtils {
class AnimatedParameterInterface;
class VRayPluginParameter;
}  // namespace VUtils

namespace vrayrender {

// Renders the stand-in host's scene as V-Ray for Maya does: translates every custom geometry
// node at each frame, drives the keyframes of the animated parameters over the motion-blur
// samples, and records what each plugin instance receives.
class RenderDriver {
public:
    // Without a registry no renderer is available to the geometry nodes.
    explicit RenderDriver(VUtils::PluginRegistry* registry);
    ~RenderDriver();

    RenderRecord render(const RenderSettings& settings);

private:
    struct Source {
        MObject node;
        std::string name;
        std::unique_ptr<GeomRequest> request;
    };
    struct Parameter {
        VUtils::VRayPluginParameter* parameter;
        VUtils::AnimatedParameterInterface* animation;  // null for constant parameters
    };

    void findSources(bool reuseInstances);
    void translate(Source& source);
    // One plugin instance being sampled through a frame.
    struct Sampling {
        Source* source;
        std::vector<Parameter> parameters;
        RecordedInstance record;
    };

    RecordedFrame renderFrame(double frame, const MotionBlur& blur);
    Sampling beginSampling(Source& source, const std::vector<double>& times);
    void sample(Sampling& sampling, const std::vector<double>& times, size_t index);
    std::vector<Parameter> parametersOf(VUtils::VRayPlugin* plugin) const;
    void finishRender();

    VUtils::PluginRegistry* registry;
    std::vector<Source> sources;
    std::vector<VUtils::VRayPlugin*> rendered;  // every instance driven so far, in order
    std::unordered_set<VUtils::VRayPlugin*> renderedSet;
    int instanceCounter = 0;
    RecordedValue reading;  // each sample's value before it is kept, its storage reused
};

}  // namespace vrayrender
