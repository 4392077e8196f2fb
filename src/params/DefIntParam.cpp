#include "params/DefIntParam.h"

#include "params/NumericConversions.h"

namespace VUtils {

DefIntParam::DefIntParam(const char* name, int value, bool copyName)
    : DefParamBase(name, copyName), value(value) {}

PluginInterface* DefIntParam::newInterface(unsigned long interfaceID) {
    switch (interfaceID) {
        case EXT_TEXTURE_INT:
            return static_cast<TextureIntInterface*>(this);
        case EXT_SETTABLE_PARAM:
            return static_cast<VRaySettableParamInterface*>(this);
        case EXT_CLONEABLE_PARAM:
            return static_cast<VRayCloneableParamInterface*>(this);
        default:
            return DefParamBase::newInterface(interfaceID);
    }
}

int DefIntParam::getInt(int, double) { return value; }

float DefIntParam::getFloat(int, double) { return static_cast<float>(value); }

double DefIntParam::getDouble(int, double) { return static_cast<double>(value); }

int DefIntParam::getBool(int, double) { return value != 0 ? 1 : 0; }

PluginBase* DefIntParam::getObject(int, double, const char**) { return asPlugin(); }

int DefIntParam::getType(int, double) { return paramTypeInt; }

PluginBase* DefIntParam::getPlugin() { return asPlugin(); }

int DefIntParam::getTexInt(const VRayContext&) { return value; }

void DefIntParam::setInt(int newValue, int, double) { value = newValue; }

// Kept as given, not normalised: the renderer may store flag sets this way.
void DefIntParam::setBool(int newValue, int, double) { value = newValue; }

void DefIntParam::setFloat(float newValue, int, double) { value = truncateToInt(newValue); }

void DefIntParam::setDouble(double newValue, int, double) { value = truncateToInt(newValue); }

VRayPluginParameter* DefIntParam::clone() {
    return new DefIntParam(getName(), value, ownsNameCopy());
}

}  // namespace VUtils
