#pragma once
// The calls the fur node stand-in received, for tests. The fur plug-in keeps one log per load
// and exports an accessor under the C name kCallLogSymbol; furCallLog() finds it in the loaded
// library, so a test needs nothing of the plug-in but this header.
#include <dlfcn.h>

#include <string>
#include <vector>

namespace xrvellfur {

// The fur node's own virtual operations, numbered by their place among them; 0 is
// MPxSurfaceShape::boundingBox, which Maya calls.
enum class FurOperation {
    BoundingBox = 0,
    RenderSampleCount = 1,
    UpdateRenderSample = 2,
    RemoveRenderSamples = 3,
    RemoveRenderSamplesBefore = 4,
    RenderSampleTime = 5,
    GetCacheFileName = 6,
    GetCacheFilePattern = 7,
    GetObeyROI = 8,
    GetROIBoundingBox = 9,
};

struct FurCall {
    std::string node;  // the fur node's name
    FurOperation operation = FurOperation::BoundingBox;
    double time = 0.0;  // updateRenderSample, removeRenderSamplesBefore
    int index = 0;      // renderSampleTime
    int frame = 0;      // getCacheFileName
    int second = 0;     // getCacheFileName
};

using FurCallLog = std::vector<FurCall>;
using FurCallLogAccessor = FurCallLog* (*)();

constexpr const char* kCallLogSymbol = "xrVellMayaCallLog";

// The log of the fur plug-in loaded from that path; null when it is not loaded.
inline FurCallLog* furCallLog(const std::string& pluginPath) {
    void* library = dlopen(pluginPath.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (!library) return nullptr;
    auto accessor = reinterpret_cast<FurCallLogAccessor>(dlsym(library, kCallLogSymbol));
    FurCallLog* log = accessor ? accessor() : nullptr;
    dlclose(library);  // only drops the reference taken above; the host keeps it loaded
    return log;
}

}  // namespace xrvellfur
