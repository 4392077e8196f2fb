#pragma once
#include <chrono>
#include <cstdio>

namespace xrvell {

// "frame 12 of 240" on one line of a terminal, rewritten in place, for jobs that run long
// enough to need it; cleared when the job ends.
class ProgressLine {
public:
    // Shows nothing unless enabled (a terminal, not asked to be quiet).
    ProgressLine(std::FILE* stream, bool enabled);
    ~ProgressLine();

    void update(size_t done, size_t total);
    void finish();

private:
    std::FILE* stream;
    bool enabled;
    bool shown = false;
    std::chrono::steady_clock::time_point started;
    std::chrono::steady_clock::time_point lastShown;
};

}  // namespace xrvell
