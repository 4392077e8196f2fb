#include "RenderDriver.h"

#include <maya/MPlug.h>
#include <maya/MString.h>
#include <mayahost/Host.h>
#include <mayahost/Renderer.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

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

// Keeps a single value while the parameter holds it; the first change spells out every sample.
void record(RecordedParameter& parameter, const RecordedValue& value, size_t index,
            size_t samples) {
    if (index == 0) {
        parameter.later.clear();
        parameter.first = value;
        return;
    }
    std::vector<RecordedValue>& later = parameter.later;
    if (later.empty()) {
        if (value == parameter.first) return;
        later.reserve(samples - 1);
        later.resize(index - 1, parameter.first);
    }
    later.push_back(value);
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

namespace {

// How close, in steps, the last frame must come to the end to be taken as the end itself.
const double kEndTolerance = 1e-9;

double unitInLastPlace(double value) {
    const double magnitude = std::fabs(value);
    return std::nextafter(magnitude, std::numeric_limits<double>::infinity()) - magnitude;
}

// start + offset misses the decimal the user meant by a unit or two in the last place of the
// larger of its terms (3 * 0.1 is 0.30000000000000004; -1 + 3 * 0.3 is -0.10000000000000009):
// such a frame becomes the short decimal it stands for, on either side of zero.
double tidyFrame(double start, double offset) {
    const double frame = start + offset;
    char text[32];
    std::snprintf(text, sizeof text, "%.15g", frame);
    const double tidy = std::strtod(text, nullptr);
    const double largest = std::max({std::fabs(start), std::fabs(offset), std::fabs(frame)});
    return std::fabs(tidy - frame) <= 2 * unitInLastPlace(largest) ? tidy : frame;
}

bool beyondSampleTimes(double time) { return !(std::fabs(time) <= kMaxSampleTime); }

bool samplesBeyondSampleTimes(double frame, const MotionBlur& blur) {
    for (double time : sampleTimes(frame, blur))
        if (beyondSampleTimes(time)) return true;
    return false;
}

// The frames of the range, or why there are none.
RangeProblem computeFrames(const RenderSettings& settings, std::vector<double>* all) {
    using Kind = RangeProblem::Kind;
    const double start = settings.startFrame, end = settings.endFrame, step = settings.byFrame;
    if (!(step > 0.0) || !std::isfinite(step)) return {Kind::NoStep, start};
    if (beyondSampleTimes(start)) return {Kind::FrameOutOfRange, start};
    if (beyondSampleTimes(end)) return {Kind::FrameOutOfRange, end};
    if (end < start) return {Kind::Backwards, start};
    if (start + step == start) return {Kind::FramesTooClose, start};
    const double steps = (end - start) / step;
    if (!(steps + kEndTolerance < static_cast<double>(kMaxFrames)))
        return {Kind::TooManyFrames, start};
    const size_t last = static_cast<size_t>(std::floor(steps + kEndTolerance));
    all->reserve(last + 1);
    for (size_t i = 0; i <= last; ++i) {
        double frame = i == 0 ? start : tidyFrame(start, static_cast<double>(i) * step);
        if (i == last && std::fabs(frame - end) <= kEndTolerance * step) frame = end;
        if (i > 0 && !(frame > all->back())) return {Kind::FramesTooClose, all->back()};
        all->push_back(frame);
    }
    for (double frame : {all->front(), all->back()})
        if (samplesBeyondSampleTimes(frame, settings.motionBlur))
            return {Kind::SamplesOutOfRange, frame};
    return {};
}

}  // namespace

RangeProblem rangeProblem(const RenderSettings& settings) {
    std::vector<double> all;
    return computeFrames(settings, &all);
}

std::vector<double> frames(const RenderSettings& settings) {
    std::vector<double> all;
    if (computeFrames(settings, &all).kind != RangeProblem::Kind::None) all.clear();
    return all;
}

RenderDriver::RenderDriver(VUtils::PluginRegistry* pluginRegistry) : registry(pluginRegistry) {}

RenderDriver::~RenderDriver() {
    // The nodes must not keep the address of a request that is going away.
    for (Source& source : sources)
        mayahost::setAddress(mayahost::findPlug(source.node, "vrayGeomInfo"), nullptr);
}

RenderRecord RenderDriver::render(const RenderSettings& settings, RenderObserver* observer) {
    RenderRecord record;
    findSources(settings.reuseInstances);
    record.geometrySources = static_cast<int>(sources.size());
    for (double frame : frames(settings)) {
        const RecordedFrame& done = renderFrame(frame, settings.motionBlur, observer);
        if (!observer)
            record.frames.push_back(done);
        else if (!observer->frameDone(done))
            break;
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
        source.name = mayahost::uniquePathName(node);
        source.request.reset(new GeomRequest(registry, reuseInstances, &instanceCounter));
        sources.push_back(std::move(source));
    }
}

void RenderDriver::translate(Source& source) {
    source.request->startTranslation();
    mayahost::setAddress(mayahost::findPlug(source.node, "vrayGeomInfo"), source.request.get());
    mayahost::findPlug(source.node, "vrayGeomResult").asInt();
}

void RenderDriver::listParameters(VUtils::VRayPlugin* plugin,
                                  std::vector<Parameter>& parameters) const {
    parameters.clear();
    VUtils::VRayParameterList* list = plugin->getParameterList();
    if (!list) return;
    parameters.reserve(static_cast<size_t>(list->getNumParams()));
    for (int i = 0; i < list->getNumParams(); ++i) {
        VUtils::VRayPluginParameter* parameter = list->getParam(i);
        auto* animation = static_cast<VUtils::AnimatedParameterInterface*>(
            parameter->newInterface(EXT_ANIMATEDPARAM));
        parameters.push_back(Parameter{parameter, animation});
    }
}

// The frame's record and the per-instance lists are kept from frame to frame and filled in place:
// a large scene would otherwise allocate and free thousands of them at every frame.
const RecordedFrame& RenderDriver::renderFrame(double frame, const MotionBlur& blur,
                                               RenderObserver* observer) {
    current.frame = frame;
    current.sampleTimes = sampleTimes(frame, blur);
    mayahost::setCurrentTime(MTime(frame, MTime::uiUnit()));
    size_t count = 0;
    for (Source& source : sources) {
        translate(source);
        if (source.request->current()) enlist(source, count++);
    }
    sampling.resize(count);
    current.instances.resize(count);
    if (observer) observer->frameStarted(current);
    // The scene time moves once per sample for every instance, as in a renderer; moving it per
    // instance would dirty every node's time once per instance. Each instance starts its frame at
    // the first sample and ends it at the last, so that a large scene is walked once a sample.
    const std::vector<double>& times = current.sampleTimes;
    for (size_t index = 0; index < times.size(); ++index) {
        mayahost::setCurrentTime(MTime(times[index], MTime::uiUnit()));
        const bool last = index + 1 == times.size();
        for (size_t i = 0; i < count; ++i) {
            if (index == 0) beginSampling(sampling[i], current.instances[i], times.front());
            sample(sampling[i], current.instances[i], times, index);
            if (!last) continue;
            sampling[i].source->request->current()->frameBegin(frame);
            if (observer) observer->instanceDone(current, current.instances[i]);
        }
    }
    return current;
}

void RenderDriver::enlist(Source& source, size_t position) {
    if (position == sampling.size()) sampling.emplace_back();
    if (position == current.instances.size()) current.instances.emplace_back();
    sampling[position].source = &source;
}

void RenderDriver::beginSampling(Sampling& sampling, RecordedInstance& instance,
                                 double firstSample) {
    Source& source = *sampling.source;
    VUtils::VRayPlugin* plugin = source.request->current();
    if (plugin != source.lastSampled && renderedSet.insert(plugin).second)
        rendered.push_back(plugin);
    source.lastSampled = plugin;
    if (!listedAlready(sampling, plugin)) list(sampling, plugin, instance);
    instance.instance = source.request->currentNumber();
    instance.created = source.request->madeNewInstance();
    for (const Parameter& p : sampling.parameters)
        if (p.animation) p.animation->clearKeyFrames(firstSample, 0);
}

// Lists only grow, so the same instance with as many parameters as before lists the same ones.
bool RenderDriver::listedAlready(const Sampling& sampling, VUtils::VRayPlugin* plugin) const {
    const VUtils::VRayParameterList* list = plugin->getParameterList();
    return plugin == sampling.listed && list &&
           static_cast<size_t>(list->getNumParams()) == sampling.parameters.size();
}

void RenderDriver::list(Sampling& sampling, VUtils::VRayPlugin* plugin,
                        RecordedInstance& instance) {
    sampling.listed = plugin;
    listParameters(plugin, sampling.parameters);
    instance.node = sampling.source->name;
    instance.parameters.resize(sampling.parameters.size());
    for (size_t i = 0; i < instance.parameters.size(); ++i) {
        const Parameter& p = sampling.parameters[i];
        RecordedParameter& recorded = instance.parameters[i];
        recorded.name = p.parameter->getName();
        recorded.animated = p.animation != nullptr;
    }
}

void RenderDriver::sample(const Sampling& sampling, RecordedInstance& instance,
                          const std::vector<double>& times, size_t index) {
    const double time = times[index];
    const std::vector<Parameter>& parameters = sampling.parameters;
    std::vector<RecordedParameter>& recorded = instance.parameters;
    for (size_t i = 0; i < parameters.size(); ++i) {
        if (!parameters[i].animation) continue;
        parameters[i].animation->createKeyFrame(time, 0);
        // The value of an animated parameter belongs to the keyframe just made.
        readParameter(*parameters[i].parameter, time, reading);
        record(recorded[i], reading, index, times.size());
    }
    for (size_t i = 0; i < parameters.size(); ++i) {
        if (parameters[i].animation) continue;
        readParameter(*parameters[i].parameter, time, reading);
        record(recorded[i], reading, index, times.size());
    }
}

void RenderDriver::finishRender() {
    std::vector<Parameter> parameters;
    for (VUtils::VRayPlugin* plugin : rendered) {
        listParameters(plugin, parameters);
        for (const Parameter& p : parameters)
            if (p.animation) p.animation->clearKeyFrames(kEndOfRender, 0);
    }
}

}  // namespace vrayrender
