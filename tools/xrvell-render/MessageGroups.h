#pragma once
#include <cstdio>
#include <string>
#include <unordered_map>
#include <vector>

namespace xrvell {

// The lines the host prints for the plug-ins' messages while it is in scope, where a bridge
// repeats its message at every frame. At verbosity 2 each line goes out as it comes; otherwise
// each distinct line goes out once, at flush(), with a count of its repeats, as the scene's
// warnings are told.
class MessageGroups {
public:
    MessageGroups(std::FILE* log, int verbosity);
    // Hands the host's lines back to standard error.
    ~MessageGroups();
    MessageGroups(const MessageGroups&) = delete;
    MessageGroups& operator=(const MessageGroups&) = delete;

    // Shows the lines held back, in the order they first came.
    void flush();

private:
    struct Group {
        std::string line;
        int more;
    };
    void take(const std::string& line);
    void show(const std::string& line) const;

    std::FILE* log;
    int verbosity;
    std::vector<Group> groups;
    std::unordered_map<std::string, size_t> groupOf;  // a line's place in `groups`
};

}  // namespace xrvell
