#include "ui/xrVellMayaVRayUI.h"

xrVellMayaVRayUI::xrVellMayaVRayUI() {}

xrVellMayaVRayUI::~xrVellMayaVRayUI() {}

void* xrVellMayaVRayUI::creator() { return new xrVellMayaVRayUI(); }
