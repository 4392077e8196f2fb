// xrvell-render on shots that reference their characters, written as Maya writes them: the
// references' nodes under their namespaces, the shot's edits and connections, paths found as
// Maya finds them, and what happens when a reference cannot be read.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <string>
#include <vector>

#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MString.h>
#include <mayahost/Host.h>

#include "Files.h"
#include "HostTest.h"
#include "PluginPath.h"
#include "SceneReader.h"
#include "ToolRun.h"

namespace {

namespace fs = std::filesystem;

const char* const kPlugins =
    "requires -nodeType \"xrVellMaya\" \"xrVellMaya\" \"1.0\";\n"
    "requires -nodeType \"xrVellMayaVRay\" \"xrVellVRayMaya\" \"1.0\";\n";

// An asset: a fur node and its bridge, fed by the scene time through the root namespace.
const std::string kCharacter = std::string("//Maya ASCII 2022 scene\n") + kPlugins +
                               "createNode transform -n \"fur\";\n"
                               "createNode xrVellMaya -n \"furShape\" -p \"fur\";\n"
                               "\tsetAttr \".rd\" 2;\n"
                               "\tsetAttr \".cfp\" -type \"string\" \"/cache/fur.####.xvc\";\n"
                               "createNode xrVellMayaVRay -n \"bridgeShape\" -p \"fur\";\n"
                               "connectAttr \"furShape.od\" \"bridgeShape.vid\";\n"
                               "connectAttr \":time1.o\" \"bridgeShape.time\";\n";

// The two lines Maya writes for a loaded reference.
std::string referenceLines(const std::string& ns, const std::string& path) {
    const std::string flags =
        "-ns \"" + ns + "\" -rfn \"" + ns + "RN\" -op \"v=0;\" -typ \"mayaAscii\"";
    return "file -rdi 1 " + flags + " \"" + path + "\";\nfile -r -dr 1 " + flags + " \"" + path +
           "\";\n";
}

// A reference node with its edits: "2 ..." lines and the like, one string.
std::string referenceNode(const std::string& ns, int count, const std::string& edits) {
    return "createNode reference -n \"" + ns +
           "RN\";\n\tsetAttr \".ed\" -type \"dataReferenceEdits\" \"" + ns + "RN\" \"" + ns +
           "RN\" 0 \"" + ns + "RN\" " + std::to_string(count) + " " + edits +
           ";\nlockNode -l 1 ;\n";
}

class References : public ::testing::Test {
protected:
    // A file that starts as Maya starts its files ends as Maya ends them.
    void write(const std::string& relative, const std::string& text) {
        fs::create_directories((directory / relative).parent_path());
        const bool maya = text.compare(0, 12, "//Maya ASCII") == 0;
        writeFile(
            directory / relative,
            maya ? text + "// End of " + fs::path(relative).filename().string() + "\n" : text);
    }

    ToolResult render(const std::string& scene, std::vector<std::string> args = {},
                      const std::vector<std::string>& environment = {}) {
        args.insert(args.begin(), {TOOL_PATH, "-s", "1"});
        args.insert(args.end(), {"-o", "-", scene});
        return ToolRun::run(args, directory.string(), environment);
    }

