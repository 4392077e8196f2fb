#include "SceneChecks.h"

#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MString.h>
#include <mayahost/Host.h>
#include <mayahost/Renderer.h>

#include <vector>

#include "ReadContext.h"

namespace xrvell {
namespace {

const char* const kBridgeType = "xrVellMayaVRay";
const char* const kFurType = "xrVellMaya";

std::string typeOf(const MObject& node) { return mayahost::realTypeName(node); }

}  // namespace

SceneChecks::SceneChecks(Diagnostics& report) : diagnostics(report) {}

void SceneChecks::run() {
    std::vector<MObject> bridges;
    for (const MObject& node : mayahost::nodes())
        if (typeOf(node) == kBridgeType) bridges.push_back(node);
    if (bridges.empty())
        diagnostics.warning(0, std::string("the scene has no ") + kBridgeType +
                                   " node: there is nothing to render");
    for (const MObject& bridge : bridges) checkInput(bridge);
}

void SceneChecks::checkInput(const MObject& bridge) {
    bool isFur = false;
    const std::string feeder = feederOf(bridge, &isFur);
    if (isFur) return;
    const std::string fedBy =
        feeder.empty() ? "nothing feeds its inputData"
                       : "its inputData is fed by " + feeder + ", not by an " + kFurType + " node";
    diagnostics.warning(0,
                        "bridge " + quoted(mayahost::uniquePathName(bridge)) + ": " + fedBy +
                            "; the renderer would receive the defaults",
                        "bridge without fur");
}

// A connection the host makes, or one it keeps without a model when the source is a node it
// does not model.
std::string SceneChecks::feederOf(const MObject& bridge, bool* isFur) {
    MPlugArray sources;
    mayahost::findPlug(bridge, "inputData").connectedTo(sources, true, false);
    if (sources.length() > 0) {
        const MObject source = sources[0].node();
        *isFur = typeOf(source) == kFurType;
        return quoted(mayahost::uniquePathName(source) + "." +
                      sources[0].partialName(false, false, false, false, false, true).asChar()) +
               " (" + typeOf(source) + ")";
    }
    const std::string path = mayahost::uniquePathName(bridge);
    for (const mayahost::KeptConnection& kept : mayahost::keptConnections(bridge)) {
        if (kept.destination != path + ".vid" && kept.destination != path + ".inputData") continue;
        const MObject source = mayahost::findNode(kept.source.substr(0, kept.source.find('.')));
        return quoted(kept.source) + (source.isNull() ? "" : " (" + typeOf(source) + ")");
    }
    return "";
}

}  // namespace xrvell
