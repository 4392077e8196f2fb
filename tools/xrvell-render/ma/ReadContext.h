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
    // `file` names the file in messages; the nodes of a referenced file are in `nameSpace`
    // ("" for the scene itself, "char", "char:hair" below it).
    ReadContext(Diagnostics& diagnostics, std::vector<MObject>& created, std::string file = "",
                std::string nameSpace = "");

    const std::string& file() const { return fileName; }
    const std::string& nameSpace() const { return space; }
    // A node name or DAG path as the file wrote it, as the scene knows it: each name in the
    // file's namespace, except those written from the root (":time1").
    std::string sceneName(const std::string& written) const;

    // While set, what would be an error is a warning of this kind: a reference edit that no
    // longer applies is reported and skipped, as Maya does.
    void failAsWarning(const std::string& kind) { failureKind = kind; }

    // Reports an error at the current line of the file; false, so a command can return it.
    bool fail(const std::string& text);
    void warn(const std::string& text, const std::string& kind = "");
    void note(const std::string& text);

    // The node a name or DAG path names, as Maya finds it. A name in the root namespace
    // (":defaultRenderGlobals") that no node has is one of Maya's own default nodes, which
    // every scene has and the host does not make: it is kept as an unknown node. Otherwise a
    // name that matches no node is an error that says `missing` and then the name; one that
    // matches several gives Maya's message.
    bool findNode(const std::string& written, const std::string& missing, MObject* node);
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

    int line = 0;

private:
    Diagnostics& diagnostics;
    MObject selectedNode;
    std::string selectedText;  // as the scene named it
    std::string unselectedBy;
    std::vector<MObject>& createdNodes;
    std::string fileName;
    std::string space;
    std::string failureKind;
};

// `text` in double quotes, as messages quote what a scene wrote.
std::string quoted(const std::string& text);
// The host's messages name the call they come from; the reader's name the command.
std::string withoutPrefix(const std::string& text, const std::string& prefix);

}  // namespace xrvell
