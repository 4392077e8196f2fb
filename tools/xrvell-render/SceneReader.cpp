#include "SceneReader.h"

#include <maya/MFnDagNode.h>
#include <maya/MFnDependencyNode.h>
#include <maya/MFnNumericData.h>
#include <maya/MPlugArray.h>
#include <maya/MTime.h>
#include <mayahost/Host.h>

#include <cctype>
#include <cstring>

#include "AttributeWriter.h"

namespace xrvell {
namespace {

// Node types every Maya scene file holds (cameras, layers, UI scripts) that play no part in
// rendering fur and that the host does not model.
const char* const kMayaSceneTypes[] = {"camera",
                                       "lightLinker",
                                       "shapeEditorManager",
                                       "poseInterpolatorManager",
                                       "displayLayerManager",
                                       "displayLayer",
                                       "renderLayerManager",
                                       "renderLayer",
                                       "script",
                                       "nodeGraphEditorInfo"};

// The renderer's own Maya plug-in: this program stands in for it.
const char* const kRendererPlugin = "vrayformaya";

bool isMayaSceneType(const std::string& type) {
    for (const char* name : kMayaSceneTypes)
        if (type == name) return true;
    return false;
}

// Attributes every node, DAG node or shape has in Maya, which Maya writes into scene files
// (hidden shapes, display overrides, render flags) and which the host does not model.
enum class Inherited { AnyNode, DagNode, Shape };

const struct {
    Inherited scope;
    const char* shortName;
    const char* longName;
} kInheritedAttributes[] = {
    {Inherited::AnyNode, "cch", "caching"},
    {Inherited::AnyNode, "fzn", "frozen"},
    {Inherited::AnyNode, "ihi", "isHistoricallyInteresting"},
    {Inherited::AnyNode, "nds", "nodeState"},
    {Inherited::AnyNode, "bnm", "binMembership"},
    {Inherited::DagNode, "v", "visibility"},
    {Inherited::DagNode, "tmp", "template"},
    {Inherited::DagNode, "io", "intermediateObject"},
    {Inherited::DagNode, "lod", "lodVisibility"},
    {Inherited::DagNode, "lodv", "lodVisibility"},
    {Inherited::DagNode, "gh", "ghosting"},
    {Inherited::DagNode, "iog", "instObjGroups"},
    {Inherited::DagNode, "uoc", "useObjectColor"},
    {Inherited::DagNode, "oc", "objectColor"},
    {Inherited::DagNode, "obcc", "objectColorRGB"},
    {Inherited::DagNode, "wfcc", "wireColorRGB"},
    {Inherited::DagNode, "do", "drawOverride"},
    {Inherited::DagNode, "ovdt", "overrideDisplayType"},
    {Inherited::DagNode, "ovlod", "overrideLevelOfDetail"},
    {Inherited::DagNode, "ovs", "overrideShading"},
    {Inherited::DagNode, "ovt", "overrideTexturing"},
    {Inherited::DagNode, "ovp", "overridePlayback"},
    {Inherited::DagNode, "ove", "overrideEnabled"},
    {Inherited::DagNode, "ovv", "overrideVisibility"},
    {Inherited::DagNode, "hpb", "hideOnPlayback"},
    {Inherited::DagNode, "ovrgbf", "overrideRGBColors"},
    {Inherited::DagNode, "ovc", "overrideColor"},
    {Inherited::DagNode, "ovrgb", "overrideColorRGB"},
    {Inherited::DagNode, "ri", "renderInfo"},
    {Inherited::DagNode, "rlio", "renderLayerInfo"},
    {Inherited::DagNode, "hio", "hiddenInOutliner"},
    {Inherited::DagNode, "uocol", "useOutlinerColor"},
    {Inherited::DagNode, "oclr", "outlinerColor"},
    {Inherited::DagNode, "sech", "selectionChildHighlighting"},
    {Inherited::Shape, "ciog", "compInstObjGroups"},
    {Inherited::Shape, "csh", "castsShadows"},
    {Inherited::Shape, "rcsh", "receiveShadows"},
    {Inherited::Shape, "vis", "primaryVisibility"},
    {Inherited::Shape, "vir", "visibleInReflections"},
    {Inherited::Shape, "vif", "visibleInRefractions"},
    {Inherited::Shape, "mb", "motionBlur"},
    {Inherited::Shape, "smo", "smoothShading"},
    {Inherited::Shape, "ds", "doubleSided"},
    {Inherited::Shape, "op", "opposite"},
    {Inherited::Shape, "hot", "holdOut"},
    {Inherited::Shape, "iss", "ignoreSelfShadowing"},
};

bool isInheritedAttribute(const std::string& attribute, bool dag, bool shape) {
    for (const auto& entry : kInheritedAttributes) {
        const bool applies = entry.scope == Inherited::AnyNode ||
                             (entry.scope == Inherited::DagNode && dag) ||
                             (entry.scope == Inherited::Shape && shape);
        if (applies && (attribute == entry.shortName || attribute == entry.longName)) return true;
    }
    return false;
}

// ".iog[0].og[0].gcl" belongs to "iog".
std::string rootAttribute(const std::string& attribute) {
    return attribute.substr(0, attribute.find_first_of("[."));
}

bool isNamePart(const std::string& part) {
    if (part.empty() || std::isdigit(static_cast<unsigned char>(part[0]))) return false;
    for (char c : part)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_') return false;
    return true;
}

// Maya's node names: letters, digits and '_', not starting with a digit, with ':' between
// namespaces. Anything else would also break the .vrscene the name is written into.
bool isNodeName(const std::string& name) {
    size_t start = 0;
    for (;;) {
        const size_t colon = name.find(':', start);
        if (!isNamePart(name.substr(start, colon - start))) return false;
        if (colon == std::string::npos) return true;
        start = colon + 1;
    }
}

// ":time1" (root namespace) and "|group|shape" (DAG path) both name a node by its last part.
std::string nodeNameOf(const std::string& text) {
    std::string name = text;
    const size_t bar = name.rfind('|');
    if (bar != std::string::npos) name.erase(0, bar + 1);
    while (!name.empty() && name[0] == ':') name.erase(0, 1);
    return name;
}

bool timeUnitNamed(const std::string& name, MTime::Unit* unit) {
    static const struct {
        const char* name;
        const char* rate;
        MTime::Unit unit;
    } units[] = {{"hour", "", MTime::kHours},          {"min", "", MTime::kMinutes},
                 {"sec", "", MTime::kSeconds},         {"millisec", "", MTime::kMilliseconds},
                 {"game", "15fps", MTime::kGames},     {"film", "24fps", MTime::kFilm},
                 {"pal", "25fps", MTime::kPALFrame},   {"ntsc", "30fps", MTime::kNTSCFrame},
                 {"show", "48fps", MTime::kShowScan},  {"palf", "50fps", MTime::kPALField},
                 {"ntscf", "60fps", MTime::kNTSCField}};
    for (const auto& entry : units) {
        if (name == entry.name || (entry.rate[0] && name == entry.rate)) {
            *unit = entry.unit;
            return true;
        }
    }
    return false;
}

// -type names of numeric compounds, with their component counts.
int componentsOf(const std::string& type) {
    static const char* const pairs[] = {"double2", "float2", "long2", "short2"};
    static const char* const triples[] = {"double3", "float3", "long3", "short3"};
    for (const char* name : pairs)
        if (type == name) return 2;
    for (const char* name : triples)
        if (type == name) return 3;
    return 0;
}

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

// "double" for the children of translate, as the -type names them.
const char* componentTypeName(int numericType) {
    switch (numericType) {
        case MFnNumericData::kFloat:
            return "float";
        case MFnNumericData::kInt:
            return "long";
        case MFnNumericData::kShort:
            return "short";
        default:
            return "double";
    }
}

// A value's words as a message names them: the word itself, or how many there are.
std::string givenWords(const std::vector<MaWord>& words) {
    if (words.size() == 1) return quoted(words[0].text);
    return std::to_string(words.size()) + " values";
}

// The host's messages name the call they come from; ours name the command.
std::string withoutPrefix(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0 ? text.substr(prefix.size()) : text;
}

}  // namespace

SceneReader::SceneReader(Diagnostics& report, PluginRequest loader)
    : diagnostics(report), requirePlugin(std::move(loader)) {}

bool SceneReader::read(std::string_view text) {
    MaTokenizer tokenizer(text);
    MaStatement statement;
    while (tokenizer.next(statement)) {
        line = statement.line;
        if (!apply(statement)) return false;
    }
    if (tokenizer.error().empty()) return true;
    line = tokenizer.errorLine();
    return fail(tokenizer.error());
}

bool SceneReader::apply(const MaStatement& statement) {
    const std::string& command = statement.words[0].text;
    if (command == "requires") return requiresCommand(statement);
    if (command == "currentUnit") return currentUnitCommand(statement);
    if (command == "createNode") return createNodeCommand(statement);
    if (command == "select") return selectCommand(statement);
    if (command == "setAttr") return setAttrCommand(statement);
    if (command == "connectAttr") return connectAttrCommand(statement);
    if (command == "addAttr") return addAttrCommand(statement);
    return skipCommand(statement);
}

bool SceneReader::fail(const std::string& text) {
    diagnostics.error(line, text);
    return false;
}

void SceneReader::warnOnce(std::set<std::string>& said, const std::string& key,
                           const std::string& text) {
    if (said.insert(key).second) diagnostics.warning(line, text);
}

bool SceneReader::skipCommand(const MaStatement& statement) {
    const std::string& command = statement.words[0].text;
    warnOnce(warnedCommands, command, quoted(command) + " commands are skipped");
    return true;
}

bool SceneReader::requiresCommand(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"nodeType", "nodeType", true}, {"dataType", "dataType", true}}))
        return fail(args.error());
    if (args.plain().empty()) return fail("requires: no plug-in named");
    const std::string& plugin = args.plain()[0].text;
    if (plugin == "maya") return true;
    if (plugin == kRendererPlugin) {
        for (const std::string& type : args.values("nodeType")) rendererTypes.insert(type);
        return true;
    }
    const std::string problem = requirePlugin(plugin);
    return problem.empty() || fail(problem);
}

