#include "ReadContext.h"

#include <mayahost/Host.h>

namespace xrvell {

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

std::string withoutPrefix(const std::string& text, const std::string& prefix) {
    return text.compare(0, prefix.size(), prefix) == 0 ? text.substr(prefix.size()) : text;
}

ReadContext::ReadContext(Diagnostics& report, std::vector<MObject>& created, std::string file,
                         std::string nameSpace)
    : diagnostics(report),
      createdNodes(created),
      fileName(file.empty() ? report.currentFile() : std::move(file)),
      space(std::move(nameSpace)) {}

bool ReadContext::fail(const std::string& text) {
    if (!failureKind.empty()) {
        warn(text, failureKind);
        return false;
    }
    diagnostics.setFile(fileName);
    diagnostics.error(line, text);
    return false;
}

void ReadContext::warn(const std::string& text, const std::string& kind) {
    diagnostics.setFile(fileName);
    diagnostics.warning(line, text, kind);
}

void ReadContext::note(const std::string& text) {
    diagnostics.setFile(fileName);
    diagnostics.note(line, text);
}

std::string ReadContext::sceneName(const std::string& written) const {
    if (space.empty()) return written;
    std::string name;
    size_t start = 0;
    for (;;) {
        const size_t bar = written.find('|', start);
        const std::string part = written.substr(start, bar - start);
        if (!part.empty()) name += part[0] == ':' ? part : space + ":" + part;
        if (bar == std::string::npos) return name;
        name += '|';
        start = bar + 1;
    }
}

bool ReadContext::findNode(const std::string& written, const std::string& missing, MObject* node) {
    const std::string name = sceneName(written);
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
    return fail(missing + quoted(written));
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
