#pragma once
#include <string>

namespace xrvell {

// A scene file read whole, and which file it is (to tell it from another path to the same file).
struct SceneFile {
    std::string text;
    unsigned long long device = 0;
    unsigned long long inode = 0;

    // False with `problem` set ("cannot read "PATH": reason") when the file cannot be read.
    // Only a regular file is read: a directory reads as nothing, a FIFO or device as whatever
    // happens to come.
    bool read(const std::string& path, std::string* problem);
};

}  // namespace xrvell
