#include "Diagnostics.h"

#include <utility>

#include "VisibleText.h"

namespace xrvell {

Diagnostics::Diagnostics(std::string fileName, std::FILE* output, int level)
    : file(std::move(fileName)), stream(output), verbosity(level) {}

// An error of a kind is held until the next error of another shows where its run ends.
void Diagnostics::error(int line, const std::string& text, const std::string& kind) {
    ++errorCount;
    const bool runs = !kind.empty() && verbosity < 2;
    if (runs && heldError && heldError->kind == kind) {
        ++heldError->more;
        heldError->lastLine = line;
        return;
    }
    showHeldError();
    const Held error{kind, file, line, text, 0, line};
    if (runs)
        heldError = error;
    else
        showError(error);
}

void Diagnostics::showHeldError() {
    if (heldError) showError(*heldError);
    heldError.reset();
}

void Diagnostics::showError(const Held& error) {
    if (errorLines == kShownErrors) return;
    ++errorLines;
    shownErrors += 1 + error.more;
    std::string text = error.text;
    if (error.more > 0)
        text += " (and " + std::to_string(error.more) + " more like it, to line " +
                std::to_string(error.lastLine) + "; -v 2 lists each)";
    report(error.file, error.line, "error", text, true);
}

void Diagnostics::warning(int line, const std::string& text, const std::string& kind) {
    ++warningCount;
    if (verbosity >= 2) return report(file, line, "warning", text, true);
    const std::string& key = kind.empty() ? text : kind;
    for (Held& same : held) {
        if (same.kind == key) {
            ++same.more;
            return;
        }
    }
    held.push_back(Held{key, file, line, text, 0, line});
}

void Diagnostics::note(int line, const std::string& text) {
    if (verbosity >= 2) report(file, line, "note", text, true);
}

void Diagnostics::flush() {
    showHeldError();
    for (const Held& warning : held) {
        std::string text = warning.text;
        if (warning.more > 0)
            text += " (and " + std::to_string(warning.more) + " more like it; -v 2 lists each)";
        report(warning.file, warning.line, "warning", text, verbosity >= 1);
    }
    held.clear();
}

// Scene text quoted in a message may hold any byte: each message stays one visible line.
void Diagnostics::report(const std::string& fileName, int line, const char* kind,
                         const std::string& text, bool show) {
    const std::string where = line > 0 ? fileName + ":" + std::to_string(line) : fileName;
    std::string formatted = VisibleText::of(where + ": " + kind + ": " + text);
    if (stream && show) {
        formatted += '\n';
        std::fwrite(formatted.data(), 1, formatted.size(), stream);
        formatted.pop_back();
    }
    reported.push_back(std::move(formatted));
}

}  // namespace xrvell
