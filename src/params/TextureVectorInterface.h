#pragma once

#include "params/InterfaceIds.h"
#include "params/Matrix.h"
#include "params/PluginInterface.h"
#include "params/RendererTypes.h"
#include "params/Vector3f.h"

namespace VUtils {

class TextureVectorInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_TEXTURE_VECTOR; }
    const char* getInterfaceName() const override { return "EXT_TEXTURE_VECTOR"; }
    virtual simd::Vector3f getTexVector(const VRayContext& context) = 0;
    virtual void getTexVectorBounds(simd::Vector3f& vmin, simd::Vector3f& vmax) = 0;
    virtual Matrix getVectorBumpGradient(const VRayContext&) { return Matrix{}; }
};

}  // namespace VUtils
