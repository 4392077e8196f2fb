#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "IncludeGraph.h"

namespace {

std::string readFile(const std::filesystem::path& path) {
    std::ifstream in(path);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

const char kGraph[] =
    "# comment: ignored\n"
    "MA.h: MB.h MTypes.h \n"
    "MB.h: \n";

}  // namespace

TEST(IncludeGraph, NamesEachLineThatIncludesMoreThanTheRealHeader) {
    const IncludeGraph graph(kGraph);
    const std::string text =
        "#pragma once\n#include <maya/MB.h>\n#include <maya/MC.h>\n# include \"maya/MD.h\"\n";
    const std::vector<std::string> expected = {
        "MA.h:3: #include <maya/MC.h>: Maya 2022's MA.h does not include it",
        "MA.h:4: # include \"maya/MD.h\": Maya 2022's MA.h does not include it"};
    EXPECT_EQ(graph.excessIncludes("MA.h", text), expected);
}

TEST(IncludeGraph, AcceptsWhatTheRealHeaderIncludesAndOtherHeaders) {
    const IncludeGraph graph(kGraph);
    EXPECT_TRUE(
        graph.excessIncludes("MA.h", "#include <maya/MTypes.h>\n#include <string>\n").empty());
    EXPECT_TRUE(graph.excessIncludes("MB.h", "#pragma once\n").empty());
}

TEST(IncludeGraph, RefusesAHeaderMayaDoesNotHave) {
    const std::vector<std::string> expected = {"MZ.h: Maya 2022 has no header of this name"};
    EXPECT_EQ(IncludeGraph(kGraph).excessIncludes("MZ.h", ""), expected);
}

// A stand-in header that includes more than Maya's hides a missing include in the plug-in,
// which then fails to build against the real devkit.
TEST(StandInHeaders, IncludeOnlyWhatMaya2022sHeadersInclude) {
    const IncludeGraph graph(readFile(MAYA_INCLUDE_GRAPH));
    ASSERT_FALSE(graph.empty()) << "cannot read the include graph " << MAYA_INCLUDE_GRAPH;
    int headers = 0;
    for (const auto& entry : std::filesystem::directory_iterator(STANDIN_MAYA_INCLUDE_DIR)) {
        ++headers;
        const std::string name = entry.path().filename().string();
        for (const std::string& excess : graph.excessIncludes(name, readFile(entry.path())))
            ADD_FAILURE() << excess;
    }
    EXPECT_GT(headers, 0);
}
