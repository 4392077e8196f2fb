#include "params/DefStringParam.h"

#include "params/StringCopy.h"

namespace VUtils {

DefStringParam::DefStringParam(const char* name, bool copyName)
    : DefParamBase(name, copyName), value(duplicateString("")) {}

DefStringParam::~DefStringParam() {
    delete[] value;
    value = nullptr;
}

PluginInterface* DefStringParam::newInterface(unsigned long interfaceID) {
    switch (interfaceID) {
        case EXT_SETTABLE_PARAM:
            return static_cast<VRaySettableParamInterface*>(this);
        case EXT_CLONEABLE_PARAM:
            return static_cast<VRayCloneableParamInterface*>(this);
        default:
            return DefParamBase::newInterface(interfaceID);
    }
}

const char* DefStringParam::getString(int, double) { return value; }

int DefStringParam::getType(int, double) { return paramTypeString; }

PluginBase* DefStringParam::getPlugin() { return asPlugin(); }

// The old text is freed before the new one is read, so callers must not pass our own
// string back to us. The value is null while copying, so a failed allocation leaves
// nothing dangling.
void DefStringParam::setString(const char* text, int, double) {
    delete[] value;
    value = nullptr;
    value = duplicateString(text);
}

VRayPluginParameter* DefStringParam::clone() {
    DefStringParam* copy = new DefStringParam(getName(), ownsNameCopy());
    copy->setString(value, -1, 0.0);
    return copy;
}

}  // namespace VUtils
