#pragma once

#include "params/DefParamBase.h"
#include "params/VRayCloneableParamInterface.h"
#include "params/VRaySettableParamInterface.h"

namespace VUtils {

// Holds its own copy of the text; a new parameter holds "" rather than null.
class DefStringParam : public DefParamBase,
                       public VRaySettableParamInterface,
                       public VRayCloneableParamInterface {
public:
    explicit DefStringParam(const char* name, bool copyName = false);
    ~DefStringParam() override;

    PluginInterface* newInterface(unsigned long interfaceID) override;
    const char* getString(int index, double time) override;
    int getType(int index, double time) override;
    PluginBase* getPlugin() override;

    // Appended in this order.
    void setString(const char* text, int index, double time) override;
    VRayPluginParameter* clone() override;

private:
    char* value;
};

}  // namespace VUtils
