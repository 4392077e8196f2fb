#pragma once
#include "vray/VRayPlugin.h"
#include "vray/VRayPluginRendererInterface.h"

namespace VUtils {

// What V-Ray for Maya hands a custom geometry node while it translates the scene.
class VRayGeomInfo {
public:
    // The renderer's plugin interface; null when no renderer is available.
    virtual VRayPluginRendererInterface* getPluginRenderer() = 0;
    // The instance of that plugin type for this geometry. `existing` is set to true when the
    // instance was handed out before; the caller sets it to false first.
    virtual VRayPlugin* newPlugin(const char* pluginType, bool& existing) = 0;

protected:
    ~VRayGeomInfo() = default;
};

}  // namespace VUtils
