#pragma once
#include <string>
#include <vector>

#include "vray/PluginDesc.h"
#include "vray/VRayPluginRendererInterface.h"

namespace VUtils {

// The renderer's plugin types, from the renderer plugin libraries found on a search path.
class PluginRegistry : public VRayPluginRendererInterface {
public:
    // The search path variable V-Ray for Maya 2022 reads: directories separated by ':'.
    static const char* const kSearchPathVariable;

    PluginRegistry() = default;
    PluginRegistry(const PluginRegistry&) = delete;
    PluginRegistry& operator=(const PluginRegistry&) = delete;
    ~PluginRegistry();

    // Loads every "*.so" in each directory, in order; a type seen before keeps its first
    // library. Returns one message per directory or library that could not be used.
    std::vector<std::string> loadDirectories(const std::vector<std::string>& directories);
    // The directories named by the search path variable, if it is set.
    static std::vector<std::string> directoriesFromEnvironment();

    PluginDesc* getPluginDesc(const char* typeName) override;
    std::vector<std::string> typeNames() const;

private:
    std::string loadLibrary(const std::string& path);

    std::vector<void*> libraries;
    std::vector<PluginDesc*> descs;
};

}  // namespace VUtils
