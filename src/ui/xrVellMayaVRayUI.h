#pragma once
#include <maya/MPxSurfaceShapeUI.h>

// Legacy viewport interface of xrVellMayaVRay.
class xrVellMayaVRayUI : public MPxSurfaceShapeUI {
public:
    xrVellMayaVRayUI();
    ~xrVellMayaVRayUI() override;

    static void* creator();
};
