#pragma once

#include "params/DefParamBase.h"
#include "params/VRayCloneableParamInterface.h"
#include "params/VRaySettableParamInterface.h"

namespace VUtils {

class DefIntParam : public DefParamBase,
                    public VRaySettableParamInterface,
                    public VRayCloneableParamInterface {
public:
    DefIntParam(const char* name, int value, bool copyName = false);

    PluginInterface* newInterface(unsigned long interfaceID) override;
    int getInt(int index, double time) override;
    float getFloat(int index, double time) override;
    double getDouble(int index, double time) override;
    int getBool(int index, double time) override;
    PluginBase* getObject(int index, double time, const char** outName) override;
    int getType(int index, double time) override;
    PluginBase* getPlugin() override;
    int getTexInt(const VRayContext& context) override;

    // Appended in this order.
    void setInt(int value, int index, double time) override;
    void setBool(int value, int index, double time) override;
    void setFloat(float value, int index, double time) override;
    void setDouble(double value, int index, double time) override;
    VRayPluginParameter* clone() override;

private:
    int value;
};

}  // namespace VUtils
