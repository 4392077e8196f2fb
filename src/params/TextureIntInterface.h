#pragma once

#include "params/InterfaceIds.h"
#include "params/PluginInterface.h"
#include "params/RendererTypes.h"

namespace VUtils {

class TextureIntInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_TEXTURE_INT; }
    const char* getInterfaceName() const override { return "EXT_TEXTURE_INT"; }
    virtual int getTexInt(const VRayContext& context) = 0;
};

}  // namespace VUtils
