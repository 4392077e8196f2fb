#pragma once

class PluginInterface;
class PluginInterfaceList;

// Answers interface requests by id; interfaces can also be attached at run time.
class PluginBase {
public:
    PluginBase() = default;
    PluginBase(const PluginBase&) = delete;
    PluginBase& operator=(const PluginBase&) = delete;
    virtual ~PluginBase();
    virtual PluginInterface* newInterface(unsigned long interfaceID);
    virtual void deleteInterface(PluginInterface* plugInterface);
    virtual bool addInterface(PluginInterface* iface, int deleteOnDestroy);
    virtual bool removeInterface(PluginInterface* iface);

protected:
    PluginInterfaceList* moreInterfaces = nullptr;
};
