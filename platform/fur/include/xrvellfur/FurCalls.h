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

using FurCallRecordingSwitch = void (*)(int on);

constexpr const char* kCallLogSymbol = "xrVellMayaCallLog";
constexpr const char* kRecordCallsSymbol = "xrVellMayaRecordCalls";

// The log of the fur plug-in loaded from that path; null when it is not loaded.
inline FurCallLog* furCallLog(const std::string& pluginPath) {
    void* library = dlopen(pluginPath.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (!library) return nullptr;
    auto accessor = reinterpret_cast<FurCallLogAccessor>(dlsym(library, kCallLogSymbol));
    FurCallLog* log = accessor ? accessor() : nullptr;
    dlclose(library);  // only drops the reference taken above; the host keeps it loaded
    return log;
}

// Turns the recording of the fur plug-in loaded from that path on (as it starts) or off. A host
// that never reads the log turns it off, since it grows with every call. False when the path is
// not a loaded fur plug-in.
inline bool setFurCallRecording(const std::string& pluginPath, bool on) {
    void* library = dlopen(pluginPath.c_str(), RTLD_NOW | RTLD_NOLOAD);
    if (!library) return false;
    auto setRecording =
        reinterpret_cast<FurCallRecordingSwitch>(dlsym(library, kRecordCallsSymbol));
    if (setRecording) setRecording(on ? 1 : 0);
    dlclose(library);
    return setRecording != nullptr;
}

}  // namespace xrvellfur
