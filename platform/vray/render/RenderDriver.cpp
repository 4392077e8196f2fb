#include "RenderDriver.h"

#include <maya/MPlug.h>
#include <mayahost/Host.h>
#include <mayahost/Renderer.h>

#include <algorithm>
#include <cstring>

#include "ParameterReader.h"
#include "params/AnimatedParameterInterface.h"
#include "params/VRayPluginParameter.h"
#include "vray/VRayParameterList.h"

namespace vrayrender {
namespace {

// Clearing with a time beyond any frame tells animated parameters the render is over.
const double kEndOfRender = 1e30;

bool isGeometrySource(const MObject& node) {
    const MPlug type = mayahost::findPlug(node, "outApiType");
    return !type.isNull() && std::strcmp(type.asString().asChar(), "VRayGeometry") == 0;
}

}  // namespace

std::vector<double> sampleTimes(double frame, const MotionBlur& blur) {
    if (!blur.enabled) return {frame};
    const double centre = frame + blur.intervalCenter;
    if (blur.geometrySamples < 2) return {centre};
    std::vector<double> times;
    const double first = centre - blur.duration / 2.0;
    const double step = blur.duration / (blur.geometrySamples - 1);
    for (int i = 0; i < blur.geometrySamples; ++i) times.push_back(first + step * i);
    return times;
}

std::vector<double> frames(const RenderSettings& settings) {
    std::vector<double> all;
    if (settings.byFrame <= 0.0) return all;
    for (double f = settings.startFrame; f <= settings.endFrame + 1e-9; f += settings.byFrame)
        all.push_back(f);
    return all;
}

RenderDriver::RenderDriver(VUtils::PluginRegistry* pluginRegistry) : registry(pluginRegistry) {}

RenderDriver::~RenderDriver() {
    // The nodes must not keep the address of a request that is going away.
    for (Source& source : sources)
        mayahost::setAddress(mayahost::findPlug(source.node, "vrayGeomInfo"), nullptr);
}

RenderRecord RenderDriver::render(const RenderSettings& settings) {
    RenderRecord record;
    findSources(settings.reuseInstances);
    record.geometrySources = static_cast<int>(sources.size());
    for (double frame : frames(settings)) {
        RecordedFrame done = renderFrame(frame, settings.motionBlur);
        if (settings.frameDone)
            settings.frameDone(std::move(done));
        else
            record.frames.push_back(std::move(done));
    }
    finishRender();
    record.instancesCreated = instanceCounter;
    return record;
}

void RenderDriver::findSources(bool reuseInstances) {
    for (const MObject& node : mayahost::nodes()) {
        if (!isGeometrySource(node)) continue;
        Source source;
        source.node = node;
        source.name = mayahost::nodeName(node);
        source.request.reset(new GeomRequest(registry, reuseInstances, &instanceCounter));
        sources.push_back(std::move(source));
    }
}

void RenderDriver::translate(Source& source) {
    source.request->startTranslation();
    mayahost::setAddress(mayahost::findPlug(source.node, "vrayGeomInfo"), source.request.get());
    mayahost::findPlug(source.node, "vrayGeomResult").asInt();
}

std::vector<RenderDriver::Parameter> RenderDriver::parametersOf(VUtils::VRayPlugin* plugin) const {
    std::vector<Parameter> parameters;
    VUtils::VRayParameterList* list = plugin->getParameterList();
    if (!list) return parameters;
    for (int i = 0; i < list->getNumParams(); ++i) {
        VUtils::VRayPluginParameter* parameter = list->getParam(i);
        auto* animation = static_cast<VUtils::AnimatedParameterInterface*>(
            parameter->newInterface(EXT_ANIMATEDPARAM));
        parameters.push_back(Parameter{parameter, animation});
    }
    return parameters;
}

RecordedFrame RenderDriver::renderFrame(double frame, const MotionBlur& blur) {
    RecordedFrame recorded;
    recorded.frame = frame;
    recorded.sampleTimes = sampleTimes(frame, blur);
    mayahost::setCurrentTime(MTime(frame, MTime::uiUnit()));
    for (Source& source : sources) translate(source);
    std::vector<Sampling> sampling;
    for (Source& source : sources)
        if (source.request->current())
            sampling.push_back(beginSampling(source, recorded.sampleTimes));
    // The scene time moves once per sample for every instance, as in a renderer; moving it per
    // instance would dirty every node's time once per instance.
    for (double time : recorded.sampleTimes) {
        mayahost::setCurrentTime(MTime(time, MTime::uiUnit()));
        for (Sampling& instance : sampling) sample(instance, time);
    }
    for (Sampling& instance : sampling) {
        recorded.instances.push_back(std::move(instance.record));
        instance.source->request->current()->frameBegin(frame);
    }
    return recorded;
}

RenderDriver::Sampling RenderDriver::beginSampling(Source& source,
                                                   const std::vector<double>& times) {
    VUtils::VRayPlugin* plugin = source.request->current();
    if (renderedSet.insert(plugin).second) rendered.push_back(plugin);
    Sampling sampling{&source, parametersOf(plugin), {}};
    RecordedInstance& instance = sampling.record;
    instance.node = source.name;
    instance.instance = source.request->currentNumber();
    instance.created = source.request->madeNewInstance();
    for (const Parameter& p : sampling.parameters) {
        instance.parameters.push_back(
            RecordedParameter{p.parameter->getName(), p.animation != nullptr, {}});
        instance.parameters.back().samples.reserve(times.size());
        if (p.animation) p.animation->clearKeyFrames(times.front(), 0);
    }
    return sampling;
}

void RenderDriver::sample(Sampling& sampling, double time) {
    const std::vector<Parameter>& parameters = sampling.parameters;
    std::vector<RecordedParameter>& recorded = sampling.record.parameters;
    for (size_t i = 0; i < parameters.size(); ++i) {
        if (!parameters[i].animation) continue;
        parameters[i].animation->createKeyFrame(time, 0);
        // The value of an animated parameter belongs to the keyframe just made.
        recorded[i].samples.push_back({time, readParameter(*parameters[i].parameter, time)});
    }
    for (size_t i = 0; i < parameters.size(); ++i) {
        if (parameters[i].animation) continue;
        recorded[i].samples.push_back({time, readParameter(*parameters[i].parameter, time)});
    }
}

void RenderDriver::finishRender() {
    for (VUtils::VRayPlugin* plugin : rendered)
        for (const Parameter& p : parametersOf(plugin))
            if (p.animation) p.animation->clearKeyFrames(kEndOfRender, 0);
}

}  // namespace vrayrender
