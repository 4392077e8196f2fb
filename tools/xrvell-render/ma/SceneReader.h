#pragma once
#include <maya/MObject.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "AttributeCommands.h"
#include "ConnectionCommands.h"
#include "Diagnostics.h"
#include "MaTokenizer.h"
#include "NodeCommands.h"
#include "ReadContext.h"

namespace xrvell {

// Builds the stand-in host's scene from a Maya ASCII file as Maya does when it opens one, in
// layers: MaTokenizer splits the text into statements, this class hands each command to the
// commands it belongs with (NodeCommands, AttributeCommands, ConnectionCommands), and they
// apply it to the host. Each error is reported and the reading goes on, as in Maya; what Maya
// carries on after without an error gives a warning. Everything Maya writes that the host does not
// model is kept the way Maya keeps what it does not know (unknown nodes, attributes kept as
// written), never an error.
class SceneReader {
public:
    // Loads the plug-in a "requires" command names; returns why it could not, or nothing.
    using PluginRequest = std::function<std::string(const std::string& name)>;

    SceneReader(Diagnostics& diagnostics, PluginRequest requirePlugin);

    // False when the file has an error; the scene then holds everything but the failed commands.
    bool read(std::string_view text);
    // The nodes the file created, in creation order.
    const std::vector<MObject>& createdNodes() const { return context.createdList(); }

private:
    bool apply(const MaStatement& statement);
    bool requiresCommand(const MaStatement& statement);
    bool currentUnitCommand(const MaStatement& statement);
    bool skipCommand(const MaStatement& statement);

    Diagnostics& diagnostics;
    PluginRequest requirePlugin;
    ReadContext context;
    NodeCommands nodes;
    AttributeCommands attributes;
    ConnectionCommands connections;
};

}  // namespace xrvell
