#pragma once
#include <memory>
#include <string>
#include <vector>

#include "vray/PluginRegistry.h"
#include "vray/VRayGeomInfo.h"

namespace vrayrender {

// The request object the renderer hands one custom geometry node during translation. It owns
// the plugin instances it makes; they live until the request is destroyed.
class GeomRequest final : public VUtils::VRayGeomInfo {
public:
    GeomRequest(VUtils::PluginRegistry* registry, bool reuseInstances, int* instanceCounter);
    GeomRequest(const GeomRequest&) = delete;
    GeomRequest& operator=(const GeomRequest&) = delete;
    ~GeomRequest();

    VUtils::VRayPluginRendererInterface* getPluginRenderer() override;
    VUtils::VRayPlugin* newPlugin(const char* pluginType, bool& existing) override;

    // The instance handed out most recently, with its number; null before any.
    VUtils::VRayPlugin* current() const { return currentPlugin; }
    int currentNumber() const { return currentInstance; }
    bool madeNewInstance() const { return madeNew; }
    void startTranslation() { madeNew = false; }

private:
    struct Instance {
        VUtils::PluginDesc* desc;
        VUtils::VRayPlugin* plugin;
        int number;
    };

    VUtils::PluginRegistry* registry;
    bool reuse;
    int* counter;
    std::vector<Instance> instances;
    VUtils::VRayPlugin* currentPlugin = nullptr;
    int currentInstance = 0;
    bool madeNew = false;
};

}  // namespace vrayrender
