#include "params/PluginInterfaceList.h"

#include "params/PluginInterface.h"

PluginInterfaceList::~PluginInterfaceList() {
    // Walking the reversed tail keeps the oldest-first release order without
    // recursing once per node.
    PluginInterfaceList* oldest = reverse(next);
    next = nullptr;
    while (oldest) {
        PluginInterfaceList* newer = oldest->next;
        oldest->next = nullptr;
        delete oldest;
        oldest = newer;
    }
    releaseInterface();
}

void PluginInterfaceList::releaseInterface() {
    // Only exactly deleteOnDestroy: sequence-persistent interfaces outlive the plugin.
    if (iface && flags == deleteOnDestroy) {
        iface->deleteInterface();
    }
    iface = nullptr;
}

PluginInterfaceList* PluginInterfaceList::reverse(PluginInterfaceList* head) {
    PluginInterfaceList* reversed = nullptr;
    while (head) {
        PluginInterfaceList* rest = head->next;
        head->next = reversed;
        reversed = head;
        head = rest;
    }
    return reversed;
}
