#include <maya/MFnPlugin.h>

#include <sstream>

#include "../HostState.h"

using namespace mayahost::detail;

namespace {

std::string hex(unsigned int id) {
    std::ostringstream text;
    text << "0x" << std::hex << id;
    return text.str();
}

void set(MStatus* target, MStatus value) {
    if (target) *target = value;
}

// Node types and data types share one space of type ids.
bool idTaken(unsigned int id) { return findType(id) || findDataType(id); }

// Runs the type's attribute initialiser; the type is kept only if it succeeds.
MStatus registerType(std::unique_ptr<NodeType> type) {
    HostState& host = state();
    if (idTaken(type->id)) {
        diagnose("node type id " + hex(type->id) + " (\"" + type->name +
                 "\") is already registered");
        return MStatus::kFailure;
    }
    if (findType(type->name)) {
        diagnose("node type name \"" + type->name + "\" is already registered");
        return MStatus::kFailure;
    }
    NodeType* raw = type.get();
    host.nodeTypes.push_back(std::move(type));
    host.initializing = raw;
    const MStatus status = raw->initialize ? raw->initialize() : MStatus(MStatus::kSuccess);
    host.initializing = nullptr;
    if (status != MStatus::kSuccess) {
        diagnose("attribute initialiser of \"" + raw->name + "\" failed with status " +
                 std::to_string(static_cast<int>(status.statusCode())));
        removeType(raw);
        return MStatus::kFailure;
    }
    return MStatus::kSuccess;
}

}  // namespace

OPENMAYA_NAMESPACE_OPEN

MFnPlugin::MFnPlugin() = default;

MFnPlugin::MFnPlugin(MObject& object, const char* vendor, const char* version,
                     const char* requiredApiVersion, MStatus* ReturnStatus) {
    *fObject = object;
    PluginObj* plugin = Access::as<PluginObj>(object);
    if (!plugin) {
        set(ReturnStatus, MStatus::kInvalidParameter);
        return;
    }
    if (!plugin->identified) {
        plugin->vendor = vendor ? vendor : "";
        plugin->version = version ? version : "";
        plugin->requiredApiVersion = requiredApiVersion ? requiredApiVersion : "";
        plugin->identified = true;
    }
    set(ReturnStatus, state().faults.pluginBinding ? MStatus::kFailure : MStatus::kSuccess);
}

MFnPlugin::~MFnPlugin() = default;

MString MFnPlugin::vendor(MStatus* ReturnStatus) const {
    PluginObj* plugin = Access::as<PluginObj>(*fObject);
    set(ReturnStatus, plugin ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return plugin ? MString(plugin->vendor.c_str()) : MString();
}

MString MFnPlugin::version(MStatus* ReturnStatus) const {
    PluginObj* plugin = Access::as<PluginObj>(*fObject);
    set(ReturnStatus, plugin ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return plugin ? MString(plugin->version.c_str()) : MString();
}

MString MFnPlugin::apiVersion(MStatus* ReturnStatus) const {
    PluginObj* plugin = Access::as<PluginObj>(*fObject);
    set(ReturnStatus, plugin ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return plugin ? MString(plugin->requiredApiVersion.c_str()) : MString();
}

MString MFnPlugin::loadPath(MStatus* ReturnStatus) const {
    PluginObj* plugin = Access::as<PluginObj>(*fObject);
    set(ReturnStatus, plugin ? MStatus::kSuccess : MStatus::kInvalidParameter);
    return plugin ? MString(plugin->path.c_str()) : MString();
}

MStatus MFnPlugin::registerShape(const MString& typeName, const MTypeId& typeId,
                                 MCreatorFunction creatorFunction, MInitializeFunction initFunction,
                                 MCreatorFunction uiCreatorFunction,
                                 const MString* classification) {
    PluginObj* plugin = Access::as<PluginObj>(*fObject);
    if (!plugin || !creatorFunction) return MStatus::kInvalidParameter;
    auto type = std::make_unique<NodeType>();
    type->name = typeName.asChar();
    type->id = typeId.id();
    type->creator = creatorFunction;
    type->initialize = initFunction;
    type->uiCreator = uiCreatorFunction;
    type->classification = classification ? classification->asChar() : "";
    type->isShape = true;
    type->isDag = true;
    type->plugin = plugin;
    return registerType(std::move(type));
}

MStatus MFnPlugin::registerNode(const MString& typeName, const MTypeId& typeId,
                                MCreatorFunction creatorFunction, MInitializeFunction initFunction,
                                MPxNode::Type type, const MString* classification) {
    PluginObj* plugin = Access::as<PluginObj>(*fObject);
    if (!plugin || !creatorFunction) return MStatus::kInvalidParameter;
    if (type != MPxNode::kDependNode && type != MPxNode::kLocatorNode &&
        type != MPxNode::kSurfaceShape) {
        diagnose("registerNode: the host has no nodes of kind " + std::to_string(type));
        return MStatus::kInvalidParameter;
    }
    auto nodeType = std::make_unique<NodeType>();
    nodeType->name = typeName.asChar();
    nodeType->id = typeId.id();
    nodeType->creator = creatorFunction;
    nodeType->initialize = initFunction;
    nodeType->classification = classification ? classification->asChar() : "";
    nodeType->isShape = type == MPxNode::kSurfaceShape;
    nodeType->isDag = type != MPxNode::kDependNode;
    nodeType->plugin = plugin;
    return registerType(std::move(nodeType));
}

MStatus MFnPlugin::registerData(const MString& typeName, const MTypeId& typeId,
                                MCreatorFunction creatorFunction, MPxData::Type type) {
    PluginObj* plugin = Access::as<PluginObj>(*fObject);
    if (!plugin || !creatorFunction) return MStatus::kInvalidParameter;
    if (idTaken(typeId.id())) {
        diagnose("data type id " + hex(typeId.id()) + " (\"" + typeName.asChar() +
                 "\") is already registered");
        return MStatus::kFailure;
    }
    if (findDataType(typeName.asChar())) {
        diagnose("data type name \"" + std::string(typeName.asChar()) + "\" is already registered");
        return MStatus::kFailure;
    }
    state().dataTypes.push_back(
        DataType{typeName.asChar(), typeId.id(), creatorFunction, type, plugin});
    return MStatus::kSuccess;
}

MStatus MFnPlugin::deregisterData(const MTypeId& typeId) {
    auto& types = state().dataTypes;
    for (auto it = types.begin(); it != types.end(); ++it) {
        if (it->id == typeId.id()) {
            types.erase(it);
            return MStatus::kSuccess;
        }
    }
    diagnose("deregisterData: no data type has id " + hex(typeId.id()));
    return MStatus::kFailure;
}

MStatus MFnPlugin::deregisterNode(const MTypeId& typeId) {
    if (state().faults.deregisterNode) return MStatus::kFailure;
    NodeType* type = findType(typeId.id());
    if (!type) {
        diagnose("deregisterNode: no node type has id " + hex(typeId.id()));
        return MStatus::kFailure;
    }
    if (!removeType(type)) {
        diagnose("deregisterNode: nodes of type \"" + type->name + "\" still exist");
        return MStatus::kFailure;
    }
    return MStatus::kSuccess;
}

OPENMAYA_NAMESPACE_CLOSE
