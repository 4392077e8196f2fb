#pragma once
#include "vray/PluginDesc.h"

namespace VUtils {

// The renderer's side of plugin management, as a geometry request offers it.
class VRayPluginRendererInterface {
public:
    // The registered plugin type of that name, or null when no loaded library provides it.
    virtual PluginDesc* getPluginDesc(const char* typeName) = 0;

protected:
    ~VRayPluginRendererInterface() = default;
};

}  // namespace VUtils
