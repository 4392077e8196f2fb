#pragma once
#include <maya/M3dView.h>
#include <maya/MDrawData.h>
#include <maya/MDrawInfo.h>
#include <maya/MDrawRequest.h>
#include <maya/MDrawRequestQueue.h>
#include <maya/MPointArray.h>
#include <maya/MPxSurfaceShapeUI.h>
#include <maya/MSelectInfo.h>
#include <maya/MSelectionList.h>

// Legacy viewport interface of xrVellMayaVRay. It queues wireframe and shaded requests but
// draws nothing (the fur appears only at render time), and it always accepts selection.
class xrVellMayaVRayUI : public MPxSurfaceShapeUI {
public:
    enum DrawToken {
        kDrawTokenWireframe = 0,
        kDrawTokenWireframeOnShaded = 1,
        kDrawTokenSmoothShaded = 2,
        kDrawTokenFlatShaded = 3
    };

    xrVellMayaVRayUI();
    ~xrVellMayaVRayUI() override;

    void getDrawRequests(const MDrawInfo& info, bool objectAndActiveOnly,
                         MDrawRequestQueue& queue) override;
    void draw(const MDrawRequest& request, M3dView& view) const override;
    bool select(MSelectInfo& selectInfo, MSelectionList& selectionList,
                MPointArray& worldSpaceSelectPts) const override;

    void getDrawRequestsWireframe(MDrawRequest& request, const MDrawInfo& info);
    void getDrawRequestsShaded(MDrawRequest& request, const MDrawInfo& info,
                               MDrawRequestQueue& queue, MDrawData& data);

    static void* creator();
};
