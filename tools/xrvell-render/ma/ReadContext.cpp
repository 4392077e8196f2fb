#include "ReadContext.h"

#include <mayahost/Host.h>

namespace xrvell {

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

std::string withoutPrefix(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0 ? text.substr(prefix.size()) : text;
}

ReadContext::ReadContext(Diagnostics& report) : diagnostics(report) {}

bool ReadContext::fail(const std::string& text) {
    diagnostics.error(line, text);
    return false;
}

void ReadContext::warn(const std::string& text, const std::string& kind) {
    diagnostics.warning(line, text, kind);
}

void ReadContext::note(const std::string& text) { diagnostics.note(line, text); }

bool ReadContext::findNode(const std::string& name, const std::string& missing, MObject* node) {
    std::string error;
    *node = mayahost::findNode(name, &error);
    if (!node->isNull()) return true;
    const bool ambiguous = error.compare(0, 4, "More") == 0;
    if (ambiguous) return fail(error);
    const bool defaultNode =
        name.size() > 1 && name[0] == ':' && name.find_first_of("|:", 1) == std::string::npos;
    if (defaultNode) {
        *node = mayahost::createUnknownNode("", name.substr(1));
        note("Maya's default node " + quoted(name.substr(1)) +
             " is not modelled by the host; it is kept as an unknown node");
        return true;
    }
    return fail(missing + quoted(name));
}

bool ReadContext::splitPlug(const std::string& text, PlugText* plug) {
    const size_t dot = text.find('.');
    if (dot == std::string::npos || dot == 0 || dot + 1 == text.size())
        return fail(quoted(text) + " is not a plug name (node.attribute)");
    plug->node = text.substr(0, dot);
    plug->attribute = text.substr(dot + 1);
    return true;
}

void ReadContext::select(const MObject& node, const std::string& name) {
    selectedNode = node;
    selectedText = name;
    unselectedBy.clear();
}

void ReadContext::unselect(const std::string& why) {
    select(MObject(), "");
    unselectedBy = why;
}

bool ReadContext::failUnselected(const std::string& what) {
    const std::string why = unselectedBy.empty() ? "" : " (" + unselectedBy + ")";
    diagnostics.error(line, what + ": no node is selected" + why, unselectedBy);
    return false;
}

}  // namespace xrvell