bool SceneReader::currentUnitCommand(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"l", "linear", true},
                                {"a", "angle", true},
                                {"t", "time", true},
                                {"f", "fullName", false},
                                {"ua", "updateAnimation", true}}))
        return fail(args.error());
    const std::string* time = args.value("t");
    if (!time) return true;
    MTime::Unit unit = MTime::kFilm;
    if (!timeUnitNamed(*time, &unit))
        return fail("currentUnit: unsupported time unit " + quoted(*time));
    MTime::setUIUnit(unit);
    return true;
}

bool SceneReader::createNodeCommand(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"n", "name", true},
                                {"p", "parent", true},
                                {"s", "shared", false},
                                {"ss", "skipSelect", false}}))
        return fail(args.error());
    if (args.plain().size() != 1) return fail("createNode: expects one node type");
    const std::string& type = args.plain()[0].text;
    const std::string name = args.has("n") ? nodeNameOf(*args.value("n")) : "";
    if (!name.empty() && !isNodeName(name))
        return fail("createNode: " + quoted(name) +
                    " is not a valid node name (letters, digits and '_', not starting with a "
                    "digit; ':' between namespaces)");
    if (args.has("s") && !name.empty() && findNode(name)) {
        select(name);  // a shared node that the scene already has
        return true;
    }
    if (!mayahost::findNodeType(type)) {
        if (!isMayaSceneType(type) && !rendererTypes.count(type))
            return fail("unknown node type " + quoted(type));
        warnOnce(warnedTypes, type,
                 "node type " + quoted(type) +
                     " is not modelled by the stand-in host; its nodes are skipped");
        skipUnmodelled(name, type);
        return true;
    }
    return createInHost(type, name, args);
}

