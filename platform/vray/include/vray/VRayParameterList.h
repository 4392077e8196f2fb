#pragma once
#include <vector>

#include "params/RendererSymbol.h"

namespace VUtils {

class VRayPluginParameter;

// An instance's parameters, in the order they were first set. Parameters are referred to,
// never owned: whoever set them keeps them alive.
class XRVELL_RENDERER_SYMBOL VRayParameterList {
public:
    // A parameter whose name is already in the list takes that entry's place.
    void setParameter(VRayPluginParameter* param);
    VRayPluginParameter* getParam(const char* name) const;
    VRayPluginParameter* getParam(int index) const;
    int getNumParams() const;

private:
    std::vector<VRayPluginParameter*> params;
};

}  // namespace VUtils
