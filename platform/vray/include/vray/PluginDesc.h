#pragma once
// How a renderer plugin library presents its plugin types to the renderer.
namespace VUtils {

class VRayPlugin;

// Bumped whenever the descriptor layout or the instance classes change.
const int kPluginLibraryApiVersion = 20220001;

struct PluginDesc {
    const char* typeName;
    VRayPlugin* (*create)();
    void (*destroy)(VRayPlugin* plugin);
};

}  // namespace VUtils

// Each renderer plugin library exports these two functions.
extern "C" {
typedef int (*VRayPluginLibraryApiVersionFn)();
typedef int (*VRayPluginLibraryDescsFn)(const VUtils::PluginDesc** descs);
}
#define VRAY_PLUGIN_LIBRARY_API_VERSION_SYMBOL "vrayPluginLibraryApiVersion"
#define VRAY_PLUGIN_LIBRARY_DESCS_SYMBOL "vrayPluginLibraryDescs"
