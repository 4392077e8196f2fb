#pragma once
#include <memory>
#include <string>
#include <vector>

#include "FurScene.h"
#include "GeomRequest.h"
#include "ParameterReader.h"
#include "params/AnimatedParameterInterface.h"
#include "params/VRayPluginParameter.h"
#include "vray/PluginRegistry.h"

namespace vrayrender {
void PrintTo(const RecordedValue& value, std::ostream* out);
}

// A fur node feeding a bridge with scene time connected, and the renderer side that translates
// the bridge the way V-Ray for Maya does.
class ExportScene : public FurScene {
protected:
    void SetUp() override;

    MObject addBridgeFor(const MObject& fur, const std::string& name = "");
    // Hands the bridge the request and pulls its result, as one translation does.
    int translate(const MObject& bridge, vrayrender::GeomRequest& request);
    std::unique_ptr<vrayrender::GeomRequest> newRequest(bool reuse = true);

    static VUtils::VRayPluginParameter* parameter(vrayrender::GeomRequest& request,
                                                  const char* name);
    static VUtils::AnimatedParameterInterface* keyframes(vrayrender::GeomRequest& request,
                                                         const char* name);
    static std::vector<std::string> parameterNames(vrayrender::GeomRequest& request);
    static vrayrender::RecordedValue value(vrayrender::GeomRequest& request, const char* name);
    static std::vector<float> samples(vrayrender::GeomRequest& request);
    static std::vector<xrvellfur::FurCall> callsOf(xrvellfur::FurOperation operation);

    VUtils::PluginRegistry registry;
    MObject fur;
    MObject bridge;
    int instanceCounter = 0;
};
