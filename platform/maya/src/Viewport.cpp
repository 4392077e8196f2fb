// The host side of the legacy viewport: what Maya does when it asks a shape's UI to draw or
// to be selected.
#include "Viewport.h"

#include <maya/MDrawInfo.h>
#include <maya/MDrawRequestQueue.h>
#include <maya/MPointArray.h>
#include <maya/MSelectInfo.h>
#include <maya/MSelectionList.h>

#include "Dag.h"
#include "HostState.h"

namespace mayahost {
namespace detail {

QueuedRequest Access::describe(const MDrawRequest& request) {
    const DrawRequestState& state = *request.fState;
    QueuedRequest info;
    NodeObj* node = nodeOf(state.path.node());
    info.path = node ? fullPathName(*node) : "";
    info.token = state.token;
    info.style = state.style;
    info.status = state.status;
    info.colorSet = state.colorTable >= 0;
    info.colorIndex = state.colorIndex;
    info.colorTable = state.colorTable;
    info.transparent = state.transparent;
    info.materialAssigned = state.material.fAssigned;
    info.materialEvaluated = state.material.fEvaluated;
    info.geometry = contents(state.data).geometry;
    info.textureEvaluated = contents(state.data).textureEvaluated;
    return info;
}

}  // namespace detail

using namespace detail;

namespace {

// The one view the host draws in.
const unsigned int kViewId = 1;

NodeObj* shapeWithUI(const MObject& shape, const char* caller, std::string* error) {
    NodeObj* node = nodeOf(shape);
    if (node && node->ui) return node;
    if (error) *error = std::string(caller) + ": the node has no legacy viewport UI";
    return nullptr;
}

std::vector<QueuedRequest> drain(MDrawRequestQueue& queue) {
    std::vector<QueuedRequest> requests;
    while (!queue.isEmpty()) requests.push_back(Access::describe(queue.remove()));
    return requests;
}

}  // namespace

MStatus assignMaterial(const MObject& shape, const MaterialSettings& material) {
    NodeObj* node = nodeOf(shape);
    if (!node || !node->type->isShape) return MStatus::kInvalidParameter;
    node->material = material;
    return MStatus::kSuccess;
}

std::vector<QueuedRequest> drawRequests(const MObject& shape, const DrawContext& context,
                                        std::string* error) {
    NodeObj* node = shapeWithUI(shape, "drawRequests", error);
    if (!node) return {};
    const unsigned int shown = context.meshesShown
                                   ? static_cast<unsigned int>(M3dView::kDisplayEverything)
                                   : ~static_cast<unsigned int>(M3dView::kDisplayMeshes);
    MDrawInfo info;
    Access::setUp(info, Access::dagPath(node), Access::view(kViewId), context.style, context.status,
                  shown);
    MDrawRequestQueue queue;
    node->ui->getDrawRequests(info, false, queue);
    return drain(queue);
}

Selection select(const MObject& shape, bool singleSelection, std::string* error) {
    Selection result;
    NodeObj* node = shapeWithUI(shape, "select", error);
    if (!node) return result;
    MSelectInfo info;
    Access::setUp(info, Access::dagPath(node), singleSelection);
    MSelectionList list;
    MPointArray points;
    result.selected = node->ui->select(info, list, points);
    for (const SelectionItem& item : Access::items(list).items)
        result.list.push_back(item.path.fullPathName().asChar());
    for (unsigned int i = 0; i < points.length(); ++i) result.points.push_back(points[i]);
    result.calls = Access::record(info).calls;
    return result;
}

}  // namespace mayahost
