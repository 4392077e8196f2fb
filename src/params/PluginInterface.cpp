#include "params/PluginInterface.h"

#include "params/PluginBase.h"

void PluginInterface::deleteInterface() {
    PluginBase* plugin = getPlugin();
    if (plugin) {
        plugin->deleteInterface(this);
    }
}
