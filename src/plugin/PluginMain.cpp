// The library's face towards Maya. The only source that includes MFnPlugin.h without
// MNoVersionString, so it alone defines the exported MApiVersion record.
#include <maya/MFnPlugin.h>

#include "node/xrVellMayaVRay.h"
#include "ui/xrVellMayaVRayUI.h"

MStatus initializePlugin(MObject obj) {
    MStatus status = MStatus::kSuccess;
    MFnPlugin plugin(obj, "Tarnwick Labs", XRVELL_VERSION, "Any", &status);
    // Reported but not fatal: the load is judged by the registration alone.
    if (status != MStatus::kSuccess) status.perror("failed to initialize plugin");

    MString classification(xrVellMayaVRay::classification);
    MString typeName("xrVellMayaVRay");
    status = plugin.registerShape(typeName, xrVellMayaVRay::id, &xrVellMayaVRay::creator,
                                  &xrVellMayaVRay::initialize, &xrVellMayaVRayUI::creator,
                                  &classification);
    if (status != MStatus::kSuccess) status.perror("registerNode failed");
    return status;
}

MStatus uninitializePlugin(MObject obj) {
    MStatus status = MStatus::kSuccess;
    MFnPlugin plugin(obj);
    status = plugin.deregisterNode(xrVellMayaVRay::id);
    if (status != MStatus::kSuccess) status.perror("deregisterNode failed");
    return status;
}
