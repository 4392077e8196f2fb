#include <maya/MMaterial.h>

#include <maya/MDagPath.h>
#include <maya/MDrawData.h>
#include <mayahost/Host.h>

#include "../Object.h"

using namespace mayahost::detail;

namespace mayahost {
namespace detail {

MMaterial Access::material(const MaterialSettings& settings) {
    MMaterial material;
    material.fAssigned = true;
    material.fEvaluates = settings.evaluates;
    material.fTextured = settings.textured;
    material.fTransparent = settings.transparent;
    return material;
}

}  // namespace detail
}  // namespace mayahost

OPENMAYA_NAMESPACE_OPEN

MMaterial::MMaterial()
    : fAssigned(false),
      fEvaluates(false),
      fTextured(false),
      fTransparent(false),
      fEvaluated(false) {}
MMaterial::MMaterial(const MMaterial& in) = default;
MMaterial::~MMaterial() = default;
MMaterial& MMaterial::operator=(const MMaterial& in) = default;

MStatus MMaterial::evaluateMaterial(M3dView&, const MDagPath& path) {
    if (!fAssigned || !fEvaluates || !path.isValid()) return MStatus::kFailure;
    fEvaluated = true;
    return MStatus::kSuccess;
}

MStatus MMaterial::evaluateTexture(MDrawData& data) {
    if (!materialIsTextured()) return MStatus::kFailure;
    Access::markTextureEvaluated(data);
    return MStatus::kSuccess;
}

bool MMaterial::materialIsTextured() const { return fAssigned && fTextured; }

MStatus MMaterial::getHasTransparency(bool& hasTransparency) {
    if (!fEvaluated) return MStatus::kFailure;
    hasTransparency = fTransparent;
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
