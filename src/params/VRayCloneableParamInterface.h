#pragma once

#include "params/InterfaceIds.h"
#include "params/PluginInterface.h"

namespace VUtils {

class VRayPluginParameter;

class VRayCloneableParamInterface : public PluginInterface {
public:
    unsigned long getInterfaceID() const override { return EXT_CLONEABLE_PARAM; }
    PluginBase* getPlugin() override { return nullptr; }
    const char* getInterfaceName() const override { return "EXT_CLONEABLE_PARAM"; }
    // The caller owns the copy.
    virtual VRayPluginParameter* clone() = 0;
};

}  // namespace VUtils