    const TemporaryFolder temporary;
    const fs::path directory = temporary.path();
};

// The value of `parameter` in the block of `node`, or "" when there is none.
std::string valueIn(const std::string& vrscene, const std::string& node,
                    const std::string& parameter) {
    const size_t block = vrscene.find("xrVellVRay " + node + " {");
    if (block == std::string::npos) return "";
    const size_t end = vrscene.find('}', block);
    const size_t at = vrscene.find("  " + parameter + "=", block);
    if (at == std::string::npos || at > end) return "";
    const size_t start = at + parameter.size() + 3;
    return vrscene.substr(start, vrscene.find(";\n", start) - start);
}

TEST_F(References, TheDemoShotRendersEachCharacterWithItsOwnEdits) {
    const ToolResult result =
        ToolRun::run({TOOL_PATH, "-s", "1", "-o", "-", "examples/shot.ma"}, SOURCE_DIR);
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(valueIn(result.out, "charA:furVRayShape", "density"), "2.5");
    EXPECT_EQ(valueIn(result.out, "charB:furVRayShape", "density"), "6");
    EXPECT_EQ(valueIn(result.out, "charA:furVRayShape", "width"), "0.8");
    EXPECT_EQ(valueIn(result.out, "charB:furVRayShape", "width"), "0.5");
    EXPECT_EQ(valueIn(result.out, "charA:furVRayShape", "file"),
              "\"/shows/demo/sh010/cache/charA/furShape.0001.xvc\"");
    EXPECT_EQ(valueIn(result.out, "charB:furVRayShape", "file"),
              "\"/shows/demo/sh010/cache/charB/furShape.0001.xvc\"");
    EXPECT_EQ(result.err,
              "xrvell-render: 1 frame, 2 nodes, 2 plugin instances, 0 warnings, 0 errors, " +
                  result.err.substr(result.err.rfind(", ") + 2));
}

// What scripts/demo shows for each demo scene, against the file checked in.
TEST_F(References, EachDemoSceneRendersItsGoldenFile) {
    for (const char* scene : {"demo", "shot"}) {
        SCOPED_TRACE(scene);
        const ToolResult result = ToolRun::run({TOOL_PATH, "-s", "1", "-e", "3", "-mb", "on", "-o",
                                                "-", std::string("examples/") + scene + ".ma"},
                                               SOURCE_DIR);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.out, contentsOf(std::string(GOLDEN_DIR "/") + scene + ".vrscene"));
    }
}

