#pragma once
#include <string>
#include <string_view>

#include "AttributeCommands.h"
#include "ConnectionCommands.h"
#include "MaTokenizer.h"
#include "NodeCommands.h"
#include "ReadContext.h"
#include "ReferenceCommands.h"
#include "SceneState.h"

namespace xrvell {

// Reads one file of a scene, the scene itself or one it references: hands each command to the
// commands it belongs with, then loads the files the file references and applies the edits
// the file made to their nodes.
class FileReader {
public:
    // `file` names the file in messages; its nodes go into `nameSpace`.
    FileReader(SceneState& scene, const std::string& file, const std::string& nameSpace);

    // Until a requires line loads them, the fur product's and the bridge's node types cannot
    // be kept as unknown nodes: without them there is nothing to render.
    static void refuseProductTypes(NodeTypeRules& rules);

    // False when the file, or one it references, has an error.
    bool read(std::string_view text);

private:
    bool apply(const MaStatement& statement);
    bool dispatch(const MaStatement& statement);
    bool sharedNodeSelected(const MaStatement& statement);
    bool requiresCommand(const MaStatement& statement);
    bool currentUnitCommand(const MaStatement& statement);
    bool skipCommand(const MaStatement& statement);

    SceneState& scene;
    ReadContext context;
    NodeCommands nodes;
    AttributeCommands attributes;
    ConnectionCommands connections;
    ReferenceCommands references;
    bool sharedSelected = false;  // a referenced file selected one of the scene's shared nodes
};

}  // namespace xrvell
