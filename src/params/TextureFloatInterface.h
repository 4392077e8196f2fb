#pragma once

#include "params/InterfaceIds.h"
#include "params/PluginInterface.h"
#include "params/RendererTypes.h"
#include "params/Vector.h"

namespace VUtils {

class TextureFloatInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_TEXTURE_FLOAT; }
    const char* getInterfaceName() const override { return "EXT_TEXTURE_FLOAT"; }
    virtual float getTexFloat(const VRayContext& context) = 0;
    virtual void getTexFloatBounds(float& fmin, float& fmax) = 0;
    virtual Vector getFloatBumpGradient(const VRayContext& context) = 0;
    virtual bool isConstant(float&) { return false; }
};

}  // namespace VUtils
