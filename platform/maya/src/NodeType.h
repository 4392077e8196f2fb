#pragma once
#include <maya/MTypes.h>

#include <string>
#include <vector>

#include "Attribute.h"

namespace mayahost {
namespace detail {

struct PluginObj;

struct NodeType {
    std::string name;
    unsigned int id = 0;
    MCreatorFunction creator = nullptr;
    MInitializeFunction initialize = nullptr;
    MCreatorFunction uiCreator = nullptr;
    std::string classification;
    bool isShape = false;
    bool isDag = false;
    bool isTransform = false;
    bool isUnknown = false;  // one of Maya's stand-ins for a type it does not know
    PluginObj* plugin = nullptr;      // null for the host's own types
    std::vector<MObject> attributes;  // in the order they were added

    AttributeObj* findAttribute(const std::string& name) const;
};

struct DataType {
    std::string name;
    unsigned int id = 0;
    MCreatorFunction creator = nullptr;
    int kind = 0;  // MPxData::Type
    PluginObj* plugin = nullptr;
};

}  // namespace detail
}  // namespace mayahost
