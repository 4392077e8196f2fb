#include "Names.h"

#include <cctype>

#include "HostState.h"

namespace mayahost {
namespace detail {
namespace {

bool nameTaken(const std::string& name, const NodeObj* parent, bool anywhere) {
    const auto range = state().nodesByName.equal_range(name);
    for (auto it = range.first; it != range.second; ++it)
        if (anywhere || it->second->parent == parent) return true;
    return false;
}

// "|a|b" -> {"a", "b"}; ":time1" -> {"time1"}: the root namespace is where names live anyway.
std::vector<std::string> pathParts(const std::string& path) {
    std::vector<std::string> parts;
    size_t start = path.empty() || path[0] != '|' ? 0 : 1;
    for (;;) {
        const size_t bar = path.find('|', start);
        std::string part = path.substr(start, bar == std::string::npos ? bar : bar - start);
        if (!part.empty() && part[0] == ':') part.erase(0, 1);
        parts.push_back(part);
        if (bar == std::string::npos) return parts;
        start = bar + 1;
    }
}

// Whether the node and its parents, read upwards, are the path's parts read backwards.
bool endsWithPath(const NodeObj& node, const std::vector<std::string>& parts, bool fromWorld) {
    const NodeObj* at = &node;
    for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
        if (!at || at->name != *part) return false;
        if (part + 1 != parts.rend() && !at->type->isDag) return false;
        at = at->parent;
    }
    return !fromWorld || at == nullptr;
}

}  // namespace

std::string freeName(const std::string& requested, const std::string& typeName,
                     const NodeObj* parent) {
    if (!requested.empty() && !nameTaken(requested, parent, false)) return requested;
    // A name Maya makes up itself is unique in the whole scene.
    const bool anywhere = requested.empty();
    std::string stem = anywhere ? typeName : requested;
    size_t digits = stem.size();
    while (digits > 0 && std::isdigit(static_cast<unsigned char>(stem[digits - 1]))) --digits;
    // "grp7" taken goes on from 8, as Maya counts on from the number a name ends in.
    const std::string written = stem.substr(digits, 9);
    long long number = written.empty() ? 1 : std::stoll(written) + 1;
    stem.erase(digits);
    for (;; ++number) {
        const std::string candidate = stem + std::to_string(number);
        if (!nameTaken(candidate, parent, anywhere)) return candidate;
    }
}

void addName(NodeObj& node) { state().nodesByName.emplace(node.name, &node); }

void removeName(NodeObj& node) {
    auto& names = state().nodesByName;
    const auto range = names.equal_range(node.name);
    for (auto it = range.first; it != range.second; ++it) {
        if (it->second == &node) {
            names.erase(it);
            return;
        }
    }
}

std::vector<NodeObj*> nodesNamed(const std::string& name) {
    std::vector<NodeObj*> found;
    if (name.empty()) return found;
    const std::vector<std::string> parts = pathParts(name);
    const bool fromWorld = name[0] == '|';
    const auto range = state().nodesByName.equal_range(parts.back());
    for (auto it = range.first; it != range.second; ++it)
        if (endsWithPath(*it->second, parts, fromWorld)) found.push_back(it->second);
    return found;
}

std::string partialPathName(const NodeObj& node) {
    std::string path = node.name;
    for (const NodeObj* above = node.parent;; above = above->parent) {
        if (nodesNamed(path).size() <= 1) return path;
        if (!above) return "|" + path;
        path = above->name + "|" + path;
    }
}

}  // namespace detail
}  // namespace mayahost
