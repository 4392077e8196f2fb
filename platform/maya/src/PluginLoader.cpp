#include <dlfcn.h>

#include <algorithm>

#include "HostState.h"

namespace mayahost {
namespace detail {
namespace {

// The entry points as Maya 2022's headers declare them, by their C++ mangled names.
const char* const kInitializeSymbol =
    "_Z16initializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE";
const char* const kUninitializeSymbol =
    "_Z18uninitializePluginN8Autodesk4Maya16OpenMaya202200007MObjectE";

PluginObj* findPlugin(const std::string& path) {
    for (PluginObj* plugin : state().plugins)
        if (plugin->path == path) return plugin;
    return nullptr;
}

std::string lastDlError() {
    const char* text = dlerror();
    return text ? text : "unknown error";
}

void destroyNodesOf(PluginObj* plugin) {
    destroyNodesWhere([plugin](const NodeObj& node) { return node.type->plugin == plugin; });
}

// Whatever a plug-in left registered goes with it.
void dropRegistrations(PluginObj* plugin) {
    HostState& host = state();
    destroyNodesOf(plugin);
    std::vector<NodeType*> owned;
    for (auto& type : host.nodeTypes)
        if (type->plugin == plugin) owned.push_back(type.get());
    for (NodeType* type : owned) removeType(type);
    auto& data = host.dataTypes;
    data.erase(std::remove_if(data.begin(), data.end(),
                              [plugin](const DataType& d) { return d.plugin == plugin; }),
               data.end());
}

void closePlugin(PluginObj* plugin) {
    HostState& host = state();
    dropRegistrations(plugin);
    host.plugins.erase(std::remove(host.plugins.begin(), host.plugins.end(), plugin),
                       host.plugins.end());
    void* library = plugin->library;
    plugin->library = nullptr;
    release(plugin);
    if (library) dlclose(library);
}

bool inUse(PluginObj* plugin) {
    for (NodeObj* node : state().nodes)
        if (node->type->plugin == plugin) return true;
    return false;
}

// Registers the plug-in and runs its initializePlugin; a failed start leaves nothing behind.
PluginLoad startPlugin(const std::string& path, void* library, const char* version,
                       EntryPoint initialize, EntryPoint uninitialize) {
    PluginLoad result;
    auto* plugin = new PluginObj;
    retain(plugin);
    plugin->path = path;
    plugin->library = library;
    plugin->initialize = initialize;
    plugin->uninitialize = uninitialize;
    plugin->apiVersion = version;
    state().plugins.push_back(plugin);
    result.apiVersion = version;
    result.status = initialize(Access::handle(plugin));
    if (result.status != MStatus::kSuccess) {
        result.error = "initializePlugin of '" + path + "' failed";
        closePlugin(plugin);
    }
    return result;
}

}  // namespace

void unloadAllPlugins() {
    while (!state().plugins.empty()) {
        PluginObj* plugin = state().plugins.back();
        destroyNodesOf(plugin);
        plugin->uninitialize(Access::handle(plugin));
        closePlugin(plugin);
    }
}

}  // namespace detail

using namespace detail;

PluginLoad loadPlugin(const std::string& path) {
    PluginLoad result;
    if (findPlugin(path)) {
        result.error = "plug-in '" + path + "' is already loaded";
        return result;
    }
    dlerror();
    void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) {
        result.error = "cannot load plug-in '" + path + "': " + lastDlError();
        return result;
    }
    const char* version = static_cast<const char*>(dlsym(library, "MApiVersion"));
    auto initialize = reinterpret_cast<EntryPoint>(dlsym(library, kInitializeSymbol));
    auto uninitialize = reinterpret_cast<EntryPoint>(dlsym(library, kUninitializeSymbol));
    if (!version || !initialize || !uninitialize) {
        result.error = "'" + path + "' is not a Maya 2022 plug-in: it does not export " +
                       (!version      ? "MApiVersion"
                        : !initialize ? "initializePlugin(MObject)"
                                      : "uninitializePlugin(MObject)");
        dlclose(library);
        return result;
    }
    return startPlugin(path, library, version, initialize, uninitialize);
}

PluginLoad loadLinkedPlugin(const std::string& name, PluginEntryPoint initialize,
                            PluginEntryPoint uninitialize, const char* apiVersion) {
    PluginLoad result;
    if (findPlugin(name)) {
        result.error = "plug-in '" + name + "' is already loaded";
        return result;
    }
    if (!initialize || !uninitialize || !apiVersion) {
        result.error = "plug-in '" + name + "' lacks an entry point or its API version";
        return result;
    }
    return startPlugin(name, nullptr, apiVersion, initialize, uninitialize);
}

MStatus unloadPlugin(const std::string& path, std::string* error) {
    PluginObj* plugin = findPlugin(path);
    if (!plugin) {
        if (error) *error = "plug-in '" + path + "' is not loaded";
        return MStatus::kInvalidParameter;
    }
    if (inUse(plugin)) {
        if (error) *error = "plug-in '" + path + "' is in use: nodes of its types exist";
        return MStatus::kFailure;
    }
    const MStatus status = plugin->uninitialize(Access::handle(plugin));
    if (status != MStatus::kSuccess) {
        if (error) *error = "uninitializePlugin of '" + path + "' failed; it stays loaded";
        return status;
    }
    closePlugin(plugin);
    return status;
}

std::vector<std::string> loadedPlugins() {
    std::vector<std::string> paths;
    for (PluginObj* plugin : state().plugins) paths.push_back(plugin->path);
    return paths;
}

PluginIdentity pluginIdentity(const std::string& path) {
    PluginObj* plugin = findPlugin(path);
    if (!plugin) return PluginIdentity();
    return PluginIdentity{plugin->vendor, plugin->version, plugin->requiredApiVersion};
}

}  // namespace mayahost
