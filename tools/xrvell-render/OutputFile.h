#pragma once
#include <string>

namespace xrvell {

// Writes a finished text whole or not at all: to standard output for "-", otherwise through a
// temporary file beside the target that is renamed over it.
class OutputFile {
public:
    explicit OutputFile(std::string path);

    // False with the reason when the text could not be written; no partial file is left.
    bool write(const std::string& text, std::string* error) const;

private:
    bool writeStandardOutput(const std::string& text, std::string* error) const;

    std::string path;
};

}  // namespace xrvell
