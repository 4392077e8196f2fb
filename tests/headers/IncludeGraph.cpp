#include "IncludeGraph.h"

#include <algorithm>
#include <cctype>
#include <sstream>

namespace {

// The NAME of "#include <maya/NAME>" or "#include "maya/NAME"" (with or without spaces around
// its parts); empty for any other line. Quoted includes reach the same header.
std::string mayaInclude(std::string line) {
    line.erase(
        std::remove_if(line.begin(), line.end(), [](unsigned char c) { return std::isspace(c); }),
        line.end());
    const std::string directive = "#include";
    if (line.compare(0, directive.size(), directive) != 0) return "";
    const std::string target = line.substr(directive.size());
    const char close = target.empty() ? 0 : target[0] == '<' ? '>' : target[0] == '"' ? '"' : 0;
    if (!close || target.compare(1, 5, "maya/") != 0) return "";
    const std::size_t end = target.find(close, 6);
    return end == std::string::npos ? "" : target.substr(6, end - 6);
}

}  // namespace

IncludeGraph::IncludeGraph(const std::string& text) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t colon = line.find(':');
        if (line.empty() || line[0] == '#' || colon == std::string::npos) continue;
        std::set<std::string>& included = fIncludes[line.substr(0, colon)];
        std::istringstream names(line.substr(colon + 1));
        for (std::string name; names >> name;) included.insert(name);
    }
}

std::vector<std::string> IncludeGraph::excessIncludes(const std::string& header,
                                                      const std::string& text) const {
    const auto real = fIncludes.find(header);
    if (real == fIncludes.end()) return {header + ": Maya 2022 has no header of this name"};
    std::vector<std::string> excess;
    std::istringstream lines(text);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        const std::string included = mayaInclude(line);
        if (included.empty() || real->second.count(included)) continue;
        excess.push_back(header + ":" + std::to_string(number) + ": " + line + ": Maya 2022's " +
                         header + " does not include it");
    }
    return excess;
}
