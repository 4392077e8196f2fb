#include "MessageGroups.h"

#include <mayahost/Host.h>

namespace xrvell {

MessageGroups::MessageGroups(std::FILE* output, int level) : log(output), verbosity(level) {
    mayahost::setMessageEcho([this](const std::string& line) { take(line); });
}

// After an exception too, the lines held back are shown.
MessageGroups::~MessageGroups() {
    mayahost::setMessageEcho(nullptr);
    flush();
}

void MessageGroups::take(const std::string& line) {
    if (verbosity >= 2) return show(line);
    const auto found = groupOf.emplace(line, groups.size());
    if (found.second)
        groups.push_back(Group{line, 0});
    else
        ++groups[found.first->second].more;
}

void MessageGroups::flush() {
    for (const Group& group : groups) {
        if (group.more == 0) {
            show(group.line);
            continue;
        }
        show(group.line + " (and " + std::to_string(group.more) +
             " more like it; -v 2 lists each)");
    }
    groups.clear();
    groupOf.clear();
}

void MessageGroups::show(const std::string& line) const {
    std::fwrite(line.data(), 1, line.size(), log);
    std::fputc('\n', log);
}

}  // namespace xrvell
