#pragma once
#include <maya/MObject.h>

#include <string>
#include <vector>

#include "Diagnostics.h"

namespace xrvell {

// "node.attribute" as a scene writes it: the node by name or DAG path, and the attribute.
struct PlugText {
    std::string node;
    std::string attribute;
};

// What the commands of one scene file share while it is read: where the reading is, how to
// report, which node is selected, and how the scene's names reach the host's nodes.
class ReadContext {
public:
    explicit ReadContext(Diagnostics& diagnostics);

    // Reports an error at the current line; false, so a command can return it.
    bool fail(const std::string& text);
    void warn(const std::string& text, const std::string& kind = "");
    void note(const std::string& text);

    // The node a name or DAG path names, as Maya finds it. A name in the root namespace
    // (":defaultRenderGlobals") that no node has is one of Maya's own default nodes, which
    // every scene has and the host does not make: it is kept as an unknown node. Otherwise a
    // name that matches no node is an error that says `missing` and then the name; one that
    // matches several gives Maya's message.
    bool findNode(const std::string& name, const std::string& missing, MObject* node);
    // Splits "node.attribute"; an error when there is no attribute.
    bool splitPlug(const std::string& text, PlugText* plug);

    void select(const MObject& node, const std::string& name);
    const MObject& selected() const { return selectedNode; }
    const std::string& selectedName() const { return selectedText; }
    // After a createNode or select that failed, nothing is selected: the lines that follow were
    // meant for the node it failed to make or find, not the one before. `why` names the command.
    void unselect(const std::string& why);
    // Reports that `what` ("setAttr ".rd"") has no node selected, and why when a failed command
    // left none: the lines meant for one failed node are one error line with a count.
    bool failUnselected(const std::string& what);

    void created(const MObject& node) { createdNodes.push_back(node); }
    const std::vector<MObject>& createdList() const { return createdNodes; }

    int line = 0;

private:
    Diagnostics& diagnostics;
    MObject selectedNode;
    std::string selectedText;  // as the scene named it
    std::string unselectedBy;
    std::vector<MObject> createdNodes;
};

// `text` in double quotes, as messages quote what a scene wrote.
std::string quoted(const std::string& text);
// The host's messages name the call they come from; the reader's name the command.
std::string withoutPrefix(const std::string& text, const std::string& prefix);

}  // namespace xrvell
