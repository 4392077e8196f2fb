#include "Diagnostics.h"

#include <utility>

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

void Diagnostics::report(int line, const char* kind, const std::string& text, bool show) {
    std::string formatted = file + ":" + std::to_string(line) + ": " + kind + ": " + text;
    if (stream && show) std::fprintf(stream, "%s\n", formatted.c_str());
    reported.push_back(std::move(formatted));
}

}  // namespace xrvell
