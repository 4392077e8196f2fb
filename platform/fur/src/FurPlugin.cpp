// Entry points of the fur product stand-in. The only source that includes MFnPlugin.h, so it
// alone defines the exported MApiVersion record.
#include <maya/MFnPlugin.h>
#include <xrvellfur/xrVellMaya.h>

#include "FurCallLog.h"
#include "xrVellMayaData.h"

MStatus initializePlugin(MObject obj) {
    xrvellfur::clearCalls();
    MFnPlugin plugin(obj, "xrVell fur stand-in", "1.0", "Any");
    MStatus status =
        plugin.registerData(xrVellMayaData::typeName, xrVellMayaData::id, &xrVellMayaData::creator);
    if (status != MStatus::kSuccess) return status;
    status = plugin.registerShape(xrVellMaya::typeName, xrVellMaya::id, &xrVellMaya::creator,
                                  &xrVellMaya::initialize);
    if (status != MStatus::kSuccess) plugin.deregisterData(xrVellMayaData::id);
    return status;
}

MStatus uninitializePlugin(MObject obj) {
    MFnPlugin plugin(obj);
    MStatus status = plugin.deregisterNode(xrVellMaya::id);
    if (status != MStatus::kSuccess) return status;
    return plugin.deregisterData(xrVellMayaData::id);
}
