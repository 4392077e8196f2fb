#include "FurGeneratorPlugin.h"

#include <cstdio>

#include "params/VRayPluginParameter.h"
#include "vray/PluginDesc.h"

namespace {

// What the generator needs before it can grow fur for a frame.
const char* const kInputs[] = {
    "sampleGenerator", "density",         "length", "width",
    "verbosity",       "imageSearchPath", "file",   "dynamicHairTesselation",
    "segmentLength",   "obeyROI",         "minROI", "maxROI"};

}  // namespace

VUtils::VRayParameterList* FurGeneratorPlugin::getParameterList() { return &parameters; }

void FurGeneratorPlugin::frameBegin(double time) {
    if (!readInputs(time)) std::fprintf(stderr, "xrVellVRay: frame %g skipped\n", time);
}

bool FurGeneratorPlugin::readInputs(double time) {
    bool complete = true;
    for (const char* name : kInputs) {
        if (!parameters.getParam(name)) {
            std::fprintf(stderr, "xrVellVRay: missing input \"%s\"\n", name);
            complete = false;
        }
    }
    if (!complete) return false;
    // Read as the generator does, so a parameter answering the wrong kind shows up here.
    const char* cacheFile = parameters.getParam("file")->getString(0, time);
    const float density = parameters.getParam("density")->getFloat(0, time);
    if (!cacheFile) {
        std::fprintf(stderr, "xrVellVRay: no cache file for frame %g\n", time);
        return false;
    }
    return density >= 0.0f;
}

extern "C" {

__attribute__((visibility("default"))) int vrayPluginLibraryApiVersion() {
    return VUtils::kPluginLibraryApiVersion;
}

__attribute__((visibility("default"))) int vrayPluginLibraryDescs(
    const VUtils::PluginDesc** descs) {
    static const VUtils::PluginDesc table[] = {
        {"xrVellVRay", []() -> VUtils::VRayPlugin* { return new FurGeneratorPlugin; },
         [](VUtils::VRayPlugin* plugin) { delete plugin; }},
    };
    *descs = table;
    return 1;
}
}
