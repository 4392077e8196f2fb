// xrvell-render on scenes saved by Maya itself (kept beside the repository, never in it): each
// opens as it is, and a fur node with its bridge added where Maya would have written them renders
// the same blocks as in a scene of their own.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <string>
#include <vector>

#include "Files.h"
#include "ToolRun.h"

namespace {

namespace fs = std::filesystem;

// The fur fragment as Maya writes it. The names appear in no real scene.
const char* const kRequires =
    "requires -nodeType \"xrVellMaya\" -dataType \"xrVellMayaData\" \"xrVellMaya\" \"1.0\";\n"
    "requires -nodeType \"xrVellMayaVRay\" \"xrVellVRayMaya\" \"1.0\";\n";
const char* const kNodes =
    "createNode transform -n \"xrTestFur\";\n"
    "\trename -uid \"0B1C2D3E-4F50-4617-8A9B-0C1D2E3F4A5B\";\n"
    "createNode xrVellMaya -n \"xrTestFurShape\" -p \"xrTestFur\";\n"
    "\trename -uid \"1C2D3E4F-5061-4728-9BAC-1D2E3F4A5B6C\";\n"
    "\tsetAttr -k off \".v\";\n"
    "\tsetAttr \".rd\" 2.3;\n"
    "\tsetAttr \".rw\" 0.7;\n"
    "\tsetAttr \".isp\" -type \"string\" \"/studio/tex\";\n"
    "\tsetAttr \".cfp\" -type \"string\" \"/cache/fur.####.xvc\";\n"
    "createNode transform -n \"xrTestFurVRay\";\n"
    "\trename -uid \"2D3E4F50-6172-4839-ACBD-2E3F4A5B6C7D\";\n"
    "createNode xrVellMayaVRay -n \"xrTestFurVRayShape\" -p \"xrTestFurVRay\";\n"
    "\trename -uid \"3E4F5061-7283-494A-BDCE-3F4A5B6C7D8E\";\n"
    "\tsetAttr -k off \".v\";\n";
const char* const kConnections =
    "connectAttr \"xrTestFurShape.od\" \"xrTestFurVRayShape.vid\";\n"
    "connectAttr \":time1.o\" \"xrTestFurVRayShape.time\";\n";

const char* const kAlone = "//Maya ASCII 2022 scene\n//Name: alone.ma\nrequires maya \"2022\";\n";

bool startsWith(const std::string& line, const char* prefix) { return line.rfind(prefix, 0) == 0; }

// The scene with the fragment where Maya puts each piece: the plug-ins after the last requires
// at the top (a requires may run over several lines), the nodes before the default nodes'
// settings, the connections before the closing comment.
std::string withFur(const std::string& scene) {
    std::vector<std::string> lines;
    for (size_t start = 0; start < scene.size();) {
        const size_t end = std::min(scene.find('\n', start), scene.size() - 1) + 1;
        lines.push_back(scene.substr(start, end - start));
        start = end;
    }
    size_t requiresEnd = 0;
    while (requiresEnd < lines.size() && startsWith(lines[requiresEnd], "//")) ++requiresEnd;
    for (size_t i = requiresEnd; i < lines.size() && startsWith(lines[i], "requires");) {
        while (i < lines.size() && lines[i].find(';') == std::string::npos) ++i;
        requiresEnd = i = std::min(i + 1, lines.size());
    }
    size_t connections = lines.size();
    for (size_t i = requiresEnd; i < lines.size(); ++i)
        if (startsWith(lines[i], "// End of")) connections = i;
    size_t nodes = requiresEnd;
    while (nodes < connections && !startsWith(lines[nodes], "select -ne :")) ++nodes;

    std::string text;
    for (size_t i = 0; i <= lines.size(); ++i) {
        if (!text.empty() && text.back() != '\n') text += '\n';  // a last line without its end
        if (i == requiresEnd) text += kRequires;
        if (i == nodes) text += kNodes;
        if (i == connections) text += kConnections;
        if (i < lines.size()) text += lines[i];
    }
    return text;
}

// The xrVellVRay blocks of an output, without the comments that name the scene and the frames.
std::string blocksOf(const std::string& output) {
    std::string blocks;
    for (size_t start = output.find("\nxrVellVRay "); start != std::string::npos;
         start = output.find("\nxrVellVRay ", start + 1)) {
        const size_t end = output.find("\n}\n", start);
        blocks += output.substr(start + 1, end == std::string::npos ? end : end + 2 - start);
    }
    return blocks;
}

std::vector<std::string> realScenes() {
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(REAL_SCENES_DIR, error))
        if (entry.path().extension() == ".ma") names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

class RealScene : public ::testing::TestWithParam<std::string> {
protected:
    void SetUp() override { scene = fs::path(REAL_SCENES_DIR) / GetParam(); }

