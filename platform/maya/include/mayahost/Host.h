#pragma once
// The stand-in host's own API: what Maya's UI and scripting would do, for tests and tools.
// Not part of Maya's API.
#include <maya/M3dView.h>
#include <maya/MObject.h>
#include <maya/MPlug.h>
#include <maya/MPoint.h>
#include <maya/MStatus.h>
#include <maya/MTime.h>

#include <functional>
#include <set>
#include <string>
#include <vector>

namespace mayahost {

// Drops every node, plug-in, registration, message and fault: a fresh host. A fresh host has
// Maya's built-in node types "transform", "time" and "mesh", and the scene time node "time1".
void reset();

struct PluginLoad {
    MStatus status = MStatus::kFailure;
    std::string error;       // empty on success
    std::string apiVersion;  // the library's MApiVersion
    explicit operator bool() const { return status == MStatus::kSuccess; }
};

// Loads a plug-in library as Maya does: dlopen, MApiVersion, then initializePlugin.
PluginLoad loadPlugin(const std::string& path);
// Loads a plug-in whose entry points and MApiVersion are linked into the calling program, so a
// test can reach code a library would keep hidden. The name stands where a library's path would.
using PluginEntryPoint = MStatus (*)(MObject);
PluginLoad loadLinkedPlugin(const std::string& name, PluginEntryPoint initialize,
                            PluginEntryPoint uninitialize, const char* apiVersion);
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

struct DataTypeInfo {
    std::string name;
    unsigned int id = 0;
    std::string pluginPath;
};
bool findDataTypeById(unsigned int id, DataTypeInfo* info = nullptr);

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

// Creates a node through its type's creator, then calls postConstructor. A shape or other
// non-transform DAG node created this way gets a new transform as its parent, as in Maya.
MObject createNode(const std::string& typeName, const std::string& name = "",
                   std::string* error = nullptr);
// Creates a DAG node under a transform.
MObject createNode(const std::string& typeName, const std::string& name, const MObject& parent,
                   std::string* error = nullptr);
// A node of a type the host does not know (one of Maya's own that it does not model, or one of a
// plug-in that is not loaded), kept as Maya keeps it: an "unknown" node, or an "unknownDag" node
// when it is created under a parent. Either becomes an "unknownTransform" when a node is placed
// under it. It holds its name, place, values and connections and never evaluates.
MObject createUnknownNode(const std::string& realType, const std::string& name,
                          const MObject& parent = MObject(), std::string* error = nullptr);
// The type the scene gave the node: for an unknown node the type it stands for.
std::string realTypeName(const MObject& node);
// Places a DAG node under a transform (or under the world, for a null parent), as "parent" does.
MStatus parentNode(const MObject& child, const MObject& parent, std::string* error = nullptr);

// Attributes the host does not model are kept as the scene wrote them, never evaluated: any
// attribute of an unknown node or of one of the host's own types (which model Maya's only in
// part), the attributes every Maya node, DAG node or shape inherits on plug-in nodes ("v",
// "iog[0].og[0].gcl"), and attributes added to a node.
bool keepsAttribute(const MObject& node, const std::string& attribute);
MStatus addKeptAttribute(const MObject& node, const std::string& longName,
                         const std::string& shortName);
// False (nothing kept) for an attribute the node models or does not keep.
bool keepValue(const MObject& node, const std::string& attribute, const std::string& text);
bool keptValue(const MObject& node, const std::string& attribute, std::string* text);
// A connection with at least one end the host does not model: kept, carrying no value.
struct KeptConnection {
    std::string source;  // "node.attribute", the nodes by unique path name
    std::string destination;
};
MStatus keepConnection(const MObject& sourceNode, const std::string& sourceAttribute,
                       const MObject& destinationNode, const std::string& destinationAttribute,
                       std::string* error = nullptr);
// The kept connections to or from the node, in the order they were made.
std::vector<KeptConnection> keptConnections(const MObject& node);

// Deleting a transform deletes what lies below it; deleting a shape leaves its transform.
MStatus deleteNode(const MObject& node);
// The node a name, full DAG path ("|charA|fur|furShape") or partial path ("fur|furShape") names;
// ":name" is the same name in the root namespace. A null object when none or several match,
// with Maya's message ("More than one object matches name: furShape").
MObject findNode(const std::string& name, std::string* error = nullptr);
// The node's own name, unique among its siblings only.
std::string nodeName(const MObject& node);
// The shortest path that names the node alone: its name, or with as many parents as that needs
// ("charA|fur|furShape"); Maya's partial path name.
std::string uniquePathName(const MObject& node);
MPxNode* userNode(const MObject& node);
// The plug of a node's attribute by long or short name; a null plug when there is none.
MPlug findPlug(const MObject& node, const std::string& attribute);
// Calls the node's compute for the plug directly, with the node's data block.
MStatus compute(const MPlug& plug);

// Connections carry values from source to destination. Typed attributes connect only with the
// same kind of data; for a plug-in data type that type must be registered when the connection
// is made (a node type may name a data type that another plug-in registers later).
MStatus connect(const MPlug& source, const MPlug& destination, std::string* error = nullptr);
MStatus disconnect(const MPlug& source, const MPlug& destination, std::string* error = nullptr);
// The same with "node.attribute" names, as MEL's connectAttr and disconnectAttr take them.
MStatus connectAttr(const std::string& source, const std::string& destination,
                    std::string* error = nullptr);
MStatus disconnectAttr(const std::string& source, const std::string& destination,
                       std::string* error = nullptr);

// The scene time. Every "time" node's outTime follows it, in the UI time unit (Maya's
// default: film, 24 frames per second).
void setCurrentTime(const MTime& time);
// The scene's UI units for lengths and angles (currentUnit -l / -a), as how many internal units
// (centimetres, radians) one UI unit is. A fresh host works in centimetres and degrees, as Maya.
struct UiUnits {
    double centimetresPerLinearUnit = 1.0;
    double radiansPerAngleUnit = 0.017453292519943295;
};
void setUiUnits(const UiUnits& units);
UiUnits uiUnits();
MTime currentTime();

// The legacy viewport. The material assigned to a shape decides how shaded display evaluates;
// a shape without an assignment has a default material that evaluates and is neither textured
// nor transparent.
struct MaterialSettings {
    bool evaluates = true;
    bool textured = false;
    bool transparent = false;
};
MStatus assignMaterial(const MObject& shape, const MaterialSettings& material);

// What the view asks a shape's UI for: its path, the view's display style, the shape's
// display status, and whether the view shows meshes.
struct DrawContext {
    M3dView::DisplayStyle style = M3dView::kGouraudShaded;
    M3dView::DisplayStatus status = M3dView::kDormant;
    bool meshesShown = true;
};
struct QueuedRequest {
    std::string path;  // full path name
    int token = 0;
    M3dView::DisplayStyle style = M3dView::kBoundingBox;
    M3dView::DisplayStatus status = M3dView::kNoStatus;
    bool colorSet = false;
    int colorIndex = 0;
    int colorTable = 0;
    bool transparent = false;
    bool materialAssigned = false;  // a material was attached to the request
    bool materialEvaluated = false;
    const void* geometry = nullptr;  // what the draw data carries
    bool textureEvaluated = false;
};
// Calls the shape UI's getDrawRequests and returns the queue's requests in queue order.
std::vector<QueuedRequest> drawRequests(const MObject& shape, const DrawContext& context,
                                        std::string* error = nullptr);

struct SelectionCall {               // one MSelectInfo::addSelection
    std::vector<std::string> items;  // full path names
    MPoint point;
    std::vector<int> maskTypes;  // MSelectionMask::SelectionType values in the mask
    bool isComponent = false;
};
struct Selection {
    bool selected = false;          // what the UI's select returned
    std::vector<std::string> list;  // the selection list afterwards
    std::vector<MPoint> points;     // the world-space selection points afterwards
    std::vector<SelectionCall> calls;
};
// Calls the shape UI's select for a single click or for a marquee.
Selection select(const MObject& shape, bool singleSelection, std::string* error = nullptr);

// Messages shown through MGlobal and MStatus::perror, in the order they were shown.
struct Message {
    enum class Channel { Error, Warning, Info, Perror };
    Channel channel;
    std::string text;  // as shown, without any decoration
};
std::vector<Message> messages();
void clearMessages();
// Each message is printed as Maya's batch mode prints it ("// Error: ..."), on standard error
// unless a host user takes the lines, to group repeats say. An empty function gives them back.
// Kept through reset().
using MessageEcho = std::function<void(const std::string& line)>;
void setMessageEcho(MessageEcho echo);
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
