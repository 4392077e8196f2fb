#pragma once

class PluginInterface;

// One node of the interfaces added to a plugin at run time, newest first.
class PluginInterfaceList {
public:
    enum Flags : int { none = 0, deleteOnDestroy = 1, sequencePersistent = 2 };

    PluginInterfaceList(PluginInterface* iface, Flags flags, PluginInterfaceList* next)
        : iface(iface), flags(flags), next(next) {}
    PluginInterfaceList(const PluginInterfaceList&) = delete;
    PluginInterfaceList& operator=(const PluginInterfaceList&) = delete;
    // Releases the chain behind this node (oldest first), then this node's interface.
    ~PluginInterfaceList();

    PluginInterface* iface;
    Flags flags;
    PluginInterfaceList* next;

private:
    void releaseInterface();
    static PluginInterfaceList* reverse(PluginInterfaceList* head);
};

static_assert(sizeof(PluginInterfaceList::Flags) == 4, "flags are a 32-bit field");
