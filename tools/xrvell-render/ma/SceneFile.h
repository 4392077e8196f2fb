#pragma once
#include <string>
#include <string_view>

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

    // Why the file at `path`, which holds `text`, cannot be read as Maya ASCII when its first
    // bytes show it is something else (a binary Maya file, a gzip file, UTF-16 text): one
    // sentence naming the file. Empty for anything else. The caller decides whether it is an
    // error or a warning.
    static std::string notMayaAscii(const std::string& path, std::string_view text);
};

}  // namespace xrvell
