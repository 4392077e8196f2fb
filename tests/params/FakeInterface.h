#pragma once

#include <string>
#include <vector>

#include "params/PluginBase.h"
#include "params/PluginInterface.h"

// An interface added to a parameter from outside, which notes when it is released.
class FakeInterface : public PluginInterface {
public:
    FakeInterface(unsigned long id, std::string name, std::vector<std::string>* releases)
        : id(id), name(std::move(name)), releases(releases) {}

    unsigned long getInterfaceID() const override { return id; }
    PluginBase* getPlugin() override { return nullptr; }
    const char* getInterfaceName() const override { return name.c_str(); }
    void deleteInterface() override { releases->push_back(name); }

private:
    unsigned long id;
    std::string name;
    std::vector<std::string>* releases;
};

// An interface that leaves its release to the owning plugin (the default).
class OwnedInterface : public PluginInterface {
public:
    explicit OwnedInterface(PluginBase* owner) : owner(owner) {}

    unsigned long getInterfaceID() const override { return 0x1234; }
    PluginBase* getPlugin() override { return owner; }
    const char* getInterfaceName() const override { return "OWNED"; }

private:
    PluginBase* owner;
};

// A plugin that notes which interfaces are handed back to it.
class RecordingPlugin : public PluginBase {
public:
    void deleteInterface(PluginInterface* plugInterface) override {
        handedBack.push_back(plugInterface);
    }
    std::vector<PluginInterface*> handedBack;
};
