#pragma once

#include "params/InterfaceIds.h"
#include "params/PluginInterface.h"
#include "params/RendererTypes.h"
#include "params/Transform3f.h"

namespace VUtils {

class TextureTransformInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_TEXTURE_TRANSFORM; }
    const char* getInterfaceName() const override { return "EXT_TEXTURE_TRANSFORM"; }
    virtual simd::Transform3f getTexTransform(const VRayContext& context) = 0;
};

}  // namespace VUtils
