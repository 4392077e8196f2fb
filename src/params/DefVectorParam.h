#pragma once

#include "params/DefParamBase.h"
#include "params/VRayCloneableParamInterface.h"
#include "params/VRaySettableParamInterface.h"

namespace VUtils {

class DefVectorParam : public DefParamBase,
                       public VRaySettableParamInterface,
                       public VRayCloneableParamInterface {
public:
    explicit DefVectorParam(const char* name, bool copyName = false);

    PluginInterface* newInterface(unsigned long interfaceID) override;
    Vector getVector(int index, double time) override;
    PluginBase* getObject(int index, double time, const char** outName) override;
    int getType(int index, double time) override;
    PluginBase* getPlugin() override;
    simd::Vector3f getTexVector(const VRayContext& context) override;
    void getTexVectorBounds(simd::Vector3f& vmin, simd::Vector3f& vmax) override;

    // Appended in this order.
    void setVector(const Vector& value, int index, double time) override;
    VRayPluginParameter* clone() override;
    Matrix getVectorBumpGradient(const VRayContext& context) override;

private:
    simd::Vector3f value;
};

}  // namespace VUtils