    ToolResult render(std::vector<std::string> args) {
        args.insert(args.begin(), TOOL_PATH);
        return ToolRun::run(args, SOURCE_DIR);
    }

    const TemporaryFolder temporary;
    const fs::path directory = temporary.path();
    fs::path scene;
};

TEST(RealScenes, AreBesideTheRepository) {
    ASSERT_TRUE(fs::is_directory(REAL_SCENES_DIR)) << "missing folder " << REAL_SCENES_DIR;
    EXPECT_FALSE(realScenes().empty()) << "no .ma scene in " << REAL_SCENES_DIR;
}

TEST_P(RealScene, OpensAsItIs) {
    const ToolResult result =
        render({"-s", "1", "-o", (directory / "out.vrscene").string(), scene.string()});
    const auto lines = std::count(result.err.begin(), result.err.end(), '\n');
    EXPECT_TRUE(result.status == 0 && lines <= 10)
        << "exit status " << result.status << ", " << lines << " lines on stderr:\n"
        << result.err;
}

TEST_P(RealScene, RendersAnAddedFurAsItRendersAlone) {
    const fs::path combined = directory / GetParam();
    const fs::path alone = directory / "alone.ma";
    writeFile(combined, withFur(contentsOf(scene)));
    writeFile(alone, std::string(kAlone) + kRequires +
                         "currentUnit -l centimeter -a degree -t film;\n" + kNodes +
                         "select -ne :time1;\n\tsetAttr \".o\" 1;\n" + kConnections +
                         "// End of alone.ma\n");
    const fs::path inputs[] = {alone, combined};
    std::string blocks[2];
    for (int i = 0; i < 2; ++i) {
        SCOPED_TRACE(inputs[i].string());
        const fs::path output = directory / ("out" + std::to_string(i) + ".vrscene");
        const ToolResult result =
            render({"-s", "1", "-e", "2", "-mb", "on", "-o", output.string(), inputs[i].string()});
        ASSERT_EQ(result.status, 0) << result.err;
        blocks[i] = blocksOf(contentsOf(output));
    }
    EXPECT_NE(blocks[0].find("xrVellVRay xrTestFurVRayShape {"), std::string::npos) << blocks[0];
    EXPECT_EQ(blocks[1], blocks[0]);
}

// The real scene, with the fur added, as the asset of a shot that references it and makes the
// coat denser: the referenced nodes keep their places under the namespace, and the edit lands.
TEST_P(RealScene, IsReadAsTheReferenceOfAShot) {
    writeFile(directory / "asset.ma", withFur(contentsOf(scene)));
    const std::string flags =
        "-ns \"set\" -rfn \"setRN\" -op \"v=0;\" -typ \"mayaAscii\" \"asset.ma\"";
    writeFile(directory / "shot.ma",
              std::string("//Maya ASCII 2022 scene\n//Name: shot.ma\nfile -rdi 1 ") + flags +
                  ";\nfile -r -dr 1 " + flags + ";\n" + kRequires +
                  "createNode reference -n \"setRN\";\n\tsetAttr \".ed\" -type "
                  "\"dataReferenceEdits\" \"setRN\" \"setRN\" 0 \"setRN\" 1 2 "
                  "\"|set:xrTestFur|set:xrTestFurShape\" \"renderDensity\" \" 5\";\n"
                  "// End of shot.ma\n");
    const fs::path output = directory / "out.vrscene";
    const ToolResult result =
        render({"-s", "1", "-o", output.string(), (directory / "shot.ma").string()});
    ASSERT_EQ(result.status, 0) << result.err;
    const std::string blocks = blocksOf(contentsOf(output));
    const size_t block = blocks.find("xrVellVRay set:xrTestFurVRayShape {");
    ASSERT_NE(block, std::string::npos) << blocks;
    EXPECT_EQ(blocks.find("xrVellVRay ", block + 1), std::string::npos) << blocks;
    EXPECT_NE(blocks.find("  density=5;", block), std::string::npos) << blocks;
}

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(RealScene);
INSTANTIATE_TEST_SUITE_P(RealScenes, RealScene, ::testing::ValuesIn(realScenes()),
                         [](const ::testing::TestParamInfo<std::string>& info) {
                             std::string name = fs::path(info.param).stem().string();
                             for (char& c : name)
                                 if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                             return name;
                         });

}  // namespace
