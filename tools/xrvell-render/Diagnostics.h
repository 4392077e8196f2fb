#pragma once
#include <cstdio>
#include <string>
#include <vector>

namespace xrvell {

// Problems found in a scene file, reported as "FILE:LINE: error: text" (or "warning:") on a
// stream as they are found and kept for whoever asks afterwards. Control characters in a
// report are shown as escapes (see VisibleText).
class Diagnostics {
public:
    // A null stream only keeps the lines; quiet drops warnings from the stream, not the count.
    Diagnostics(std::string file, std::FILE* stream, bool quiet = false);

    void error(int line, const std::string& text);
    void warning(int line, const std::string& text);

    int errors() const { return errorCount; }
    int warnings() const { return warningCount; }
    const std::vector<std::string>& lines() const { return reported; }

private:
    void report(int line, const char* kind, const std::string& text, bool show);

    std::string file;
    std::FILE* stream;
    bool quiet;
    int errorCount = 0;
    int warningCount = 0;
    std::vector<std::string> reported;
};

}  // namespace xrvell
