#include "GeomRequest.h"

#include <cstring>

namespace vrayrender {

GeomRequest::GeomRequest(VUtils::PluginRegistry* pluginRegistry, bool reuseInstances,
                         int* instanceCounter)
    : registry(pluginRegistry), reuse(reuseInstances), counter(instanceCounter) {}

GeomRequest::~GeomRequest() {
    for (auto it = instances.rbegin(); it != instances.rend(); ++it) it->desc->destroy(it->plugin);
}

VUtils::VRayPluginRendererInterface* GeomRequest::getPluginRenderer() { return registry; }

VUtils::VRayPlugin* GeomRequest::newPlugin(const char* pluginType, bool& existing) {
    VUtils::PluginDesc* desc = registry ? registry->getPluginDesc(pluginType) : nullptr;
    if (!desc) return nullptr;
    if (reuse) {
        for (const Instance& instance : instances) {
            if (std::strcmp(instance.desc->typeName, desc->typeName) == 0) {
                existing = true;
                currentPlugin = instance.plugin;
                currentInstance = instance.number;
                return instance.plugin;
            }
        }
    }
    Instance made{desc, desc->create(), ++*counter};
    instances.push_back(made);
    currentPlugin = made.plugin;
    currentInstance = made.number;
    madeNew = true;
    return made.plugin;
}

}  // namespace vrayrender
