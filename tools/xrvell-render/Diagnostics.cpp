#include "Diagnostics.h"

#include <utility>

#include "VisibleText.h"

namespace xrvell {

Diagnostics::Diagnostics(std::string fileName, std::FILE* output, bool quietWarnings)
    : file(std::move(fileName)), stream(output), quiet(quietWarnings) {}

void Diagnostics::error(int line, const std::string& text) {
    ++errorCount;
    report(line, "error", text, true);
}

void Diagnostics::warning(int line, const std::string& text) {
    ++warningCount;
    report(line, "warning", text, !quiet);
}

// Scene text quoted in a message may hold any byte: each message stays one visible line.
void Diagnostics::report(int line, const char* kind, const std::string& text, bool show) {
    std::string formatted =
        VisibleText::of(file + ":" + std::to_string(line) + ": " + kind + ": " + text);
    if (stream && show) {
        formatted += '\n';
        std::fwrite(formatted.data(), 1, formatted.size(), stream);
        formatted.pop_back();
    }
    reported.push_back(std::move(formatted));
}

}  // namespace xrvell
