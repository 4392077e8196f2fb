#pragma once
#include <string>
#include <string_view>

namespace xrvell {

// Where a .vrscene goes. A regular file (or a new one) is written whole or not at all: into a
// temporary file made beside it (beside the real file, for a symbolic link) that replaces it
// when the text is complete. Standard output ("-") and a target that exists but is not a
// regular file (a device, a FIFO) are written in place, as the text comes.
class OutputFile {
public:
    explicit OutputFile(std::string path);
    // Without a commit, the temporary file goes and the target stays as it was.
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    // Each step is false with the reason when it fails.
    bool open(std::string* error);
    bool write(std::string_view text, std::string* error);
    bool commit(std::string* error);

    // Whether text written so far is already visible at the target.
    bool writesInPlace() const { return inPlace; }
    // Whether a write failed because the reader of a pipe closed its end (a pipe into head).
    bool readerGone() const { return closedByReader; }

private:
    bool openInPlace(const std::string& target, std::string* error);
    bool openTemporary(const std::string& target, unsigned int mode, std::string* error);
    bool closeFile(std::string* error);
    void abandon();

    std::string path;
    std::string target;     // the path with symbolic links followed
    std::string temporary;  // empty unless writing through a temporary file
    int fd = -1;
    bool inPlace = false;
    bool committed = false;
    bool closedByReader = false;
};

}  // namespace xrvell
