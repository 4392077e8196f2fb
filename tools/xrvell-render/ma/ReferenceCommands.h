#pragma once
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "MaTokenizer.h"
#include "ReadContext.h"
#include "ReferenceEdits.h"
#include "SceneState.h"

namespace xrvell {

// The file references of one file, as Maya writes them: "file -rdi" lines record whether each
// reference (and those below it) was loaded when the scene was saved; "file -r" lines create
// them, deferred (-dr 1) until the whole file is read, as Maya does when it opens a scene; each
// reference node's "dataReferenceEdits" value holds the changes the file made to the
// referenced nodes; and connections to a reference node's placeholders (".phl[N]") stand for
// connections to referenced plugs, which those edits name.
class ReferenceCommands {
public:
    // Runs a command as if the file held it; reads a referenced file into a namespace.
    using Run = std::function<bool(const MaStatement&)>;
    using Load = std::function<bool(const std::string& path, std::string_view text,
                                    const std::string& nameSpace)>;

    ReferenceCommands(ReadContext& context, SceneState& scene, Run run, Load load);

    bool file(const MaStatement& statement);
    // setAttr ".ed" -type "dataReferenceEdits" on a reference node.
    bool isEditData(const MaStatement& statement) const;
    bool editData(const MaStatement& statement);
    // connectAttr with an end on a placeholder of one of the file's reference nodes.
    bool isPlaceholderConnection(const MaStatement& statement) const;
    bool placeholderConnection(const MaStatement& statement);

    // At the end of the file: loads the deferred references, then applies the edits and the
    // placeholder connections.
    bool finish();

private:
    struct Reference {
        std::string node;  // the reference node, as the scene names it
        std::string nameSpace;
        std::string written;  // the path as the file wrote it
        std::string type;     // -typ
        int line = 0;
        bool pending = false;  // to be loaded at the end of the file
    };
    struct NodeEdits {
        std::string node;
        int line = 0;
        std::vector<ReferenceEdit> edits;
    };
    struct Link {
        MaStatement statement;
    };

    bool reference(const class MaArguments& args);
    void recordLoadState(const class MaArguments& args);
    bool load(Reference& reference);
    bool readable(const Reference& reference, std::string* path, std::string* text);
    bool readWithoutCycle(const Reference& reference, const std::string& path,
                          std::string_view text);
    bool isReferenceNode(const std::string& sceneName) const;
    void applyEdits(const NodeEdits& node);
    void applyEdit(const ReferenceEdit& edit, int line);
    void mapPlaceholder(const ReferenceEdit& edit);
    void connectLink(const Link& link);
    bool placeholderOf(const std::string& plug, std::string* key) const;
    bool runAsEdit(int line, std::vector<std::string> words, const std::string& arguments,
                   const std::string& last = "");

    ReadContext& context;
    SceneState& scene;
    Run run;
    Load loadFile;
    std::vector<Reference> list;
    std::vector<NodeEdits> edits;
    std::vector<Link> links;
    std::map<std::string, std::string> placeholders;  // "node[N]" -> the plug it stands for
};

}  // namespace xrvell
