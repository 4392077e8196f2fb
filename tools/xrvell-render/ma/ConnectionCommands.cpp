#include "ConnectionCommands.h"

#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <mayahost/Host.h>

#include "MaArguments.h"

namespace xrvell {
namespace {

bool fromPlugIn(const MObject& node) {
    mayahost::NodeTypeInfo info;
    MObject handle = node;
    return mayahost::findNodeType(mayahost::realTypeName(handle), &info) &&
           !info.pluginPath.empty();
}

}  // namespace

ConnectionCommands::ConnectionCommands(ReadContext& shared) : context(shared) {}

// What a failed command says first: "cannot connect "a.o" to "b.i": ".
std::string ConnectionCommands::what(const char* command, const End& from, const End& to) {
    const bool connecting = std::string(command) == "connectAttr";
    return std::string(connecting ? "cannot connect " : "cannot disconnect ") +
           quoted(from.written) + (connecting ? " to " : " from ") + quoted(to.written) + ": ";
}

bool ConnectionCommands::ends(const MaStatement& statement, const char* command, End* from, End* to,
                              bool* force) {
    MaArguments args;
    if (!args.parse(statement, {{"f", "force", false},
                                {"l", "lock", true},
                                {"na", "nextAvailable", false},
                                {"rd", "referenceDest", true}}))
        return context.fail(args.error());
    if (args.plain().size() != 2)
        return context.fail(std::string(command) + ": expects a source and a destination");
    from->written = args.plain()[0].text;
    to->written = args.plain()[1].text;
    *force = args.has("f");
    if (!context.splitPlug(from->written, &from->text) ||
        !context.splitPlug(to->written, &to->text))
        return false;
    const std::string failure = what(command, *from, *to);
    return context.findNode(from->text.node, failure + "no node ", &from->node) &&
           context.findNode(to->text.node, failure + "no node ", &to->node);
}

bool ConnectionCommands::connectAttr(const MaStatement& statement) {
    End from, to;
    bool force = false;
    if (!ends(statement, "connectAttr", &from, &to, &force)) return false;
    MPlug source = mayahost::findPlug(from.node, from.text.attribute);
    MPlug destination = mayahost::findPlug(to.node, to.text.attribute);
    if (source.isNull() || destination.isNull())
        return keep(from, to, what("connectAttr", from, to));
    if (force) {
        MPlugArray incoming;
        destination.connectedTo(incoming, true, false);
        for (unsigned int i = 0; i < incoming.length(); ++i)
            mayahost::disconnect(incoming[i], destination);
    }
    std::string error;
    if (mayahost::connect(source, destination, &error) == MStatus::kSuccess) return true;
    return context.fail(what("connectAttr", from, to) + withoutPrefix(error, "connect: "));
}

// A plug-in node's setting driven by a node that never evaluates (an animation curve, an
// expression) keeps the value the scene set: the render would differ from Maya's.
bool ConnectionCommands::keep(const End& from, const End& to, const std::string& what) {
    for (const End* end : {&from, &to}) {
        if (mayahost::findPlug(end->node, end->text.attribute).isNull() &&
            !mayahost::keepsAttribute(end->node, end->text.attribute))
            return context.fail(what + "node " + quoted(end->text.node) + " has no attribute " +
                                quoted(end->text.attribute));
    }
    std::string error;
    if (mayahost::keepConnection(from.node, from.text.attribute, to.node, to.text.attribute,
                                 &error) != MStatus::kSuccess)
        return context.fail(what + withoutPrefix(error, "connect: "));
    if (!mayahost::findPlug(to.node, to.text.attribute).isNull() && fromPlugIn(to.node))
        context.warn(quoted(to.text.node + "." + to.text.attribute) + " is driven by " +
                         quoted(from.text.node) + " (" + mayahost::realTypeName(from.node) +
                         "), which the host does not evaluate; the value set in the scene is used",
                     "driven by an unevaluated node");
    return true;
}

bool ConnectionCommands::disconnectAttr(const MaStatement& statement) {
    End from, to;
    bool force = false;
    if (!ends(statement, "disconnectAttr", &from, &to, &force)) return false;
    MPlug source = mayahost::findPlug(from.node, from.text.attribute);
    MPlug destination = mayahost::findPlug(to.node, to.text.attribute);
    if (source.isNull() || destination.isNull()) return true;  // kept ends carry nothing
    std::string error;
    if (mayahost::disconnect(source, destination, &error) == MStatus::kSuccess) return true;
    return context.fail(what("disconnectAttr", from, to) + withoutPrefix(error, "disconnect: "));
}

}  // namespace xrvell
