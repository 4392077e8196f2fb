#include "params/DefFloatParam.h"

#include "params/NumericConversions.h"

namespace VUtils {

DefFloatParam::DefFloatParam(const char* name, float value, bool copyName)
    : DefParamBase(name, copyName), value(value) {}

PluginInterface* DefFloatParam::newInterface(unsigned long interfaceID) {
    switch (interfaceID) {
        case EXT_TEXTURE_FLOAT:
            return static_cast<TextureFloatInterface*>(this);
        case EXT_SETTABLE_PARAM:
            return static_cast<VRaySettableParamInterface*>(this);
        case EXT_CLONEABLE_PARAM:
            return static_cast<VRayCloneableParamInterface*>(this);
        default:
            return DefParamBase::newInterface(interfaceID);
    }
}

int DefFloatParam::getInt(int, double) { return truncateToInt(value); }

float DefFloatParam::getFloat(int, double) { return value; }

double DefFloatParam::getDouble(int, double) { return static_cast<double>(value); }

int DefFloatParam::getBool(int, double) { return floatToBool(value); }

PluginBase* DefFloatParam::getObject(int, double, const char**) { return asPlugin(); }

int DefFloatParam::getType(int, double) { return paramTypeFloat; }

PluginBase* DefFloatParam::getPlugin() { return asPlugin(); }

float DefFloatParam::getTexFloat(const VRayContext&) { return value; }

void DefFloatParam::getTexFloatBounds(float& fmin, float& fmax) { fmin = fmax = value; }

Vector DefFloatParam::getFloatBumpGradient(const VRayContext&) { return Vector{0.0f, 0.0f, 0.0f}; }

void DefFloatParam::setInt(int newValue, int, double) { value = static_cast<float>(newValue); }

void DefFloatParam::setBool(int newValue, int, double) { value = static_cast<float>(newValue); }

void DefFloatParam::setFloat(float newValue, int, double) { value = newValue; }

void DefFloatParam::setDouble(double newValue, int, double) {
    value = static_cast<float>(newValue);
}

VRayPluginParameter* DefFloatParam::clone() {
    return new DefFloatParam(getName(), value, ownsNameCopy());
}

bool DefFloatParam::isConstant(float& out) {
    out = value;
    return true;
}

}  // namespace VUtils
