#pragma once

#include "params/RTTexInterface.h"
#include "params/TextureFloatInterface.h"
#include "params/TextureIntInterface.h"
#include "params/TextureInterface.h"
#include "params/TextureTransformInterface.h"
#include "params/TextureVectorInterface.h"
#include "params/VRayPluginParameter.h"

namespace VUtils {

// A parameter is also a constant texture of every kind, so a plain value can be
// plugged wherever the renderer expects a texture.
class DefParamBase : public VRayPluginParameter,
                     public RTTexInterface,
                     public TextureInterface,
                     public TextureFloatInterface,
                     public TextureIntInterface,
                     public TextureTransformInterface,
                     public TextureVectorInterface {
public:
    // With copyName the parameter keeps its own copy; otherwise it borrows the pointer.
    explicit DefParamBase(const char* name, bool copyName = false);
    ~DefParamBase() override;

    PluginInterface* newInterface(unsigned long interfaceID) override;
    const char* getName() override;
    float getFloat(int index, double time) override;
    int getBool(int index, double time) override;
    Color getColor(int index, double time) override;
    AColor getAColor(int index, double time) override;
    PluginBase* getObject(int index, double time, const char** outName) override;

    // Operations of the interfaces, one implementation each, in their slot order.
    PluginBase* getPlugin() override;
    bool getSource(const char* a, const char* b, const char* descriptorKind,
                   ShaderSource& shaderSource, const OCLData& oclData) override;
    AColor getTexColor(const VRayContext& context) override;
    void getTexColorBounds(AColor& minColor, AColor& maxColor) override;
    Vector getColorBumpGradient(const VRayContext& context) override;
    float getTexFloat(const VRayContext& context) override;
    void getTexFloatBounds(float& fmin, float& fmax) override;
    Vector getFloatBumpGradient(const VRayContext& context) override;
    int getTexInt(const VRayContext& context) override;
    simd::Transform3f getTexTransform(const VRayContext& context) override;
    simd::Vector3f getTexVector(const VRayContext& context) override;
    void getTexVectorBounds(simd::Vector3f& vmin, simd::Vector3f& vmax) override;

    bool ownsNameCopy() const { return ownsName; }

protected:
    PluginBase* asPlugin() { return static_cast<VRayPluginParameter*>(this); }

private:
    AColor sourceColorAt(int type, double time);

    bool ownsName;
    const char* paramName;
};

}  // namespace VUtils
