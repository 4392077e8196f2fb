#pragma once
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "FurScene.h"
#include "GeomRequest.h"
#include "ParameterReader.h"
#include "params/AnimatedParameterInterface.h"
#include "params/VRayPluginParameter.h"
#include "vray/PluginRegistry.h"
#include "vray/VRayPlugin.h"

namespace vrayrender {
void PrintTo(const RecordedValue& value, std::ostream* out);
}

// The twelve parameter names in the order the bridge attaches them.
extern const std::vector<std::string> kAttachOrder;

// Values as the renderer reads them.
vrayrender::RecordedValue intValue(int v);
vrayrender::RecordedValue floatValue(float v);
vrayrender::RecordedValue vectorValue(float x, float y, float z);
vrayrender::RecordedValue textValue(const std::string& text);
vrayrender::RecordedValue emptyList();

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
    // The entries of an instance's parameter list, duplicates included, in list order.
    static std::vector<VUtils::VRayPluginParameter*> entries(VUtils::VRayPlugin* instance);
    static vrayrender::RecordedValue value(vrayrender::GeomRequest& request, const char* name);
    // Every parameter of the current instance by name, as the renderer reads it.
    static std::map<std::string, vrayrender::RecordedValue> values(
        vrayrender::GeomRequest& request);
    static std::vector<float> samples(vrayrender::GeomRequest& request);
    static std::vector<xrvellfur::FurCall> callsOf(xrvellfur::FurOperation operation);

    VUtils::PluginRegistry registry;
    MObject fur;
    MObject bridge;
    int instanceCounter = 0;
};
