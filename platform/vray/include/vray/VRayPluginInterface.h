#pragma once
#include "params/RendererSymbol.h"

namespace VUtils {

class VRayParameterList;
class VRayPluginParameter;

// The part of a renderer plugin instance through which a scene translator hands it parameters.
class XRVELL_RENDERER_SYMBOL VRayPluginInterface {
public:
    virtual ~VRayPluginInterface();
    // The instance's parameters by name; null when the instance keeps none.
    virtual VRayParameterList* getParameterList();
    // Default: adds the parameter to the instance's list, if it has one.
    virtual void setParameter(VRayPluginParameter* param);
};

}  // namespace VUtils
