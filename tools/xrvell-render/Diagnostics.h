#pragma once
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace xrvell {

// Problems found in a scene file, reported as "FILE:LINE: error: text" (or "warning:") on a
// stream and kept for whoever asks afterwards. Control characters in a report are shown as
// escapes (see VisibleText). Errors are shown as they are found. At the default verbosity (1)
// the warnings of one kind are held back and shown as one line when the reading ends, the first
// with a count of the others; verbosity 2 shows each warning as it comes, and notes besides;
// verbosity 0 shows errors only, though warnings are still counted. Only the first
// kShownErrors errors are shown; the others are counted. A line of 0 is the file as a whole
// ("FILE: warning: text").
class Diagnostics {
public:
    static constexpr int kShownErrors = 100;

    // A null stream only keeps the lines.
    Diagnostics(std::string file, std::FILE* stream, int verbosity = 1);

    void error(int line, const std::string& text);
    // Warnings of the same kind are told as one; a warning's text is its kind unless given.
    void warning(int line, const std::string& text, const std::string& kind = "");
    // What a closer look would want to know, at verbosity 2 only.
    void note(int line, const std::string& text);
    // Shows the warnings held back, in the order their kinds first came.
    void flush();

    // The file the lines given from now on are in, as messages name it: a scene names the
    // files it references.
    const std::string& currentFile() const { return file; }
    void setFile(std::string name) { file = std::move(name); }

    int errors() const { return errorCount; }
    int hiddenErrors() const { return errorCount > kShownErrors ? errorCount - kShownErrors : 0; }
    int warnings() const { return warningCount; }
    // The lines shown so far (at verbosity 0, what verbosity 1 would show).
    const std::vector<std::string>& lines() const { return reported; }

private:
    struct Held {
        std::string kind;
        std::string file;
        int line;
        std::string text;
        int more;
    };
    void report(const std::string& file, int line, const char* kind, const std::string& text,
                bool show);

    std::string file;
    std::FILE* stream;
    int verbosity;
    int errorCount = 0;
    int warningCount = 0;
    std::vector<Held> held;
    std::vector<std::string> reported;
};

}  // namespace xrvell
