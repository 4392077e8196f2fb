#pragma once
#include <vector>

#include "params/RendererSymbol.h"

namespace VUtils {

class VRayPluginParameter;

// An instance's parameters, in the order they were set. Parameters are referred to, never
// owned: whoever set them keeps them alive.
class XRVELL_RENDERER_SYMBOL VRayParameterList {
public:
    // Appends the parameter, even when one of the same name is already listed: setting a name
    // twice shows as two entries, so a caller that attaches twice can be told apart.
    void setParameter(VRayPluginParameter* param);
    // The first entry of that name, in the order the entries were set; null when none.
    VRayPluginParameter* getParam(const char* name) const;
    VRayPluginParameter* getParam(int index) const;
    int getNumParams() const;

private:
    std::vector<VRayPluginParameter*> params;
};

}  // namespace VUtils
