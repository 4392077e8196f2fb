#pragma once
// What a renderer integration needs of the host beyond Maya's API: finding the scene's nodes
// and handing a node the address of its request object, as V-Ray for Maya does.
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>

#include <vector>

namespace mayahost {

// Every node of the scene, in creation order.
std::vector<MObject> nodes();
// Stores a raw address in an address attribute and dirties what depends on it.
MStatus setAddress(const MPlug& plug, void* address);

}  // namespace mayahost
