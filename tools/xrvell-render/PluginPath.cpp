#include "PluginPath.h"

#include <mayahost/Host.h>
#include <xrvellfur/FurCalls.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <sstream>
#include <utility>

namespace xrvell {

PluginPath::PluginPath(std::vector<std::string> directories) : searched(std::move(directories)) {}

std::vector<std::string> PluginPath::split(const std::string& list) {
    std::vector<std::string> directories;
    std::stringstream stream(list);
    std::string directory;
    while (std::getline(stream, directory, ':'))
        if (!directory.empty()) directories.push_back(directory);
    return directories;
}

std::string PluginPath::searchedText() const {
    if (searched.empty()) return "the plug-in path is empty";
    std::string text = "searched ";
    for (size_t i = 0; i < searched.size(); ++i) text += (i ? ", " : "") + searched[i];
    return text;
}

std::string PluginPath::require(const std::string& name) {
    // A scene names a plug-in, never a file elsewhere.
    if (name.empty() || name.find('/') != std::string::npos)
        return "requires: invalid plug-in name \"" + name + "\"";
    const std::string file =
        name.size() > 3 && name.compare(name.size() - 3, 3, ".so") == 0 ? name : name + ".so";
    for (const std::string& directory : searched) {
        const std::string path = directory + "/" + file;
        if (access(path.c_str(), F_OK) != 0) continue;
        // "xrVellMaya", "xrVellMaya.so" and a link to it all name one plug-in: loaded once.
        const std::string identity = resolved(path);
        if (loaded.count(identity)) return "";
        const mayahost::PluginLoad load = mayahost::loadPlugin(path);
        if (!load) return "plug-in \"" + name + "\" (" + path + ") failed to load: " + load.error;
        loaded.insert(identity);
        files.push_back(path);
        // The fur stand-in logs every call for tests; nothing reads that log here, and it would
        // grow with every node and sample of the render. Other plug-ins have no such switch.
        xrvellfur::setFurCallRecording(path, false);
        return "";
    }
    return "required plug-in \"" + name + "\" not found; " + searchedText();
}

std::string PluginPath::resolved(const std::string& path) {
    char* real = realpath(path.c_str(), nullptr);
    if (!real) return path;
    const std::string result = real;
    std::free(real);
    return result;
}

}  // namespace xrvell