// Where a shot's path to its asset leads, as Maya looks for it.
TEST_F(References, PathsResolveAsMayaResolvesThem) {
    const struct {
        const char* name;
        const char* written;
        const char* asset;  // where the asset is, below the test's folder
        std::vector<std::string> environment;
    } cases[] = {
        {"beside the shot", "char.ma", "project/scenes/shots/char.ma", {}},
        {"relative to the shot", "../../assets/char.ma", "project/assets/char.ma", {}},
        {"project root", "assets/char.ma", "project/assets/char.ma", {}},
        {"project scenes folder", "chars/char.ma", "project/scenes/chars/char.ma", {}},
        {"$VAR", "$XRVELL_ASSETS/char.ma", "lib/char.ma", {"XRVELL_ASSETS=LIB"}},
        {"${VAR}", "${XRVELL_ASSETS}/char.ma", "lib/char.ma", {"XRVELL_ASSETS=LIB"}},
        {"absolute", "ABS/lib/char.ma", "lib/char.ma", {}},
        {"moved from another machine",
         "C:/Users/someone/assets/char.ma",
         "project/scenes/shots/char.ma",
         {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        fs::remove_all(directory / "project");
        fs::remove_all(directory / "lib");
        write("project/workspace.mel", "workspace -fr \"mayaAscii\" \"scenes\";\n");
        write(c.asset, kCharacter);
        std::string written = c.written;
        if (written.compare(0, 4, "ABS/") == 0) written = (directory / written.substr(4)).string();
        std::vector<std::string> environment;
        for (std::string variable : c.environment)
            environment.push_back(
                variable.replace(variable.find("LIB"), 3, (directory / "lib").string()));
        write("project/scenes/shots/shot.ma",
              "//Maya ASCII 2022 scene\n" + referenceLines("char", written) + kPlugins);
        const ToolResult result = render("project/scenes/shots/shot.ma", {}, environment);
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(valueIn(result.out, "char:bridgeShape", "density"), "2") << result.err;
    }
}

TEST_F(References, AMissingReferenceWarnsAndTheRestRenders) {
    write("char.ma", kCharacter);
    write("shot.ma", "//Maya ASCII 2022 scene\n" +
                         referenceLines("gone", "$XRVELL_NOT_SET/gone.ma") +
                         referenceLines("char", "char.ma") + kPlugins);
    const ToolResult result = render("shot.ma");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(valueIn(result.out, "char:bridgeShape", "density"), "2");
    EXPECT_EQ(result.err.substr(0, result.err.find('\n') + 1),
              "shot.ma:3: warning: reference \"goneRN\": cannot find \"$XRVELL_NOT_SET/gone.ma\" "
              "($XRVELL_NOT_SET is not set; looked for \"$XRVELL_NOT_SET/gone.ma\", "
              "\"gone.ma\"); its nodes are missing from the scene\n");
}

TEST_F(References, ABinaryReferenceWarnsNamingTheFile) {
    write("char.mb", std::string("FOR4\0\0\0\x40Maya", 12));
    write("shot.ma", "//Maya ASCII 2022 scene\n" + referenceLines("char", "char.mb") + kPlugins);
    const ToolResult result = render("shot.ma");
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.err.find("shot.ma:3: warning: reference \"charRN\": \"char.mb\" is a binary "
                              "Maya file: only Maya ASCII is read (save the scene as Maya ASCII, "
                              ".ma); its nodes are missing from the scene\n"),
              std::string::npos)
        << result.err;
}

TEST_F(References, NestedReferencesNestTheirNamespacesAndTakeTheShotsEdits) {
    write("hair.ma", kCharacter);
    write("char.ma",
          "//Maya ASCII 2022 scene\n" + referenceLines("hair", "hair.ma") + kPlugins +
              referenceNode("hair", 1, "2 \"|hair:fur|hair:furShape\" \"renderLength\" \" 4\""));
    write("shot.ma",
          "//Maya ASCII 2022 scene\n" + referenceLines("char", "char.ma") +
              "file -rdi 2 -ns \"hair\" -rfn \"char:hairRN\" \"hair.ma\";\n" + kPlugins +
              "createNode reference -n \"charRN\";\n\tsetAttr \".ed\" -type \"dataReferenceEdits\" "
              "\"charRN\" \"charRN\" 0 \"char:hairRN\" 1 "
              "2 \"|char:hair:fur|char:hair:furShape\" \"renderDensity\" \" 7\";\n");
    const ToolResult result = render("shot.ma");
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(valueIn(result.out, "char:hair:bridgeShape", "density"), "7");
    EXPECT_EQ(valueIn(result.out, "char:hair:bridgeShape", "length"), "4");
}

TEST_F(References, AReferenceUnloadedInTheShotIsNotRead) {
    write("char.ma", kCharacter);
    write("shot.ma",
          "//Maya ASCII 2022 scene\n"
          "file -rdi 1 -ns \"char\" -dr 1 -rfn \"charRN\" \"char.ma\";\n"
          "file -r -ns \"char\" -dr 1 -rfn \"charRN\" \"char.ma\";\n" +
              std::string(kPlugins));
    const ToolResult result = render("shot.ma", {"-v", "2"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.out.find("xrVellVRay char"), std::string::npos);
    EXPECT_NE(result.err.find("shot.ma:3: note: reference \"charRN\" (\"char.ma\") is unloaded in "
                              "the scene; its nodes are not read\n"),
              std::string::npos)
        << result.err;
}

TEST_F(References, ACycleIsAnErrorNamingTheChain) {
    write("a.ma", "//Maya ASCII 2022 scene\n" + referenceLines("b", "b.ma"));
    write("b.ma", "//Maya ASCII 2022 scene\n" + referenceLines("a", "a.ma"));
    write("shot.ma", "//Maya ASCII 2022 scene\n" + referenceLines("a", "a.ma"));
    const ToolResult result = render("shot.ma");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err.find("b.ma:3: error: reference \"a:b:aRN\" makes a cycle: a.ma -> b.ma -> "
                              "a.ma; it is not loaded\n"),
              std::string::npos)
        << result.err;
}

TEST_F(References, FileLinesThatDoNotReadAreErrors) {
    const struct {
        const char* line;
        const char* error;
    } cases[] = {
        {"file -r -ns \"a b\" \"char.ma\";",
         "shot.ma:1: error: file -r: \"a b\" is not a valid namespace (letters, digits and '_', "
         "not starting with a digit; ':' between namespaces)"},
        {"file -r -ns \"char\";", "shot.ma:1: error: file -r: expects one file path"},
        {"file -r -xyz \"char.ma\";", "shot.ma:1: error: file: unknown flag \"-xyz\""},
        {"createNode reference -n \"cRN\";\nsetAttr \".ed\" -type \"dataReferenceEdits\" "
         "\"cRN\" \"cRN\" 1 2 \"n\";",
         "shot.ma:2: error: dataReferenceEdits: ends inside an edit"},
    };
    write("char.ma", kCharacter);
    for (const auto& c : cases) {
        write("shot.ma", c.line + std::string("\n"));
        const ToolResult result = render("shot.ma");
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.substr(0, result.err.find('\n')), c.error);
    }
}

