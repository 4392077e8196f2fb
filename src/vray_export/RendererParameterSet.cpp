#include "vray_export/RendererParameterSet.h"

#include <maya/MGlobal.h>
#include <maya/MString.h>

#include "vray/VRayGeomInfo.h"

namespace {

const char* const kFurPluginType = "xrVellVRay";

}  // namespace

RendererParameterSet::RendererParameterSet()
    : density("density", 1.0f),
      length("length", 1.0f),
      width("width", 1.0f),
      verbosity("verbosity", 0),
      imageSearchPath("imageSearchPath"),
      dynamicHairTesselation("dynamicHairTesselation", 1),
      segmentLength("segmentLength", 4.0f),
      obeyROI("obeyROI", 0),
      minROI("minROI"),
      maxROI("maxROI") {}

void RendererParameterSet::setOwner(xrVellMayaVRay* node) {
    sampleGenerator.setOwner(node);
    file.setOwner(node);
}

void RendererParameterSet::createPlugin(VUtils::VRayGeomInfo* geomInfo) {
    if (!geomInfo) return;
    VUtils::VRayPluginRendererInterface* renderer = geomInfo->getPluginRenderer();
    if (!renderer) return;
    if (!renderer->getPluginDesc(kFurPluginType)) {
        MGlobal::displayError(
            "xrVellMayaVRay::xrVellVRay plugin doesn't exsist, please check your VRAY plugin "
            "paths.");
        return;
    }
    bool existing = false;
    VUtils::VRayPlugin* plugin = geomInfo->newPlugin(kFurPluginType, existing);
    // An instance handed back from an earlier translation already has its parameters.
    if (existing) return;
    attachTo(*plugin);
}

// The order the xrVellVRay plugin receives its inputs in; "file" comes before the two
// tessellation settings.
void RendererParameterSet::attachTo(VUtils::VRayPluginInterface& plugin) {
    plugin.setParameter(&sampleGenerator);
    plugin.setParameter(&density);
    plugin.setParameter(&length);
    plugin.setParameter(&width);
    plugin.setParameter(&verbosity);
    plugin.setParameter(&imageSearchPath);
    plugin.setParameter(&file);
    plugin.setParameter(&dynamicHairTesselation);
    plugin.setParameter(&segmentLength);
    plugin.setParameter(&obeyROI);
    plugin.setParameter(&minROI);
    plugin.setParameter(&maxROI);
}
