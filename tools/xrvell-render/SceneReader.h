#pragma once
#include <maya/MObject.h>

#include <functional>
#include <memory_resource>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "AttributeWriter.h"
#include "Diagnostics.h"
#include "MaArguments.h"
#include "MaTokenizer.h"

namespace xrvell {

// Builds the stand-in host's scene from a Maya ASCII file, command by command, as Maya does
// when it opens one. The first error stops the reading; what Maya would carry on after, and
// what the host does not model, gives a warning instead.
class SceneReader {
public:
    // Loads the plug-in a "requires" command names; returns why it could not, or nothing.
    using PluginRequest = std::function<std::string(const std::string& name)>;

    SceneReader(Diagnostics& diagnostics, PluginRequest requirePlugin);

    // False when the file has an error; the scene then holds what came before it.
    bool read(std::string_view text);
    // The nodes the file created, in creation order.
    const std::vector<MObject>& createdNodes() const { return created; }

private:
    struct SceneNode {
        MObject object;
        std::string type;
        bool builtIn = false;  // one of the host's own types, which model Maya's only in part
        bool dag = false;
        bool shape = false;
    };
    struct PlugPath {
        std::string node;
        std::string attribute;
        bool rooted = false;  // written with the root namespace, as Maya names default nodes
    };

    bool apply(const MaStatement& statement);
    bool requiresCommand(const MaStatement& statement);
    bool currentUnitCommand(const MaStatement& statement);
    bool createNodeCommand(const MaStatement& statement);
    bool createInHost(const std::string& type, const std::string& name, const MaArguments& args);
    bool selectCommand(const MaStatement& statement);
    bool setAttrCommand(const MaStatement& statement);
    std::vector<MPlug> childrenOf(const SceneNode& node, const std::string& attribute);
    bool setCompound(const SceneNode& node, const PlugPath& path,
                     const std::vector<MPlug>& children, const SetAttrValue& value);
    bool connectAttrCommand(const MaStatement& statement);
    bool addAttrCommand(const MaStatement& statement);
    bool skipCommand(const MaStatement& statement);

    bool splitPlug(const std::string& text, PlugPath* path);
    const SceneNode* findNode(const std::string& name);
    SceneNode describe(MObject object, const std::string& type);
    bool missingDefaultNode(const PlugPath& path);
    bool isSkipped(const std::string& node) const { return skippedNodes.count(node) > 0; }
    void skipNode(const std::string& node) { skippedNodes.insert(node); }
    void select(const std::string& node);
    void skipUnmodelled(const std::string& name, const std::string& type);
    bool missingAttribute(const SceneNode& node, const PlugPath& path, bool valueGiven,
                          const std::string& context = "");
    bool fail(const std::string& text);
    void warnOnce(std::set<std::string>& said, const std::string& key, const std::string& text);

    Diagnostics& diagnostics;
    PluginRequest requirePlugin;
    int line = 0;
    // The table entries kept per node live in large blocks, given back whole when the reading is
    // done: freed one by one, tens of thousands of them would leave small holes all through the
    // scene's memory, and the render's own data would then be scattered into those holes.
    std::pmr::monotonic_buffer_resource perNode;
    std::pmr::unordered_map<std::string, SceneNode> nodes{&perNode};  // by the names the file uses
    std::pmr::unordered_set<std::string> skippedNodes{&perNode};
    std::unordered_set<std::string> rendererTypes;  // node types of the renderer's own plug-in
    // (node, attribute) of each attribute the file adds
    std::pmr::set<std::pair<std::string, std::string>> addedAttributes{&perNode};
    std::string current;                     // the selected node
    const SceneNode* currentNode = nullptr;  // its entry in `nodes` once looked up
    // Per node type: whether it is one of the host's own, and whether it is a shape.
    std::unordered_map<std::string, std::pair<bool, bool>> typeTraits;
    std::vector<MObject> created;
    std::set<std::string> warnedCommands, warnedTypes, warnedAttributes, warnedNodes;
};

}  // namespace xrvell
