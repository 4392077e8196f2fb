#include "ui/xrVellMayaVRayUI.h"

#include <maya/MBoundingBox.h>
#include <maya/MDagPath.h>
#include <maya/MMaterial.h>
#include <maya/MMatrix.h>
#include <maya/MPoint.h>
#include <maya/MPxSurfaceShape.h>
#include <maya/MSelectionMask.h>

#include <iostream>

namespace {

bool wantsOverlay(M3dView::DisplayStatus status) {
    return status == M3dView::kActive || status == M3dView::kHilite || status == M3dView::kLead;
}

}  // namespace

xrVellMayaVRayUI::xrVellMayaVRayUI() {}

xrVellMayaVRayUI::~xrVellMayaVRayUI() {}

void* xrVellMayaVRayUI::creator() { return new xrVellMayaVRayUI(); }

void xrVellMayaVRayUI::getDrawRequests(const MDrawInfo& info, bool, MDrawRequestQueue& queue) {
    MDrawData data;
    MDrawRequest request = info.getPrototype(*this);
    // The node has no geometry of its own: the draw data carries the node itself.
    getDrawData(surfaceShape(), data);
    request.setDrawData(data);

    if (!info.objectDisplayStatus(M3dView::kDisplayMeshes)) return;

    switch (info.displayStyle()) {
        case M3dView::kWireFrame:
            getDrawRequestsWireframe(request, info);
            queue.add(request);
            break;
        case M3dView::kGouraudShaded:
            request.setToken(kDrawTokenSmoothShaded);
            getDrawRequestsShaded(request, info, queue, data);
            queue.add(request);
            break;
        case M3dView::kFlatShaded:
            request.setToken(kDrawTokenFlatShaded);
            getDrawRequestsShaded(request, info, queue, data);
            queue.add(request);
            break;
        default:
            break;
    }
}

void xrVellMayaVRayUI::getDrawRequestsWireframe(MDrawRequest& request, const MDrawInfo& info) {
    request.setToken(kDrawTokenWireframe);
    switch (info.displayStatus()) {
        case M3dView::kActive:
            request.setColor(15, M3dView::kActiveColors);
            break;
        case M3dView::kDormant:
            // Table 2 by value: the contract, whatever the enumerator is called in a release.
            request.setColor(4, static_cast<M3dView::ColorTable>(2));
            break;
        case M3dView::kHilite:
            request.setColor(17, M3dView::kActiveColors);
            break;
        case M3dView::kLead:
            request.setColor(18, M3dView::kActiveColors);
            break;
        case M3dView::kActiveAffected:
            request.setColor(8, M3dView::kActiveColors);
            break;
        default:
            break;  // the prototype's colour stays
    }
}

void xrVellMayaVRayUI::getDrawRequestsShaded(MDrawRequest& request, const MDrawInfo& info,
                                             MDrawRequestQueue& queue, MDrawData& data) {
    MDagPath path = info.multiPath();
    M3dView view = info.view();
    MMaterial material = MPxSurfaceShapeUI::material(path);
    const M3dView::DisplayStatus status = info.displayStatus();

    // Not fatal: the request is still queued with the material as it is.
    if (material.evaluateMaterial(view, path) != MStatus::kSuccess)
        std::cerr << "Couldn't evaluate\n";
    if (material.materialIsTextured()) material.evaluateTexture(data);
    request.setMaterial(material);

    bool transparent = false;
    material.getHasTransparency(transparent);
    if (transparent) request.setIsTransparent(true);

    if (!wantsOverlay(status)) return;
    MDrawRequest overlay = info.getPrototype(*this);
    overlay.setDrawData(data);
    getDrawRequestsWireframe(overlay, info);
    overlay.setToken(kDrawTokenWireframeOnShaded);
    overlay.setDisplayStyle(M3dView::kWireFrame);
    queue.add(overlay);
}

void xrVellMayaVRayUI::draw(const MDrawRequest&, M3dView&) const {}

// No hit test: whenever the viewport offers the node, it is selected.
bool xrVellMayaVRayUI::select(MSelectInfo& selectInfo, MSelectionList& selectionList,
                              MPointArray& worldSpaceSelectPts) const {
    MPxSurfaceShape* shape = surfaceShape();
    MSelectionMask priorityMask(MSelectionMask::kSelectNurbsSurfaces);
    MSelectionList item;
    item.add(selectInfo.selectPath(), MObject::kNullObj, false);

    MPoint point(0.0, 0.0, 0.0, 1.0);
    if (selectInfo.singleSelection()) {
        point = shape->boundingBox().center();
        point *= selectInfo.selectPath().inclusiveMatrix();
    }
    selectInfo.addSelection(item, point, selectionList, worldSpaceSelectPts, priorityMask, false);
    return true;
}
