#include "vray/VRayPluginInterface.h"

#include <cstring>

#include "params/VRayPluginParameter.h"
#include "vray/VRayParameterList.h"

namespace VUtils {

VRayPluginInterface::~VRayPluginInterface() = default;

VRayParameterList* VRayPluginInterface::getParameterList() { return nullptr; }

void VRayPluginInterface::setParameter(VRayPluginParameter* param) {
    if (VRayParameterList* list = getParameterList()) list->setParameter(param);
}

void VRayParameterList::setParameter(VRayPluginParameter* param) {
    if (param) params.push_back(param);
}

VRayPluginParameter* VRayParameterList::getParam(const char* name) const {
    if (!name) return nullptr;
    for (VRayPluginParameter* param : params) {
        const char* entry = param->getName();
        if (entry && std::strcmp(entry, name) == 0) return param;
    }
    return nullptr;
}

VRayPluginParameter* VRayParameterList::getParam(int index) const {
    if (index < 0 || index >= getNumParams()) return nullptr;
    return params[static_cast<size_t>(index)];
}

int VRayParameterList::getNumParams() const { return static_cast<int>(params.size()); }

}  // namespace VUtils
