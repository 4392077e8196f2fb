#pragma once
#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "params/DefStringParam.h"
#include "params/DefVectorParam.h"
#include "vray_export/xrVellVrayFileParam.h"
#include "vray_export/xrVellVraySamplesParam.h"

class xrVellMayaVRay;

namespace VUtils {
class VRayGeomInfo;
class VRayPluginInterface;
}  // namespace VUtils

// The parameters a node hands to its xrVellVRay plugin instance. They live inside the node, at
// stable addresses, for the node's whole life: the renderer keeps referring to them.
class RendererParameterSet {
public:
    RendererParameterSet();

    // The two animated parameters reach the fur node through their node.
    void setOwner(xrVellMayaVRay* node);
    // Makes sure "xrVellVRay" exists, obtains the instance for this geometry and, when it is new,
    // attaches every parameter to it.
    void createPlugin(VUtils::VRayGeomInfo* geomInfo);

    // Declaration order is construction order; the renderer's attach order differs (attachTo).
    xrVellVraySamplesParam sampleGenerator;
    VUtils::DefFloatParam density;
    VUtils::DefFloatParam length;
    VUtils::DefFloatParam width;
    VUtils::DefIntParam verbosity;
    VUtils::DefStringParam imageSearchPath;
    VUtils::DefIntParam dynamicHairTesselation;
    VUtils::DefFloatParam segmentLength;
    xrVellVrayFileParam file;
    VUtils::DefIntParam obeyROI;
    VUtils::DefVectorParam minROI;
    VUtils::DefVectorParam maxROI;

private:
    void attachTo(VUtils::VRayPluginInterface& plugin);
};
