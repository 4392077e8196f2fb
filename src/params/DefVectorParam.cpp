#include "params/DefVectorParam.h"

namespace VUtils {

DefVectorParam::DefVectorParam(const char* name, bool copyName)
    : DefParamBase(name, copyName), value{0.0f, 0.0f, 0.0f, 0.0f} {}

PluginInterface* DefVectorParam::newInterface(unsigned long interfaceID) {
    switch (interfaceID) {
        case EXT_TEXTURE_VECTOR:
            return static_cast<TextureVectorInterface*>(this);
        case EXT_SETTABLE_PARAM:
            return static_cast<VRaySettableParamInterface*>(this);
        case EXT_CLONEABLE_PARAM:
            return static_cast<VRayCloneableParamInterface*>(this);
        default:
            return DefParamBase::newInterface(interfaceID);
    }
}

Vector DefVectorParam::getVector(int, double) { return value.toVector(); }

PluginBase* DefVectorParam::getObject(int, double, const char**) { return asPlugin(); }

int DefVectorParam::getType(int, double) { return paramTypeVector; }

PluginBase* DefVectorParam::getPlugin() { return asPlugin(); }

simd::Vector3f DefVectorParam::getTexVector(const VRayContext&) { return value; }

void DefVectorParam::getTexVectorBounds(simd::Vector3f& vmin, simd::Vector3f& vmax) {
    vmin = vmax = value;
}

void DefVectorParam::setVector(const Vector& newValue, int, double) {
    value = simd::Vector3f::fromVector(newValue);
}

VRayPluginParameter* DefVectorParam::clone() {
    DefVectorParam* copy = new DefVectorParam(getName(), ownsNameCopy());
    copy->value = value;
    return copy;
}

Matrix DefVectorParam::getVectorBumpGradient(const VRayContext&) { return Matrix{}; }

}  // namespace VUtils
