#include <maya/MDagPath.h>
#include <maya/MMaterial.h>
#include <maya/MPxSurfaceShape.h>
#include <maya/MPxSurfaceShapeUI.h>

#include "../HostState.h"

using namespace mayahost::detail;

namespace mayahost {
namespace detail {

void Access::bind(MPxSurfaceShapeUI& ui, MPxSurfaceShape* shape) { ui.fShape = shape; }

}  // namespace detail
}  // namespace mayahost

OPENMAYA_NAMESPACE_OPEN

MPxSurfaceShape::MPxSurfaceShape() : fRenderable(false) {}
MPxSurfaceShape::~MPxSurfaceShape() = default;

MPxNode::Type MPxSurfaceShape::type() const { return kSurfaceShape; }
bool MPxSurfaceShape::isBounded() const { return false; }
MBoundingBox MPxSurfaceShape::boundingBox() const { return MBoundingBox(); }
void MPxSurfaceShape::setRenderable(bool renderable) { fRenderable = renderable; }
bool MPxSurfaceShape::isRenderable() const { return fRenderable; }

MPxSurfaceShapeUI::MPxSurfaceShapeUI() : fShape(nullptr) {}
MPxSurfaceShapeUI::~MPxSurfaceShapeUI() = default;

void MPxSurfaceShapeUI::getDrawRequests(const MDrawInfo&, bool, MDrawRequestQueue&) {}
void MPxSurfaceShapeUI::draw(const MDrawRequest&, M3dView&) const {}
bool MPxSurfaceShapeUI::select(MSelectInfo&, MSelectionList&, MPointArray&) const { return false; }
bool MPxSurfaceShapeUI::snap(MSelectInfo&) const { return false; }
bool MPxSurfaceShapeUI::canDrawUV() const { return false; }
MPxSurfaceShape* MPxSurfaceShapeUI::surfaceShape() const { return fShape; }

void MPxSurfaceShapeUI::getDrawData(const void* geom, MDrawData& drawData) {
    Access::setGeometry(drawData, geom);
}

MMaterial MPxSurfaceShapeUI::material(MDagPath& path) const {
    NodeObj* node = nodeOf(path.node());
    return node ? Access::material(node->material) : MMaterial();
}

OPENMAYA_NAMESPACE_CLOSE
