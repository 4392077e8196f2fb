#include "ProgressLine.h"

namespace xrvell {
namespace {

// Quick jobs show no progress at all; long ones refresh it a few times a second.
const std::chrono::milliseconds kFirstAfter(1000);
const std::chrono::milliseconds kEvery(200);

}  // namespace

ProgressLine::ProgressLine(std::FILE* output, bool show)
    : stream(output), enabled(show), started(std::chrono::steady_clock::now()) {}

ProgressLine::~ProgressLine() { finish(); }

void ProgressLine::update(size_t done, size_t total) {
    if (!enabled) return;
    const auto now = std::chrono::steady_clock::now();
    if (now - started < kFirstAfter || (shown && now - lastShown < kEvery)) return;
    std::fprintf(stream, "\rxrvell-render: frame %zu of %zu", done, total);
    std::fflush(stream);
    shown = true;
    lastShown = now;
}

void ProgressLine::finish() {
    if (!shown) return;
    std::fputs("\r\033[K", stream);  // back to the line's start, and clear it
    std::fflush(stream);
    shown = false;
}

}  // namespace xrvell
