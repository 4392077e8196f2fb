#pragma once
#include <set>
#include <string>
#include <vector>

namespace xrvell {

// Maya's plug-in path: the directories a scene's "requires" commands load plug-ins from.
class PluginPath {
public:
    explicit PluginPath(std::vector<std::string> directories);

    // Directories of a ':'-separated list, empty entries left out.
    static std::vector<std::string> split(const std::string& list);

    // Loads NAME.so (or NAME, when it ends in ".so") from the first directory that holds it;
    // returns why it could not, or nothing. A file already loaded, under whatever name, is not
    // loaded again.
    std::string require(const std::string& name);
    const std::vector<std::string>& directories() const { return searched; }
    // The files loaded so far, in load order.
    const std::vector<std::string>& loadedFiles() const { return files; }

private:
    std::string searchedText() const;
    static std::string resolved(const std::string& path);

    std::vector<std::string> searched;
    std::set<std::string> loaded;  // the real paths of the files loaded
    std::vector<std::string> files;
};

}  // namespace xrvell
