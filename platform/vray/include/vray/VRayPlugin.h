#pragma once
#include "params/PluginBase.h"
#include "vray/VRayPluginInterface.h"

namespace VUtils {

// A renderer plugin instance, as created from a plugin type for one piece of geometry.
class VRayPlugin : public PluginBase, public VRayPluginInterface {
public:
    // Called by the renderer once the keyframes of a frame are in place, before it renders it.
    virtual void frameBegin(double time) { (void)time; }
};

}  // namespace VUtils
