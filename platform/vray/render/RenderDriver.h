#pragma once
#include <maya/MObject.h>

#include <memory>
#include <string>
#include <unordered_set>
#include <vector>

#include "GeomRequest.h"
#include "RenderObserver.h"
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

    // The frames go to the observer as they are rendered; without one they are kept in the
    // record.
    RenderRecord render(const RenderSettings& settings, RenderObserver* observer = nullptr);

private:
    struct Source {
        MObject node;
        std::string name;
        std::unique_ptr<GeomRequest> request;
        VUtils::VRayPlugin* lastSampled = nullptr;  // already in `rendered`
    };
    struct Parameter {
        VUtils::VRayPluginParameter* parameter;
        VUtils::AnimatedParameterInterface* animation;  // null for constant parameters
    };

    void findSources(bool reuseInstances);
    void translate(Source& source);
    // One plugin instance being sampled through a frame.
    struct Sampling {
        Source* source = nullptr;
        VUtils::VRayPlugin* listed = nullptr;  // the instance `parameters` were listed from
        std::vector<Parameter> parameters;
    };

    const RecordedFrame& renderFrame(double frame, const MotionBlur& blur,
                                     RenderObserver* observer);
    // Makes room for one more instance in this frame, at `position`.
    void enlist(Source& source, size_t position);
    void beginSampling(Sampling& sampling, RecordedInstance& instance, double firstSample);
    bool listedAlready(const Sampling& sampling, VUtils::VRayPlugin* plugin) const;
    // Lists the instance's parameters and names their records.
    void list(Sampling& sampling, VUtils::VRayPlugin* plugin, RecordedInstance& instance);
    void sample(const Sampling& sampling, RecordedInstance& instance,
                const std::vector<double>& times, size_t index);
    void listParameters(VUtils::VRayPlugin* plugin, std::vector<Parameter>& parameters) const;
    void finishRender();

    VUtils::PluginRegistry* registry;
    std::vector<Source> sources;
    std::vector<VUtils::VRayPlugin*> rendered;  // every instance driven so far, in order
    std::unordered_set<VUtils::VRayPlugin*> renderedSet;
    int instanceCounter = 0;
    std::vector<Sampling> sampling;  // the instances of the frame being rendered, in order
    RecordedFrame current;           // what they received, handed on when the frame is done
    RecordedValue reading;           // each sample's value before it is kept, its storage reused
};

}  // namespace vrayrender
