#pragma once
// Host-side state behind the legacy viewport's value classes.
#include <maya/MDagPath.h>
#include <maya/MDrawData.h>
#include <maya/MDrawRequest.h>
#include <maya/MMaterial.h>
#include <mayahost/Host.h>

#include <deque>
#include <vector>

#include "Object.h"

namespace mayahost {
namespace detail {

struct DrawDataObj : Object {
    const void* geometry = nullptr;
    bool textureEvaluated = false;  // set by MMaterial::evaluateTexture
};

struct DrawRequestState {
    M3dView view;
    MDagPath path;
    MDrawData data;
    MMaterial material;
    M3dView::DisplayStatus status = M3dView::kNoStatus;
    M3dView::DisplayStyle style = M3dView::kBoundingBox;
    int colorIndex = 0;
    int colorTable = -1;  // until a colour is set
    bool transparent = false;
    int token = 0;
};

struct DrawQueue {
    std::deque<MDrawRequest> requests;
};

struct SelectionItem {
    MDagPath path;
    MObject component;
};

struct SelectionItems {
    std::vector<SelectionItem> items;
};

// What MSelectInfo::addSelection was handed, kept for the host's caller.
struct SelectionRecord : Object {
    std::vector<SelectionCall> calls;
};

}  // namespace detail
}  // namespace mayahost