bool SceneReader::createInHost(const std::string& type, const std::string& name,
                               const MaArguments& args) {
    std::string error;
    MObject object;
    if (const std::string* parentText = args.value("p")) {
        const std::string parentName = nodeNameOf(*parentText);
        if (isSkipped(parentName)) {
            skipUnmodelled(name, type);
            return true;
        }
        const SceneNode* parent = findNode(parentName);
        if (!parent) return fail("createNode: no parent node " + quoted(parentName));
        object = mayahost::createNode(type, name, parent->object, &error);
    } else {
        object = mayahost::createNode(type, name, &error);
    }
    if (object.isNull()) return fail("createNode: " + withoutPrefix(error, "createNode: "));
    const std::string key = name.empty() ? mayahost::nodeName(object) : name;
    SceneNode& entry = nodes[key] = describe(object, type);
    skippedNodes.erase(key);  // a name an earlier, skipped node had
    created.push_back(object);
    select(key);
    currentNode = &entry;
    return true;
}

void SceneReader::select(const std::string& node) {
    current = node;
    currentNode = nullptr;
}

// An unnamed node still takes the settings that follow it, so it gets a name no file can use.
void SceneReader::skipUnmodelled(const std::string& name, const std::string& type) {
    const std::string key = name.empty() ? "<unnamed " + type + ">" : name;
    skipNode(key);
    select(key);
}

