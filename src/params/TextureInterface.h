#pragma once

#include "params/AColor.h"
#include "params/InterfaceIds.h"
#include "params/PluginInterface.h"
#include "params/RendererTypes.h"
#include "params/Vector.h"

namespace VUtils {

class TextureInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_TEXTURE; }
    const char* getInterfaceName() const override { return "EXT_TEXTURE"; }
    virtual AColor getTexColor(const VRayContext& context) = 0;
    virtual void getTexColorBounds(AColor& minColor, AColor& maxColor) = 0;
    virtual Vector getColorBumpGradient(const VRayContext& context) = 0;
    virtual bool isConstant(AColor&) { return false; }
    virtual bool isInstanceDependent(const VRayRenderer*) { return false; }
};

}  // namespace VUtils
