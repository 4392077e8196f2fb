#pragma once
#include <string>
#include <vector>

// What one run of a program gave back.
struct ToolResult {
    int status = -1;  // exit status; -1 when it did not exit normally
    std::string out;
    std::string err;
};

// Runs a program in a directory with its output captured, with an environment free of the
// search path variables unless the test sets them.
class ToolRun {
public:
    static ToolResult run(const std::vector<std::string>& args, const std::string& directory,
                          const std::vector<std::string>& environment = {});
};
