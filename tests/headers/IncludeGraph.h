#pragma once
// Which <maya/...> headers each Maya header includes itself, and the stand-in header lines that
// include more than that.
#include <map>
#include <set>
#include <string>
#include <vector>

class IncludeGraph {
public:
    // Lines "HEADER: INCLUDED INCLUDED ..."; blank lines and lines starting with '#' are skipped.
    explicit IncludeGraph(const std::string& text);

    bool empty() const { return fIncludes.empty(); }

    // One message per #include <maya/...> line of the header that the real header of that name
    // does not have, or one for the whole header when Maya has none of that name.
    std::vector<std::string> excessIncludes(const std::string& header,
                                            const std::string& text) const;

private:
    std::map<std::string, std::set<std::string>> fIncludes;
};
