#include "vray/PluginRegistry.h"

#include <dirent.h>
#include <dlfcn.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace VUtils {
namespace {

bool endsWith(const std::string& text, const std::string& suffix) {
    return text.size() >= suffix.size() &&
           text.compare(text.size() - suffix.size(), suffix.size(), suffix) == 0;
}

std::string dlError() {
    const char* text = dlerror();
    return text ? text : "unknown error";
}

}  // namespace

const char* const PluginRegistry::kSearchPathVariable = "VRAY_FOR_MAYA2022_PLUGINS";

PluginRegistry::~PluginRegistry() {
    descs.clear();
    for (auto it = libraries.rbegin(); it != libraries.rend(); ++it) dlclose(*it);
}

std::vector<std::string> PluginRegistry::directoriesFromEnvironment() {
    std::vector<std::string> directories;
    const char* value = std::getenv(kSearchPathVariable);
    std::stringstream path(value ? value : "");
    std::string directory;
    while (std::getline(path, directory, ':'))
        if (!directory.empty()) directories.push_back(directory);
    return directories;
}

std::vector<std::string> PluginRegistry::loadDirectories(
    const std::vector<std::string>& directories) {
    std::vector<std::string> problems;
    for (const std::string& directory : directories) {
        DIR* folder = opendir(directory.c_str());
        if (!folder) {
            problems.push_back("renderer plugin directory '" + directory +
                               "' cannot be read: " + std::strerror(errno));
            continue;
        }
        std::vector<std::string> files;
        while (dirent* entry = readdir(folder))
            if (endsWith(entry->d_name, ".so")) files.push_back(directory + "/" + entry->d_name);
        closedir(folder);
        std::sort(files.begin(), files.end());
        for (const std::string& file : files) {
            const std::string problem = loadLibrary(file);
            if (!problem.empty()) problems.push_back(problem);
        }
    }
    return problems;
}

std::string PluginRegistry::loadLibrary(const std::string& path) {
    dlerror();
    void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) return "renderer plugin library '" + path + "' cannot be loaded: " + dlError();
    auto version = reinterpret_cast<VRayPluginLibraryApiVersionFn>(
        dlsym(library, VRAY_PLUGIN_LIBRARY_API_VERSION_SYMBOL));
    auto listDescs = reinterpret_cast<VRayPluginLibraryDescsFn>(
        dlsym(library, VRAY_PLUGIN_LIBRARY_DESCS_SYMBOL));
    if (!version || !listDescs) {
        dlclose(library);
        return "'" + path + "' is not a renderer plugin library: it does not export " +
               VRAY_PLUGIN_LIBRARY_API_VERSION_SYMBOL + " and " + VRAY_PLUGIN_LIBRARY_DESCS_SYMBOL;
    }
    if (version() != kPluginLibraryApiVersion) {
        const int found = version();
        dlclose(library);
        return "renderer plugin library '" + path + "' is built for API version " +
               std::to_string(found) + ", this renderer needs " +
               std::to_string(kPluginLibraryApiVersion);
    }
    const PluginDesc* table = nullptr;
    const int count = listDescs(&table);
    libraries.push_back(library);
    for (int i = 0; i < count; ++i) {
        if (!getPluginDesc(table[i].typeName)) descs.push_back(const_cast<PluginDesc*>(&table[i]));
    }
    return std::string();
}

PluginDesc* PluginRegistry::getPluginDesc(const char* typeName) {
    if (!typeName) return nullptr;
    for (PluginDesc* desc : descs)
        if (std::strcmp(desc->typeName, typeName) == 0) return desc;
    return nullptr;
}

std::vector<std::string> PluginRegistry::typeNames() const {
    std::vector<std::string> names;
    for (const PluginDesc* desc : descs) names.push_back(desc->typeName);
    return names;
}

}  // namespace VUtils
