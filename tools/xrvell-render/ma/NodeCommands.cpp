#include "NodeCommands.h"

#include <mayahost/Host.h>

#include <cctype>

#include "MaArguments.h"

namespace xrvell {
namespace {

// The name -n gives: ":name" is the same name in the root namespace.
std::string writtenName(const MaArguments& args) {
    const std::string* name = args.value("n");
    if (!name) return "";
    return !name->empty() && (*name)[0] == ':' ? name->substr(1) : *name;
}

std::string invalidName(const std::string& name) {
    return "createNode: " + quoted(name) +
           " is not a valid node name (letters, digits and '_', not starting with a digit; ':' "
           "between namespaces)";
}

}  // namespace

static bool isNamePart(const std::string& part) {
    if (part.empty() || std::isdigit(static_cast<unsigned char>(part[0]))) return false;
    for (char c : part)
        if (!std::isalnum(static_cast<unsigned char>(c)) && c != '_') return false;
    return true;
}

// Maya's node names: letters, digits and '_', not starting with a digit, with ':' between
// namespaces. Anything else would also break the .vrscene the name is written into.
bool NodeCommands::isNodeName(const std::string& name) {
    size_t start = 0;
    for (;;) {
        const size_t colon = name.find(':', start);
        if (!isNamePart(name.substr(start, colon - start))) return false;
        if (colon == std::string::npos) return true;
        start = colon + 1;
    }
}

NodeCommands::NodeCommands(ReadContext& shared, NodeTypeRules& typeRules)
    : context(shared), rules(typeRules) {}

void NodeCommands::refuseType(const std::string& type, const std::string& problem) {
    rules.refused[type] = problem;
}

bool NodeCommands::createNode(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"n", "name", true},
                                {"p", "parent", true},
                                {"s", "shared", false},
                                {"ss", "skipSelect", false}}))
        return context.fail(args.error());
    if (args.plain().size() != 1) return context.fail("createNode: expects one node type");
    const std::string& type = args.plain()[0].text;
    const std::string written = writtenName(args);
    if (!written.empty() && !isNodeName(written)) return context.fail(invalidName(written));
    const std::string name = inNamespace(args);
    const std::string* parentName = args.value("p");
    if (args.has("s") && !name.empty() && selectShared(parentName, name, written)) return true;
    MObject parent;
    if (parentName && !context.findNode(*parentName, "createNode: no parent node ", &parent))
        return false;
    if (!mayahost::findNodeType(type)) return createUnknown(type, name, parent);
    std::string error;
    const MObject node = parentName ? mayahost::createNode(type, name, parent, &error)
                                    : mayahost::createNode(type, name, &error);
    if (node.isNull()) return context.fail("createNode: " + withoutPrefix(error, "createNode: "));
    return adopt(node, name);
}

// The name -n gives, in the file's namespace unless written from the root.
std::string NodeCommands::inNamespace(const MaArguments& args) const {
    const std::string* name = args.value("n");
    if (!name || name->empty()) return "";
    return (*name)[0] == ':' ? name->substr(1) : context.sceneName(*name);
}

// A shared node the scene already has, such as Maya's default cameras, is only selected; a
// referenced file shares them with the scene.
bool NodeCommands::selectShared(const std::string* parentName, const std::string& name,
                                const std::string& written) {
    const std::string path = parentName ? context.sceneName(*parentName) + "|" + name : name;
    MObject existing = mayahost::findNode(path);
    if (existing.isNull() && !parentName && name != written) existing = mayahost::findNode(written);
    if (existing.isNull()) return false;
    context.select(existing, name);
    return true;
}

bool NodeCommands::createUnknown(const std::string& type, const std::string& name,
                                 const MObject& parent) {
    const auto refused = rules.refused.find(type);
    if (refused != rules.refused.end()) return context.fail(refused->second);
    if (rules.noted.insert(type).second)
        context.note("node type " + quoted(type) +
                     " is not modelled by the host; its nodes are kept as unknown nodes");
    std::string error;
    const MObject node = mayahost::createUnknownNode(type, name, parent, &error);
    if (node.isNull()) return context.fail("createNode: " + error);
    return adopt(node, name);
}

// A new node is the scene's, and the settings that follow it are for it.
bool NodeCommands::adopt(const MObject& node, const std::string& name) {
    context.created(node);
    context.select(node, name.empty() ? mayahost::nodeName(node) : name);
    return true;
}

// "select -ne NODE" makes the settings that follow apply to NODE; other selections change
// nothing that is rendered.
bool NodeCommands::select(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"ne", "noExpand", false},
                                {"r", "replace", false},
                                {"add", "add", false},
                                {"af", "addFirst", false},
                                {"d", "deselect", false},
                                {"cl", "clear", false},
                                {"all", "all", false},
                                {"hi", "hierarchy", false}}))
        return context.fail(args.error());
    if (!args.has("ne") || args.plain().size() != 1) return true;
    const std::string& name = args.plain()[0].text;
    MObject node;
    if (!context.findNode(name, "select: no node ", &node)) return false;
    context.select(node, name[0] == ':' ? name.substr(1) : name);
    return true;
}

// parent [-r] [-a] [-s] [-nc] [-w] CHILD... [PARENT]: moves nodes in the DAG. Instances
// (-add) are not modelled.
bool NodeCommands::parent(const MaStatement& statement) {
    MaArguments args;
    if (!args.parse(statement, {{"r", "relative", false},
                                {"a", "absolute", false},
                                {"s", "shape", false},
                                {"nc", "noConnections", false},
                                {"w", "world", false},
                                {"add", "addObject", false},
                                {"rm", "removeObject", false}}))
        return context.fail(args.error());
    if (args.has("add") || args.has("rm")) {
        context.warn("\"parent -add\": instances are not modelled; skipped");
        return true;
    }
    const auto& words = args.plain();
    const bool toWorld = args.has("w");
    if (words.size() < (toWorld ? 1u : 2u))
        return context.fail("parent: expects a node and a parent");
    MObject parent;
    if (!toWorld && !context.findNode(words.back().text, "parent: no node ", &parent)) return false;
    const size_t children = toWorld ? words.size() : words.size() - 1;
    for (size_t i = 0; i < children; ++i) {
        MObject child;
        if (!context.findNode(words[i].text, "parent: no node ", &child)) return false;
        std::string error;
        if (mayahost::parentNode(child, parent, &error) != MStatus::kSuccess)
            return context.fail(error);
    }
    return true;
}

}  // namespace xrvell