bool SceneReader::selectCommand(const MaStatement& statement) {
    MaArguments args;
    const bool noExpand = args.parse(statement, {{"ne", "noExpand", false}}) && args.has("ne") &&
                          args.plain().size() == 1;
    if (!noExpand) return skipCommand(statement);
    const std::string& text = args.plain()[0].text;
    const std::string name = nodeNameOf(text);
    if (!isSkipped(name) && !missingDefaultNode(PlugPath{name, "", text[0] == ':'}) &&
        !findNode(name))
        return fail("select: no node " + quoted(name));
    select(name);
    return true;
}

// Maya's default nodes (":name") that the host does not have are skipped with what they carry.
bool SceneReader::missingDefaultNode(const PlugPath& path) {
    if (!path.rooted || findNode(path.node)) return false;
    warnOnce(warnedNodes, path.node,
             "node " + quoted(path.node) + " is not in the scene; its settings are skipped");
    skipNode(path.node);
    return true;
}

const SceneReader::SceneNode* SceneReader::findNode(const std::string& name) {
    auto found = nodes.find(name);
    if (found != nodes.end()) return &found->second;
    MObject object = mayahost::findNode(name);  // one of the nodes the host starts with
    if (object.isNull()) return nullptr;
    MFnDependencyNode node(object);
    return &(nodes[name] = describe(object, node.typeName().asChar()));
}

SceneReader::SceneNode SceneReader::describe(MObject object, const std::string& type) {
    auto traits = typeTraits.find(type);
    if (traits == typeTraits.end()) {
        mayahost::NodeTypeInfo info;
        mayahost::findNodeType(type, &info);
        traits =
            typeTraits.emplace(type, std::make_pair(info.pluginPath.empty(), info.isShape)).first;
    }
    MStatus isDag;
    MFnDagNode dag(object, &isDag);
    return SceneNode{object, type, traits->second.first, isDag == MStatus::kSuccess,
                     traits->second.second};
}

bool SceneReader::splitPlug(const std::string& text, PlugPath* path) {
    const size_t dot = text.find('.');
    if (dot == std::string::npos || dot + 1 == text.size())
        return fail(quoted(text) + " is not a plug name (node.attribute)");
    path->node = nodeNameOf(text.substr(0, dot));
    path->rooted = text[0] == ':';
    path->attribute = text.substr(dot + 1);
    return true;
}

bool SceneReader::missingAttribute(const SceneNode& node, const PlugPath& path, bool valueGiven,
                                   const std::string& context) {
    const std::string root = rootAttribute(path.attribute);
    if (valueGiven && !node.builtIn && !isInheritedAttribute(root, node.dag, node.shape))
        return fail(context + "node " + quoted(path.node) + " has no attribute " +
                    quoted(path.attribute));
    warnOnce(warnedAttributes, node.type + "." + root,
             "attribute " + quoted(root) + " is not modelled on " + quoted(node.type) +
                 " nodes; skipped");
    return true;
}

bool SceneReader::setAttrCommand(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"k", "keyable", true},
                                {"l", "lock", true},
                                {"cb", "channelBox", true},
                                {"ca", "caching", true},
                                {"s", "size", true},
                                {"ch", "capacityHint", true},
                                {"type", "type", true},
                                {"av", "alteredValue", false},
                                {"c", "clamp", false}}))
        return fail(args.error());
    if (args.plain().empty()) return fail("setAttr: no attribute given");
    const std::string& target = args.plain()[0].text;
    PlugPath path;
    if (!target.empty() && target[0] == '.') {
        if (current.empty()) return fail("setAttr " + quoted(target) + ": no node is selected");
        path = PlugPath{current, target.substr(1)};
    } else if (!splitPlug(target, &path)) {
        return false;
    }
    if (isSkipped(path.node) || addedAttributes.count({path.node, path.attribute})) return true;
    const bool selected = path.node == current;
    const SceneNode* node = selected && currentNode ? currentNode : findNode(path.node);
    if (!node) return fail("setAttr: no node " + quoted(path.node));
    if (selected) currentNode = node;  // the settings after a createNode are for that node
    SetAttrValue value;
    if (const std::string* type = args.value("type")) value.type = *type;
    value.words.assign(args.plain().begin() + 1, args.plain().end());
    const bool valueGiven = !value.type.empty() || !value.words.empty();
    MPlug plug = mayahost::findPlug(node->object, path.attribute);
    if (plug.isNull()) {
        const std::vector<MPlug> children = childrenOf(*node, path.attribute);
        if (children.empty()) return missingAttribute(*node, path, valueGiven);
        return !valueGiven || setCompound(*node, path, children, value);
    }
    if (!valueGiven) return true;  // only the attribute's flags: nothing the render sees
    mayahost::AttributeInfo info;
    mayahost::findAttribute(node->type, path.attribute, &info);
    const std::string problem =
        AttributeWriter(plug, info, path.node + "." + path.attribute).write(value);
    if (!problem.empty()) return fail(problem);
    // The time node's output is the scene time, as in a Maya file.
    if (node->type == "time" && info.longName == "outTime")
        mayahost::setCurrentTime(plug.asMTime());
    return true;
}