// Opening a shot does not take the current frame or units from the files it references.
TEST_F(References, AReferencedFilesTimeSettingsAreNotTheShots) {
    write("char.ma", "currentUnit -t ntsc;\n" + kCharacter +
                         "select -ne :time1;\n\tsetAttr -k on \".o\" 40;\n\tsetAttr \".o\" 40;\n");
    write("shot.ma", "//Maya ASCII 2022 scene\n" + referenceLines("char", "char.ma") + kPlugins +
                         "select -ne :time1;\n\tsetAttr \".o\" 7;\n");
    const ToolResult result = ToolRun::run({TOOL_PATH, "-o", "-", "shot.ma"}, directory.string());
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(valueIn(result.out, "char:bridgeShape", "sampleGenerator"), "ListFloat(7)");
    EXPECT_EQ(valueIn(result.out, "char:bridgeShape", "file"), "\"/cache/fur.0007.xvc\"");
}

TEST_F(References, MessagesNameTheReferencedFileAndLine) {
    write("char.ma", kCharacter + "polyCube -n \"box\";\n");
    write("shot.ma", "//Maya ASCII 2022 scene\n" + referenceLines("char", "char.ma") + kPlugins);
    const ToolResult result = render("shot.ma");
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.err.find("char.ma:11: warning: \"polyCube\" commands are skipped\n"),
              std::string::npos)
        << result.err;
}

// Connections a shot makes to referenced plugs go through the reference nodes' placeholders.
TEST_F(References, ConnectionsThroughPlaceholdersReachTheReferencedPlugs) {
    write("fur.ma", std::string("//Maya ASCII 2022 scene\n") + kPlugins +
                        "createNode xrVellMaya -n \"furShape\";\n\tsetAttr \".rd\" 9;\n");
    write("bridge.ma", std::string("//Maya ASCII 2022 scene\n") + kPlugins +
                           "createNode xrVellMayaVRay -n \"bridgeShape\";\n");
    write("shot.ma",
          "//Maya ASCII 2022 scene\n" + referenceLines("fur", "fur.ma") +
              referenceLines("br", "bridge.ma") + kPlugins +
              referenceNode("fur", 1,
                            "5 1 \"furRN\" \"fur:furShape.outputData\" "
                            "\"furRN.placeHolderList[1]\" \"\"") +
              referenceNode("br", 1,
                            "5 2 \"brRN\" \"br:bridgeShape.inputData\" \"brRN.placeHolderList[1]\" "
                            "\"\"") +
              "connectAttr \"furRN.phl[1]\" \"brRN.phl[1]\";\n");
    const ToolResult result = render("shot.ma");
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(valueIn(result.out, "br:bridgeShape", "density"), "9");
}

