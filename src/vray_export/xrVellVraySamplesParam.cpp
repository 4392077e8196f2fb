#include "vray_export/xrVellVraySamplesParam.h"

#include <algorithm>

#include "node/VellFurNode.h"
#include "node/xrVellMayaVRay.h"
#include "vray_export/FrameNumber.h"

namespace {

// The renderer clears with a time beyond this when a render ends.
const double kEndOfRenderTime = 1.0e29;

}  // namespace

xrVellVraySamplesParam::xrVellVraySamplesParam()
    : VUtils::DefFloatListParam("sampleGenerator"), owner(nullptr) {}

xrVellVraySamplesParam::~xrVellVraySamplesParam() {}

PluginInterface* xrVellVraySamplesParam::newInterface(unsigned long interfaceID) {
    if (interfaceID == EXT_ANIMATEDPARAM)
        return static_cast<VUtils::AnimatedParameterInterface*>(this);
    return VUtils::DefFloatListParam::newInterface(interfaceID);
}

VUtils::PtrArray<float> xrVellVraySamplesParam::getFloatList(double) {
    VUtils::PtrArray<float> view;
    view.ptr = samples.empty() ? nullptr : samples.data();
    view.refCounter = nullptr;
    view.length = static_cast<int>(samples.size());
    view.type = VUtils::PtrArray<float>::ownerTypeNone;
    return view;
}

void xrVellVraySamplesParam::createKeyFrame(double time, int index) {
    if (index != 0) return;
    // The fur node takes the scene's current time, not the keyframe's.
    if (owner) owner->updateSample();
    samples.push_back(sampleOf(time));
}

void xrVellVraySamplesParam::clearKeyFrames(double time, int) {
    dropSamplesBefore(time);
    if (owner) {
        if (VellFurNode* fur = owner->getConnectedVellNode()) fur->removeRenderSamplesBefore(time);
        if (time > kEndOfRenderTime) {
            owner->remove();
            samples.clear();
        }
    } else if (time > kEndOfRenderTime) {
        samples.clear();
    }
}

// One pass; a NaN time compares false and removes nothing.
void xrVellVraySamplesParam::dropSamplesBefore(double time) {
    samples.erase(
        std::remove_if(samples.begin(), samples.end(),
                       [time](float sample) { return static_cast<double>(sample) < time; }),
        samples.end());
}
