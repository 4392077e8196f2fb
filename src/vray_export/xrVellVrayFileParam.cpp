#include "vray_export/xrVellVrayFileParam.h"

#include <string>

#include "node/VellFurNode.h"
#include "node/xrVellMayaVRay.h"
#include "vray_export/FrameNumber.h"

xrVellVrayFileParam::xrVellVrayFileParam()
    : VUtils::DefStringParam("file"), owner(nullptr), keyframeTime(0.0) {}

xrVellVrayFileParam::~xrVellVrayFileParam() {}

PluginInterface* xrVellVrayFileParam::newInterface(unsigned long interfaceID) {
    if (interfaceID == EXT_ANIMATEDPARAM)
        return static_cast<VUtils::AnimatedParameterInterface*>(this);
    return VUtils::DefStringParam::newInterface(interfaceID);
}

const char* xrVellVrayFileParam::getString(int, double time) {
    std::string fileName;
    VellFurNode* fur = owner ? owner->getConnectedVellNode() : nullptr;
    // The frame is the last keyframe's, whatever time the renderer reads at.
    if (fur) fileName = fur->getCacheFileName(frameNumberOf(keyframeTime), 1);
    setString(fileName.c_str(), -1, time);
    return VUtils::DefStringParam::getString(0, time);
}

void xrVellVrayFileParam::createKeyFrame(double time, int index) {
    if (index == 0) keyframeTime = time;
}

void xrVellVrayFileParam::clearKeyFrames(double, int) {}

int xrVellVrayFileParam::numKeyframesPerFrame() { return 1; }
