#pragma once
#include <maya/MObject.h>

#include <string>
#include <string_view>
#include <vector>

#include "Diagnostics.h"
#include "SceneState.h"

namespace xrvell {

// Builds the stand-in host's scene from a Maya ASCII file as Maya does when it opens one, with
// the files it references. Each file is read by a FileReader, in layers: MaTokenizer splits the
// text into statements, and the commands they belong with apply them to the host. Each error is
// reported and the reading goes on, as in Maya; what Maya carries on after without an error gives
// a warning. Everything Maya
// writes that the host does not model is kept the way Maya keeps what it does not know (unknown
// nodes, attributes kept as written), never an error.
class SceneReader {
public:
    using PluginRequest = SceneState::PluginRequest;

    // The scene's path is the file the diagnostics name: references are found from it.
    SceneReader(Diagnostics& diagnostics, PluginRequest requirePlugin);

    // The Maya project references are looked for in; by default the nearest folder above the
    // scene holding workspace.mel.
    void setProject(const std::string& root);

    // False when the scene has an error; the scene then holds everything but the failed commands.
    bool read(std::string_view text);
    // The nodes the files created, in creation order.
    const std::vector<MObject>& createdNodes() const { return scene.created; }

private:
    SceneState scene;
    bool projectGiven = false;
};

}  // namespace xrvell
