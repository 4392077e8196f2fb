#pragma once
#include <maya/MStatus.h>

#include <string>

#include "Object.h"

namespace mayahost {
namespace detail {

using EntryPoint = MStatus (*)(MObject);

struct PluginObj : Object {
    std::string path;
    void* library = nullptr;  // null for a plug-in linked into the program
    EntryPoint initialize = nullptr;
    EntryPoint uninitialize = nullptr;
    std::string apiVersion;  // what the library's MApiVersion says
    std::string vendor;
    std::string version;
    std::string requiredApiVersion;
    bool identified = false;  // vendor and version come from the first MFnPlugin only
};

}  // namespace detail
}  // namespace mayahost
