#pragma once
// The stand-in host's own API: what Maya's UI and scripting would do, for tests and tools.
// Not part of Maya's API.
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MStatus.h>
#include <maya/MTime.h>

#include <set>
#include <string>
#include <vector>

namespace mayahost {

// Drops every node, plug-in, registration, message and fault: a fresh host.
void reset();

struct PluginLoad {
    MStatus status = MStatus::kFailure;
    std::string error;       // empty on success
    std::string apiVersion;  // the library's MApiVersion
    explicit operator bool() const { return status == MStatus::kSuccess; }
};

// Loads a plug-in library as Maya does: dlopen, MApiVersion, then initializePlugin.
PluginLoad loadPlugin(const std::string& path);
// Calls uninitializePlugin and closes the library; a failing uninitializePlugin keeps it loaded.
MStatus unloadPlugin(const std::string& path, std::string* error = nullptr);
std::vector<std::string> loadedPlugins();

struct PluginIdentity {
    std::string vendor;
    std::string version;
    std::string requiredApiVersion;
};
PluginIdentity pluginIdentity(const std::string& path);

struct NodeTypeInfo {
    std::string name;
    unsigned int id = 0;
    std::string classification;
    bool isShape = false;
    bool hasUICreator = false;
    std::string pluginPath;               // empty for the host's own types
    std::vector<std::string> attributes;  // long names, in the order they were added
};
bool findNodeType(const std::string& name, NodeTypeInfo* info = nullptr);
bool findNodeTypeById(unsigned int id, NodeTypeInfo* info = nullptr);

enum class AttributeKind { Numeric, Typed, Unit };

struct AttributeInfo {
    std::string longName;
    std::string shortName;
    AttributeKind kind = AttributeKind::Numeric;
    int numericType = 0;
    int dataType = 0;
    unsigned int typeId = 0;
    int unitType = 0;
    double defaultNumber = 0.0;
    void* defaultAddr = nullptr;
    std::string defaultString;
    bool hasDefaultData = false;
    bool readable = true;
    bool writable = true;
    bool storable = true;
    bool keyable = false;
    bool hidden = false;
    bool array = false;
    bool affectsWorldSpace = false;
};
bool findAttribute(const std::string& typeName, const std::string& attribute,
                   AttributeInfo* info = nullptr);
// (whenChanges, isAffected) long-name pairs declared with attributeAffects, in order.
std::vector<std::pair<std::string, std::string>> attributeAffects(const std::string& typeName);

// Creates a node through its type's creator, then calls postConstructor.
MObject createNode(const std::string& typeName, const std::string& name = "",
                   std::string* error = nullptr);
MStatus deleteNode(const MObject& node);
MObject findNode(const std::string& name);
std::string nodeName(const MObject& node);
MPxNode* userNode(const MObject& node);
// The plug of a node's attribute by long or short name; a null plug when there is none.
MPlug findPlug(const MObject& node, const std::string& attribute);
// Calls the node's compute for the plug directly, with the node's data block.
MStatus compute(const MPlug& plug);

MStatus connect(const MPlug& source, const MPlug& destination, std::string* error = nullptr);
MStatus disconnect(const MPlug& source, const MPlug& destination, std::string* error = nullptr);

void setCurrentTime(const MTime& time);
MTime currentTime();

// Messages shown through MGlobal and MStatus::perror, in the order they were shown.
struct Message {
    enum class Channel { Error, Warning, Info, Perror };
    Channel channel;
    std::string text;  // as shown, without any decoration
};
std::vector<Message> messages();
void clearMessages();
// The host's own diagnostics (why a registration or connection was refused).
std::vector<std::string> diagnostics();

// Makes chosen host calls fail so failure paths can be exercised. Call numbers count from 1,
// from the moment the faults are set.
struct Faults {
    std::set<int> addAttribute;
    std::set<int> attributeAffects;
    bool pluginBinding = false;   // MFnPlugin's constructor reports kFailure
    bool deregisterNode = false;  // MFnPlugin::deregisterNode reports kFailure
};
void setFaults(const Faults& faults);

}  // namespace mayahost
