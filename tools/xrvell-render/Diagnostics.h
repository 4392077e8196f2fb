#pragma once
#include <cstdio>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace xrvell {

// Problems found in a scene file, reported as "FILE:LINE: error: text" (or "warning:") on a
// stream and kept for whoever asks afterwards. Control characters in a report are shown as
// escapes (see VisibleText). Errors are shown as they are found. At the default verbosity (1)
// the warnings of one kind are held back and shown as one line when the reading ends, the first
// with a count of the others; verbosity 2 shows each warning as it comes, and notes besides;
// verbosity 0 shows errors only, though warnings are still counted. Errors of one kind in a row
// (the lines written for a node that could not be made) are one line with a count, unless at
// verbosity 2. After kShownErrors error lines the errors are only counted. A line of 0 is the
// file as a whole ("FILE: warning: text").
class Diagnostics {
public:
    static constexpr int kShownErrors = 100;

    // A null stream only keeps the lines.
    Diagnostics(std::string file, std::FILE* stream, int verbosity = 1);

    void error(int line, const std::string& text, const std::string& kind = "");
    // Warnings of the same kind are told as one; a warning's text is its kind unless given.
    void warning(int line, const std::string& text, const std::string& kind = "");
    // What a closer look would want to know, at verbosity 2 only.
    void note(int line, const std::string& text);
    // Shows the errors and warnings held back, the warnings in the order their kinds first came.
    void flush();

    // The file the lines given from now on are in, as messages name it: a scene names the
    // files it references.
    const std::string& currentFile() const { return file; }
    void setFile(std::string name) { file = std::move(name); }

    int errors() const { return errorCount; }
    // The errors that no line shown stands for.
    int hiddenErrors() const { return errorCount - shownErrors; }
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
        int lastLine;
    };
    void showError(const Held& error);
    void showHeldError();
    void report(const std::string& file, int line, const char* kind, const std::string& text,
                bool show);

    std::string file;
    std::FILE* stream;
    int verbosity;
    int errorCount = 0;
    int errorLines = 0;
    int shownErrors = 0;
    int warningCount = 0;
    std::vector<Held> held;
    std::optional<Held> heldError;  // the first of the run of errors of one kind going on
    std::vector<std::string> reported;
};

}  // namespace xrvell