// The children the host keeps for a two- or three-part compound: t -> tx ty tz.
std::vector<MPlug> SceneReader::childrenOf(const SceneNode& node, const std::string& attribute) {
    std::vector<MPlug> children;
    for (const char* suffixes : {"XYZ", "xyz"}) {
        children.clear();
        for (size_t i = 0; i < 3; ++i) {
            MPlug child = mayahost::findPlug(node.object, attribute + suffixes[i]);
            if (child.isNull()) break;
            children.push_back(child);
        }
        if (children.size() >= 2) return children;
    }
    return {};
}

// A value for a compound the host keeps as its children: as many numbers as it has parts, with
// or without a numeric -type of that many parts ("double3").
bool SceneReader::setCompound(const SceneNode& node, const PlugPath& path,
                              const std::vector<MPlug>& children, const SetAttrValue& value) {
    const std::string plugName = path.node + "." + path.attribute;
    const size_t count = children.size();
    mayahost::AttributeInfo first;
    mayahost::findAttribute(node.type, children[0].partialName().asChar(), &first);
    const std::string expected =
        quoted(plugName) + " expects " + std::to_string(count) + " numbers (-type " +
        quoted(componentTypeName(first.numericType) + std::to_string(count)) + "), not ";
    if (!value.type.empty() && static_cast<size_t>(componentsOf(value.type)) != count)
        return fail(expected + "-type " + quoted(value.type));
    if (value.words.size() != count) return fail(expected + givenWords(value.words));
    for (size_t i = 0; i < count; ++i) {
        mayahost::AttributeInfo info;
        mayahost::findAttribute(node.type, children[i].partialName().asChar(), &info);
        const std::string problem =
            AttributeWriter(children[i], info, plugName).write({"", {value.words[i]}});
        if (!problem.empty()) return fail(problem);
    }
    return true;
}

bool SceneReader::connectAttrCommand(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"f", "force", false},
                                {"l", "lock", true},
                                {"na", "nextAvailable", false},
                                {"rd", "referenceDest", true}}))
        return fail(args.error());
    if (args.plain().size() != 2) return fail("connectAttr: expects a source and a destination");
    PlugPath from, to;
    if (!splitPlug(args.plain()[0].text, &from) || !splitPlug(args.plain()[1].text, &to))
        return false;
    if (isSkipped(from.node) || isSkipped(to.node)) return true;
    if (missingDefaultNode(from) || missingDefaultNode(to)) return true;
    const std::string what = "cannot connect " + quoted(args.plain()[0].text) + " to " +
                             quoted(args.plain()[1].text) + ": ";
    const SceneNode* source = findNode(from.node);
    const SceneNode* destination = findNode(to.node);
    if (!source || !destination)
        return fail(what + "no node " + quoted(source ? to.node : from.node));
    MPlug sourcePlug = mayahost::findPlug(source->object, from.attribute);
    if (sourcePlug.isNull()) return missingAttribute(*source, from, true, what);
    MPlug destinationPlug = mayahost::findPlug(destination->object, to.attribute);
    if (destinationPlug.isNull()) return missingAttribute(*destination, to, true, what);
    if (args.has("f")) {
        MPlugArray incoming;
        destinationPlug.connectedTo(incoming, true, false);
        for (unsigned int i = 0; i < incoming.length(); ++i)
            mayahost::disconnect(incoming[i], destinationPlug);
    }
    std::string error;
    if (mayahost::connect(sourcePlug, destinationPlug, &error) == MStatus::kSuccess) return true;
    return fail(what + withoutPrefix(error, "connect: "));
}

// Dynamic attributes are not modelled: their later values are skipped with them.
bool SceneReader::addAttrCommand(const MaStatement& statement) {
    const std::vector<MaWord>& words = statement.words;
    for (size_t i = 1; i + 1 < words.size(); ++i) {
        const std::string& flag = words[i].text;
        if (flag == "-ln" || flag == "-longName" || flag == "-sn" || flag == "-shortName")
            addedAttributes.insert({current, words[i + 1].text});
    }
    return skipCommand(statement);
}

}  // namespace xrvell
