#pragma once
#include <maya/MObject.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "Diagnostics.h"
#include "NodeCommands.h"

namespace xrvell {

// What the files of one scene share while they are read: the scene file and those it
// references, at any depth.
struct SceneState {
    // Loads the plug-in a "requires" command names; returns why it could not, or nothing.
    using PluginRequest = std::function<std::string(const std::string& name)>;

    SceneState(Diagnostics& report, PluginRequest loader)
        : diagnostics(report), requirePlugin(std::move(loader)) {}

    Diagnostics& diagnostics;
    PluginRequest requirePlugin;
    NodeTypeRules types;
    std::vector<MObject> created;  // every file's nodes, in creation order
    std::string project;           // the Maya project's root, or empty
    // Whether a reference is loaded, by its reference node, as the outermost file that says so
    // recorded it (Maya restores the loaded state the scene was saved with).
    std::map<std::string, bool> loadStates;
    std::set<std::string> loadedReferences;  // by reference node
    std::vector<std::string> reading;        // the files being read, outermost first
    std::vector<std::string> readingIds;     // the same files by their real paths
};

}  // namespace xrvell
