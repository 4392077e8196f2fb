#pragma once

#include "params/DefParamBase.h"
#include "params/VRayCloneableParamInterface.h"
#include "params/VRaySettableParamInterface.h"

namespace VUtils {

class DefFloatParam : public DefParamBase,
                      public VRaySettableParamInterface,
                      public VRayCloneableParamInterface {
public:
    DefFloatParam(const char* name, float value, bool copyName = false);

    PluginInterface* newInterface(unsigned long interfaceID) override;
    int getInt(int index, double time) override;
    float getFloat(int index, double time) override;
    double getDouble(int index, double time) override;
    int getBool(int index, double time) override;
    PluginBase* getObject(int index, double time, const char** outName) override;
    int getType(int index, double time) override;
    PluginBase* getPlugin() override;
    float getTexFloat(const VRayContext& context) override;
    void getTexFloatBounds(float& fmin, float& fmax) override;
    Vector getFloatBumpGradient(const VRayContext& context) override;

    // Appended in this order.
    void setInt(int value, int index, double time) override;
    void setBool(int value, int index, double time) override;
    void setFloat(float value, int index, double time) override;
    void setDouble(double value, int index, double time) override;
    VRayPluginParameter* clone() override;
    bool isConstant(float& out) override;
    using TextureInterface::isConstant;

private:
    float value;
};

}  // namespace VUtils
