#include "params/PluginBase.h"

#include "params/PluginInterface.h"
#include "params/PluginInterfaceList.h"

PluginBase::~PluginBase() { delete moreInterfaces; }

PluginInterface* PluginBase::newInterface(unsigned long interfaceID) {
    for (PluginInterfaceList* node = moreInterfaces; node; node = node->next) {
        if (node->iface && node->iface->getInterfaceID() == interfaceID) {
            return node->iface;
        }
    }
    return nullptr;
}

void PluginBase::deleteInterface(PluginInterface*) {
    // The interfaces a plugin answers are parts of it; nothing to free separately.
}

bool PluginBase::addInterface(PluginInterface* iface, int deleteOnDestroy) {
    moreInterfaces = new PluginInterfaceList(
        iface, static_cast<PluginInterfaceList::Flags>(deleteOnDestroy), moreInterfaces);
    return true;
}

bool PluginBase::removeInterface(PluginInterface* iface) {
    PluginInterfaceList** link = &moreInterfaces;
    while (*link && (*link)->iface != iface) {
        link = &(*link)->next;
    }
    PluginInterfaceList* found = *link;
    if (!found) {
        return false;
    }
    *link = found->next;
    found->iface = nullptr;
    found->next = nullptr;
    delete found;
    return true;
}
