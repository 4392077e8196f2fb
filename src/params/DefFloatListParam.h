#pragma once

#include "params/DefListParamBaseTyped.h"

namespace VUtils {

class DefFloatListParam : public DefListParamBaseTyped<float> {
public:
    explicit DefFloatListParam(const char* name, bool copyName = false);
    ~DefFloatListParam() override;

    // Element index is not validated; time is ignored.
    int getInt(int index, double time) override;
    float getFloat(int index, double time) override;
    double getDouble(int index, double time) override;
    int getBool(int index, double time) override;
    PtrArray<float> getFloatList(double time) override;
    int getType(int index, double time) override;
    PluginBase* getPlugin() override;

    // Appended in this order.
    void setFloat(float value, int index, double time) override;
    void setInt(int value, int index, double time) override;
    void setBool(int value, int index, double time) override;
    void setDouble(double value, int index, double time) override;
    void setFloatList(const PtrArray<float>& list, double time) override;
    VRayPluginParameter* clone() override;
};

}  // namespace VUtils
