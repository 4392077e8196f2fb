#pragma once

class PluginBase;

// One capability of a plugin, found by id through PluginBase::newInterface.
class PluginInterface {
public:
    virtual ~PluginInterface() = default;
    virtual unsigned long getInterfaceID() const = 0;
    virtual PluginBase* getPlugin() = 0;
    virtual const char* getInterfaceName() const = 0;
    // Hands the interface back to its plugin, which decides whether to free it.
    virtual void deleteInterface();
};
