#pragma once
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <string>
#include <vector>

#include "Attribute.h"

namespace mayahost {
namespace detail {

struct PluginObj;
struct NodeObj;
struct AttributeObj;

// How one of the host's own types computes an output plug; kUnknownParameter for a plug it does
// not compute.
using BuiltinCompute = MStatus (*)(NodeObj& node, const AttributeObj& attribute);

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
    bool isUnknown = false;            // one of Maya's stand-ins for a type it does not know
    PluginObj* plugin = nullptr;       // null for the host's own types
    BuiltinCompute compute = nullptr;  // for the host's own types that evaluate
    std::vector<MObject> attributes;   // in the order they were added

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
