#pragma once

#include "params/InterfaceIds.h"
#include "params/PluginInterface.h"

namespace VUtils {

// Keyframes the renderer creates on a parameter while it prepares a frame.
class AnimatedParameterInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_ANIMATEDPARAM; }
    PluginBase* getPlugin() override { return nullptr; }
    const char* getInterfaceName() const override { return "EXT_ANIMATEDPARAM"; }
    virtual void clearKeyFrames(double time, int index) = 0;
    virtual void createKeyFrame(double time, int index) = 0;
    virtual int numKeyframesPerFrame() { return 0; }
};

}  // namespace VUtils
