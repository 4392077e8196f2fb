#include "IncludeGraph.h"

#include <regex>
#include <sstream>

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
    // Quoted includes count too: they reach the same header.
    static const std::regex include(R"(^\s*#\s*include\s*[<"]maya/([^>"]+)[>"])");
    std::vector<std::string> excess;
    std::istringstream lines(text);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        std::smatch match;
        if (!std::regex_search(line, match, include) || real->second.count(match[1])) continue;
        excess.push_back(header + ":" + std::to_string(number) + ": " + line + ": Maya 2022's " +
                         header + " does not include it");
    }
    return excess;
}