// The same shot read into the host: the shot's own time node drives the referenced bridge.
class ReferencesInHost : public HostTest {};

TEST_F(ReferencesInHost, AShotsNodeDrivesAReferencedPlugThroughAPlaceholder) {
    const TemporaryFolder temporary;
    const fs::path& folder = temporary.path();
    writeFile(folder / "bridge.ma",
              std::string(kPlugins) + "createNode xrVellMayaVRay -n \"bridgeShape\";\n");
    const std::string shot = referenceLines("br", "bridge.ma") + kPlugins +
                             "createNode time -n \"shotTime\";\n" +
                             referenceNode("br", 1,
                                           "5 4 \"brRN\" \"br:bridgeShape.currentTime\" "
                                           "\"brRN.placeHolderList[2]\" \"\"") +
                             "connectAttr \"shotTime.o\" \"brRN.phl[2]\";\n";
    xrvell::Diagnostics diagnostics((folder / "shot.ma").string(), nullptr);
    xrvell::PluginPath plugins({PLUGIN_DIR});
    xrvell::SceneReader reader(diagnostics,
                               [&](const std::string& plugin) { return plugins.require(plugin); });
    EXPECT_TRUE(reader.read(shot));
    MPlugArray sources;
    mayahost::findPlug(mayahost::findNode("br:bridgeShape"), "currentTime")
        .connectedTo(sources, true, false);
    ASSERT_EQ(sources.length(), 1u);
    EXPECT_EQ(std::string(sources[0].name().asChar()), "shotTime.outTime");
}

// Edits of each kind a shot holds, applied to its own reference only.
TEST_F(References, EditsOfEachKindApplyToTheirReferenceOnly) {
    write("char.ma", kCharacter);
    write("shot.ma",
          "//Maya ASCII 2022 scene\n" + referenceLines("a", "char.ma") +
              referenceLines("b", "char.ma") + kPlugins +
              referenceNode("a", 3,
                            "1 \"|a:fur|a:furShape\" \"note\" \"nt\" \" -dt \\\"string\\\"\" "
                            "2 \"|a:fur|a:furShape\" \"note\" \" -type \\\"string\\\" \\\"x\\\"\" "
                            "6 \"|a:fur|a:furShape.outputData\" \"|a:fur|a:bridgeShape.inputData\" "
                            "\"\"") +
              referenceNode("b", 1, "2 \"|b:fur|b:furShape\" \"renderLength\" \" 3\""));
    const ToolResult result = render("shot.ma");
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(valueIn(result.out, "a:bridgeShape", "density"), "1");  // no fur: the defaults
    EXPECT_EQ(valueIn(result.out, "b:bridgeShape", "density"), "2");
    EXPECT_EQ(valueIn(result.out, "b:bridgeShape", "length"), "3");
    EXPECT_EQ(result.err.substr(0, result.err.find("xrvell-render:")),
              "shot.ma: warning: bridge \"a:bridgeShape\": nothing feeds its inputData; the "
              "renderer would receive the defaults\n");
}

TEST_F(References, AnEditThatNoLongerAppliesWarnsAndTheOthersApply) {
    write("char.ma", kCharacter);
    write("shot.ma", "//Maya ASCII 2022 scene\n" + referenceLines("char", "char.ma") + kPlugins +
                         referenceNode("char", 2,
                                       "2 \"|char:fur|char:oldShape\" \"renderDensity\" \" 5\" "
                                       "2 \"|char:fur|char:furShape\" \"renderDensity\" \" 4\""));
    const ToolResult result = render("shot.ma");
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(valueIn(result.out, "char:bridgeShape", "density"), "4");
    EXPECT_NE(result.err.find("shot.ma:7: warning: setAttr: no node \"|char:fur|char:oldShape\"\n"),
              std::string::npos)
        << result.err;
}

}  // namespace
