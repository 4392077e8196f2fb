#include "AttributeCommands.h"

#include <maya/MFnDependencyNode.h>
#include <maya/MFnNumericData.h>
#include <maya/MTime.h>
#include <mayahost/Host.h>

#include "MaArguments.h"

namespace xrvell {
namespace {

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

std::string typeOf(const MObject& node) {
    MObject handle = node;
    return MFnDependencyNode(handle).typeName().asChar();
}

// The children the host keeps for a two- or three-part compound: t -> tx ty tz.
std::vector<MPlug> childrenOf(const MObject& node, const std::string& attribute) {
    std::vector<MPlug> children;
    for (const char* suffixes : {"XYZ", "xyz"}) {
        children.clear();
        for (size_t i = 0; i < 3; ++i) {
            MPlug child = mayahost::findPlug(node, attribute + suffixes[i]);
            if (child.isNull()) break;
            children.push_back(child);
        }
        if (children.size() >= 2) return children;
    }
    return {};
}

// A value as the scene wrote it, quoted words quoted again.
std::string writtenValue(const SetAttrValue& value) {
    std::string text = value.type.empty() ? "" : "-type " + quoted(value.type);
    for (const MaWord& word : value.words) {
        if (!text.empty()) text += ' ';
        text += word.quoted ? quoted(word.text) : word.text;
    }
    return text;
}

}  // namespace

AttributeCommands::AttributeCommands(ReadContext& shared) : context(shared) {}

// ".attr" is an attribute of the selected node; "node.attr" names its node.
bool AttributeCommands::target(const std::string& text, MObject* node, PlugText* plug) {
    if (!text.empty() && text[0] == '.') {
        if (context.selected().isNull()) return context.failUnselected("setAttr " + quoted(text));
        *node = context.selected();
        *plug = PlugText{context.selectedName(), text.substr(1)};
        return true;
    }
    return context.splitPlug(text, plug) && context.findNode(plug->node, "setAttr: no node ", node);
}

bool AttributeCommands::setAttr(const MaStatement& statement) {
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
        return context.fail(args.error());
    if (args.plain().empty()) return context.fail("setAttr: no attribute given");
    MObject node;
    PlugText plug;
    if (!target(args.plain()[0].text, &node, &plug)) return false;
    SetAttrValue value;
    if (const std::string* type = args.value("type")) value.type = *type;
    value.words.assign(args.plain().begin() + 1, args.plain().end());
    const bool valueGiven = !value.type.empty() || !value.words.empty();
    MPlug found = mayahost::findPlug(node, plug.attribute);
    if (found.isNull()) {
        const std::vector<MPlug> children = childrenOf(node, plug.attribute);
        if (!children.empty()) return !valueGiven || setCompound(node, plug, children, value);
        return keep(node, plug, value);
    }
    if (!valueGiven) return true;  // only the attribute's flags: nothing the render sees
    mayahost::AttributeInfo info;
    const std::string type = typeOf(node);
    mayahost::findAttribute(type, plug.attribute, &info);
    const std::string problem =
        AttributeWriter(found, info, plug.node + "." + plug.attribute).write(value);
    if (!problem.empty()) return context.fail(problem);
    // The time node's output is the scene time, as in a Maya file.
    if (type == "time" && info.longName == "outTime") mayahost::setCurrentTime(found.asMTime());
    return true;
}

bool AttributeCommands::keep(const MObject& node, const PlugText& plug, const SetAttrValue& value) {
    if (!mayahost::keepsAttribute(node, plug.attribute))
        return context.fail("node " + quoted(plug.node) + " has no attribute " +
                            quoted(plug.attribute));
    if (!value.type.empty() || !value.words.empty())
        mayahost::keepValue(node, plug.attribute, writtenValue(value));
    return true;
}

// A value for a compound the host keeps as its children: as many numbers as it has parts, with
// or without a numeric -type of that many parts ("double3").
bool AttributeCommands::setCompound(const MObject& node, const PlugText& plug,
                                    const std::vector<MPlug>& children, const SetAttrValue& value) {
    const std::string plugName = plug.node + "." + plug.attribute;
    const std::string type = typeOf(node);
    const size_t count = children.size();
    mayahost::AttributeInfo first;
    mayahost::findAttribute(type, children[0].partialName().asChar(), &first);
    const std::string expected =
        quoted(plugName) + " expects " + std::to_string(count) + " numbers (-type " +
        quoted(componentTypeName(first.numericType) + std::to_string(count)) + "), not ";
    if (!value.type.empty() && static_cast<size_t>(componentsOf(value.type)) != count)
        return context.fail(expected + "-type " + quoted(value.type));
    if (value.words.size() != count) return context.fail(expected + givenWords(value.words));
    for (size_t i = 0; i < count; ++i) {
        mayahost::AttributeInfo info;
        mayahost::findAttribute(type, children[i].partialName().asChar(), &info);
        const std::string problem =
            AttributeWriter(children[i], info, plugName).write({"", {value.words[i]}});
        if (!problem.empty()) return context.fail(problem);
    }
    return true;
}

// An added attribute is kept without a model, with the values later set on it. The node is
// the one named last, or the selected one.
bool AttributeCommands::addAttr(const MaStatement& statement) {
    std::string longName, shortName;
    const std::vector<MaWord>& words = statement.words;
    std::vector<const MaWord*> plain;
    for (size_t i = 1; i < words.size(); ++i) {
        const std::string& word = words[i].text;
        const bool flag = !words[i].quoted && word.size() > 1 && word[0] == '-' &&
                          std::isalpha(static_cast<unsigned char>(word[1]));
        if (!flag) {
            plain.push_back(&words[i]);
            continue;
        }
        const bool boolean = word == "-ci" || word == "-cachedInternally" || word == "-h" ||
                             word == "-hidden" || word == "-k" || word == "-keyable" ||
                             word == "-m" || word == "-multi" || word == "-uac" ||
                             word == "-usedAsColor" || word == "-im" || word == "-internalSet";
        if (boolean && (i + 1 >= words.size() || words[i + 1].quoted ||
                        (words[i + 1].text != "true" && words[i + 1].text != "false")))
            continue;
        if (i + 1 >= words.size())
            return context.fail("addAttr: flag " + quoted(word) + " needs a value");
        const std::string& next = words[++i].text;
        if (word == "-ln" || word == "-longName") longName = next;
        if (word == "-sn" || word == "-shortName") shortName = next;
    }
    if (longName.empty()) return context.fail("addAttr: no attribute name (-ln) given");
    MObject node = context.selected();
    if (!plain.empty() && !context.findNode(plain.back()->text, "addAttr: no node ", &node))
        return false;
    if (node.isNull()) return context.failUnselected("addAttr");
    mayahost::addKeptAttribute(node, longName, shortName);
    return true;
}

}  // namespace xrvell
