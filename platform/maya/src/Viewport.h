#pragma once
// Host-side state behind the legacy viewport's value classes.
#include <maya/MDagPath.h>
#include <maya/MDrawRequest.h>
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
