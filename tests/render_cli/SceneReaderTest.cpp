// The Maya ASCII reader against the stand-in host with the real plug-ins: what each command
// does to the scene, and the exact message for each kind of bad input.
#include <maya/MPlug.h>
#include <maya/MPlugArray.h>
#include <maya/MString.h>
#include <maya/MTime.h>
#include <mayahost/Host.h>

#include <string>
#include <vector>

#include "HostTest.h"
#include "PluginPath.h"
#include "SceneReader.h"

namespace {

// Lines 1 to 4 of most scenes below: the two plug-ins and a fur node under a transform.
const std::string kPrelude =
    "requires \"xrVellMaya\" \"1.0\";\n"
    "requires -nodeType \"xrVellMayaVRay\" \"xrVellVRayMaya\" \"1.0\";\n"
    "createNode transform -n \"fur\";\n"
    "createNode xrVellMaya -n \"furShape\" -p \"fur\";\n";

class SceneReaderTest : public HostTest {
protected:
    bool read(const std::string& text) {
        xrvell::SceneReader reader(
            diagnostics, [this](const std::string& name) { return plugins.require(name); });
        const bool ok = reader.read(text);
        created = reader.createdNodes().size();
        return ok;
    }
    MPlug plug(const std::string& node, const std::string& attribute) {
        return mayahost::findPlug(mayahost::findNode(node), attribute);
    }

    xrvell::PluginPath plugins{{PLUGIN_DIR}};
    xrvell::Diagnostics diagnostics{"scene.ma", nullptr};
    size_t created = 0;
};

struct BadInput {
    const char* name;
    std::string text;
    std::string message;
};

std::vector<BadInput> badInputs() {
    const std::string p = kPrelude;
    return {
        {"Unterminated", p + "setAttr \".rd\" \"dense;\n",
         "scene.ma:5: error: unterminated string"},
        {"NoSemicolon", p + "\nsetAttr \".rd\"\n  2",
         "scene.ma:6: error: missing ';' at the end of the command"},
        {"Word", p + "setAttr \".rd\" dense;",
         "scene.ma:5: error: \"furShape.rd\" expects a number, not \"dense\""},
        {"QuotedNumber", p + "setAttr \".rd\" \"2\";",
         "scene.ma:5: error: \"furShape.rd\" expects a number, not \"2\""},
        {"StringType", p + "setAttr \".rd\" -type \"string\" \"x\";",
         "scene.ma:5: error: \"furShape.rd\" expects a number, not -type \"string\""},
        {"TwoValues", p + "setAttr \".rd\" 1 2;",
         "scene.ma:5: error: \"furShape.rd\" expects a number, not 2 values"},
        {"NotFinite", p + "setAttr \".rd\" nan;",
         "scene.ma:5: error: \"furShape.rd\" expects a number, not \"nan\""},
        {"BeyondFloat", p + "setAttr \".rd\" 1e39;",
         "scene.ma:5: error: \"furShape.rd\" expects a number within float range, not \"1e39\""},
        {"ShortRange", p + "setAttr \".vb\" 40000;",
         "scene.ma:5: error: \"furShape.vb\" expects an integer from -32768 to 32767, not "
         "\"40000\""},
        {"Fraction", p + "setAttr \".vb\" 1.5;",
         "scene.ma:5: error: \"furShape.vb\" expects an integer, not \"1.5\""},
        {"Boolean", p + "setAttr \".oroi\" maybe;",
         "scene.ma:5: error: \"furShape.oroi\" expects a boolean, not \"maybe\""},
        {"StringWithoutType", p + "setAttr \".isp\" \"/x\";",
         "scene.ma:5: error: \"furShape.isp\" expects a string (-type \"string\"), not \"/x\""},
        {"StringAsDouble3", p + "setAttr \".isp\" -type \"double3\" 1 2 3;",
         "scene.ma:5: error: \"furShape.isp\" expects a string (-type \"string\"), not -type "
         "\"double3\""},
        {"BrokenJoin", p + "setAttr \".isp\" -type \"string\" ( \"a\" \"b\" );",
         "scene.ma:5: error: \"furShape.isp\" expects a string (-type \"string\"), not 4 values"},
        {"TypeOnly", p + "setAttr \".isp\" -type \"string\";",
         "scene.ma:5: error: \"furShape.isp\" expects a string (-type \"string\"), not 0 values"},
        {"Double3Count", p + "setAttr \"fur.t\" -type \"double3\" 1 2;",
         "scene.ma:5: error: \"fur.t\" expects 3 numbers (-type \"double3\"), not 2 values"},
        {"Double3Word", p + "setAttr \"fur.t\" -type \"double3\" 1 x 3;",
         "scene.ma:5: error: \"fur.t\" expects a number, not \"x\""},
        {"MissingAttribute", p + "setAttr \".bogus\" 1;",
         "scene.ma:5: error: node \"furShape\" has no attribute \"bogus\""},
        {"MissingCompound", p + "setAttr \".bogus\" -type \"double3\" 1 2 3;",
         "scene.ma:5: error: node \"furShape\" has no attribute \"bogus\""},
        {"MissingNode", p + "setAttr \"nobody.rd\" 1;",
         "scene.ma:5: error: setAttr: no node \"nobody\""},
        {"SelectMissing", p + "select -ne furShap;",
         "scene.ma:5: error: select: no node \"furShap\""},
        {"NoSelection", "setAttr \".rd\" 1;",
         "scene.ma:1: error: setAttr \".rd\": no node is selected"},
        {"NoAttribute", p + "setAttr -k on;", "scene.ma:5: error: setAttr: no attribute given"},
        {"SetConnected", p + "connectAttr \":time1.o\" \"fur.tx\";\nsetAttr \"fur.tx\" 1;",
         "scene.ma:6: error: \"fur.tx\" is connected; its value cannot be set"},
        {"BridgeWithoutPlugin", "createNode xrVellMayaVRay -n \"b\";",
         "scene.ma:1: error: node type \"xrVellMayaVRay\" is not registered: its plug-in "
         "\"xrVellVRayMaya\" is not loaded (no requires line names it)"},
        {"AmbiguousName",
         p + "createNode transform -n \"g\";\ncreateNode transform -n \"fur\" -p \"g\";\n"
             "setAttr \"fur.tx\" 1;",
         "scene.ma:7: error: More than one object matches name: fur"},
        {"AmbiguousParent",
         p + "createNode transform -n \"g\";\ncreateNode transform -n \"fur\" -p \"g\";\n"
             "createNode xrVellMayaVRay -n \"b\" -p \"fur\";",
         "scene.ma:7: error: More than one object matches name: fur"},
        {"MissingPath", p + "setAttr \"|g|fur.tx\" 1;",
         "scene.ma:5: error: setAttr: no node \"|g|fur\""},
        {"MissingParent", p + "createNode xrVellMaya -n \"s\" -p \"nowhere\";",
         "scene.ma:5: error: createNode: no parent node \"nowhere\""},
        {"ShapeParent", p + "createNode xrVellMaya -n \"s\" -p \"furShape\";",
         "scene.ma:5: error: createNode: a xrVellMaya cannot be placed under that parent"},
        {"NoType", p + "createNode -n \"x\";",
         "scene.ma:5: error: createNode: expects one node type"},
        {"UnknownFlag", p + "createNode transform -q;",
         "scene.ma:5: error: createNode: unknown flag \"-q\""},
        {"FlagValue", p + "createNode transform -n;",
         "scene.ma:5: error: createNode: flag \"-n\" needs a value"},
        {"ConnectNoNode", p + "connectAttr \"furShape.od\" \"ghost.vid\";",
         "scene.ma:5: error: cannot connect \"furShape.od\" to \"ghost.vid\": no node \"ghost\""},
        {"ConnectNoAttribute", p + "connectAttr \"furShape.nothing\" \"fur.tx\";",
         "scene.ma:5: error: cannot connect \"furShape.nothing\" to \"fur.tx\": node \"furShape\" "
         "has no attribute \"nothing\""},
        {"ConnectKinds",
         p + "createNode xrVellMayaVRay -n \"b\" -p \"fur\";\nconnectAttr \"furShape.isp\" "
             "\"b.vid\";",
         "scene.ma:6: error: cannot connect \"furShape.isp\" to \"b.vid\": "
         "furShape.imageSearchPath and b.inputData carry different kinds of data"},
        {"ConnectTwice",
         p + "createNode xrVellMayaVRay -n \"b\" -p \"fur\";\nconnectAttr \":time1.o\" "
             "\"b.time\";\nconnectAttr \":time1.o\" \"b.time\";",
         "scene.ma:7: error: cannot connect \":time1.o\" to \"b.time\": b.currentTime already has "
         "an incoming connection"},
        {"ConnectOne", p + "connectAttr \"furShape.od\";",
         "scene.ma:5: error: connectAttr: expects a source and a destination"},
        {"NotAPlug", p + "connectAttr \"furShape\" \"fur.tx\";",
         "scene.ma:5: error: \"furShape\" is not a plug name (node.attribute)"},
        {"PluginPathName", "requires \"../lib/evil\" \"1.0\";",
         "scene.ma:1: error: requires: invalid plug-in name \"../lib/evil\""},
        {"NoPluginName", "requires;", "scene.ma:1: error: requires: no plug-in named"},
        {"TimeUnit", "currentUnit -l centimeter -t 23.976;",
         "scene.ma:1: error: currentUnit: unsupported time unit \"23.976\""},
        // Names that would break the .vrscene they are written into, or that Maya refuses.
        {"NameWithBraces", p + "createNode xrVellMayaVRay -n \"fur Mane} {x=1;\" -p \"fur\";",
         "scene.ma:5: error: createNode: \"fur Mane} {x=1;\" is not a valid node name (letters, "
         "digits and '_', not starting with a digit; ':' between namespaces)"},
        {"NameWithComment", p + "createNode xrVellMayaVRay -n \"fur//x\" -p \"fur\";",
         "scene.ma:5: error: createNode: \"fur//x\" is not a valid node name (letters, digits and "
         "'_', not starting with a digit; ':' between namespaces)"},
        {"NameWithNewline", p + "createNode transform -n \"a\\nb\";",
         "scene.ma:5: error: createNode: \"a\\nb\" is not a valid node name (letters, digits and "
         "'_', not starting with a digit; ':' between namespaces)"},
        {"NameStartsWithDigit", p + "createNode transform -n \"1fur\";",
         "scene.ma:5: error: createNode: \"1fur\" is not a valid node name (letters, digits and "
         "'_', not starting with a digit; ':' between namespaces)"},
        {"EmptyNamespace", p + "createNode transform -n \"ns::fur\";",
         "scene.ma:5: error: createNode: \"ns::fur\" is not a valid node name (letters, digits "
         "and '_', not starting with a digit; ':' between namespaces)"},
        {"NamespaceStartsWithDigit", p + "createNode transform -n \"2ns:fur\";",
         "scene.ma:5: error: createNode: \"2ns:fur\" is not a valid node name (letters, digits "
         "and '_', not starting with a digit; ':' between namespaces)"},
        // Values for the compounds the host keeps as their children.
        {"MatrixOnTranslate",
         p + "setAttr \"fur.t\" -type \"matrix\" 1 0 0 0 0 1 0 0 0 0 1 0 0 0 0 1;",
         "scene.ma:5: error: \"fur.t\" expects 3 numbers (-type \"double3\"), not -type "
         "\"matrix\""},
        {"Double2OnTranslate", p + "setAttr \"fur.t\" -type \"double2\" 7 8;",
         "scene.ma:5: error: \"fur.t\" expects 3 numbers (-type \"double3\"), not -type "
         "\"double2\""},
        {"StringOnTranslate", p + "setAttr \"fur.translate\" -type \"string\" \"1 2 3\";",
         "scene.ma:5: error: \"fur.translate\" expects 3 numbers (-type \"double3\"), not -type "
         "\"string\""},
        {"OneNumberOnTranslate", p + "setAttr \"fur.t\" 7;",
         "scene.ma:5: error: \"fur.t\" expects 3 numbers (-type \"double3\"), not \"7\""},
        {"FourNumbersOnRotate", p + "setAttr \"fur.r\" 1 2 3 4;",
         "scene.ma:5: error: \"fur.r\" expects 3 numbers (-type \"double3\"), not 4 values"},
        // Numbers beyond what the attribute's type holds say so.
        {"FloatOverflow", p + "setAttr \".rd\" 1e400;",
         "scene.ma:5: error: \"furShape.rd\" expects a number within float range, not \"1e400\""},
        {"DoubleOverflow", p + "setAttr \"fur.tx\" -1e400;",
         "scene.ma:5: error: \"fur.tx\" expects a number within double range, not \"-1e400\""},
        {"IntegerOverflow", p + "setAttr \".vb\" 99999999999999999999;",
         "scene.ma:5: error: \"furShape.vb\" expects an integer from -32768 to 32767, not "
         "\"99999999999999999999\""},
        {"TimeOverflow", p + "setAttr \":time1.o\" 1e400;",
         "scene.ma:5: error: \":time1.o\" expects a time within double range, not \"1e400\""},
        // Bytes a message cannot show as they are.
        {"NulByte", p + "setAttr \".rd\" x" + '\0' + "y;",
         "scene.ma:5: error: \"furShape.rd\" expects a number, not \"x\\000y\""},
        {"EscapeByte", p + "setAttr \".rd\" \x1b[31m;",
         "scene.ma:5: error: \"furShape.rd\" expects a number, not \"\\033[31m\""},
        // A byte order mark does not swallow the first command.
        {"ByteOrderMark", "\xEF\xBB\xBFsetAttr \".rd\" 1;",
         "scene.ma:1: error: setAttr \".rd\": no node is selected"},
        // Inherited attributes that a plug-in shape does not have as DAG node are still errors.
        {"NotInheritedByShapes", p + "setAttr \".tx\" 1;",
         "scene.ma:5: error: node \"furShape\" has no attribute \"tx\""},
        {"UnknownIndexed", p + "setAttr \".bogus[0].x\" 1;",
         "scene.ma:5: error: node \"furShape\" has no attribute \"bogus[0].x\""},
    };
}

TEST_F(SceneReaderTest, EachBadInputGivesItsMessageAndTheReadingGoesOn) {
    for (const BadInput& bad : badInputs()) {
        SCOPED_TRACE(bad.name);
        mayahost::reset();
        diagnostics = xrvell::Diagnostics("scene.ma", nullptr);
        plugins = xrvell::PluginPath({PLUGIN_DIR});
        // A later command that must still run, where the bad input leaves room for one.
        const bool complete = bad.text.back() == ';';
        EXPECT_FALSE(read(bad.text + (complete ? "\ncreateNode transform -n \"after\";\n" : "")));
        EXPECT_EQ(diagnostics.lines(), std::vector<std::string>{bad.message});
        EXPECT_EQ(diagnostics.errors(), 1);
        if (complete) {
            EXPECT_FALSE(mayahost::findNode("after").isNull()) << "the reading stopped";
        }
    }
}

TEST_F(SceneReaderTest, SetsEachKindOfValue) {
    ASSERT_TRUE(read(kPrelude +
                     "\tsetAttr \".rd\" 2.5;\n"
                     "\tsetAttr \".renderWidth\" -0.75;\n"
                     "\tsetAttr \".vb\" -3;\n"
                     "\tsetAttr \".vdht\" on;\n"
                     "\tsetAttr \".oroi\" 1;\n"
                     "\tsetAttr \".isp\" -type \"string\" \"C:\\\\fur \\\"v2\\\";x\";\n"
                     "\tsetAttr \".cfp\" -type \"string\" ( \"/cache/\" + \"fur.####.xvc\" );\n"
                     "\tsetAttr \".rnx\" -2.5e-1;\n"
                     "setAttr \"|fur.t\" -type \"double3\" 1 -2 .5 ;\n"))
        << diagnostics.lines()[0];
    EXPECT_EQ(plug("furShape", "renderDensity").asFloat(), 2.5f);
    EXPECT_EQ(plug("furShape", "renderWidth").asFloat(), -0.75f);
    EXPECT_EQ(plug("furShape", "verbosity").asShort(), -3);
    EXPECT_TRUE(plug("furShape", "vrayDynamicHairTesselation").asBool());
    EXPECT_TRUE(plug("furShape", "obeyROI").asBool());
    EXPECT_STREQ(plug("furShape", "imageSearchPath").asString().asChar(), "C:\\fur \"v2\";x");
    EXPECT_STREQ(plug("furShape", "cacheFilePattern").asString().asChar(), "/cache/fur.####.xvc");
    EXPECT_EQ(plug("furShape", "roiMinX").asDouble(), -0.25);
    EXPECT_EQ(plug("fur", "translateX").asDouble(), 1.0);
    EXPECT_EQ(plug("fur", "translateY").asDouble(), -2.0);
    EXPECT_EQ(plug("fur", "translateZ").asDouble(), 0.5);
    EXPECT_TRUE(diagnostics.lines().empty());
    EXPECT_EQ(created, 2u);
}

TEST_F(SceneReaderTest, TimeNodeOutputSetsTheSceneTimeInTheFileUnit) {
    ASSERT_TRUE(
        read("currentUnit -l centimeter -a degree -t pal;\n"
             "select -ne :time1;\n\tsetAttr \".o\" 12;\n"));
    EXPECT_EQ(MTime::uiUnit(), MTime::kPALFrame);
    EXPECT_EQ(mayahost::currentTime().as(MTime::kPALFrame), 12.0);
    EXPECT_EQ(mayahost::currentTime().as(MTime::kSeconds), 12.0 / 25.0);
}

TEST_F(SceneReaderTest, ForcedConnectionReplacesTheIncomingOne) {
    ASSERT_TRUE(read(kPrelude + "createNode xrVellMaya -n \"otherShape\" -p \"fur\";\n"
                                "createNode xrVellMayaVRay -n \"bridge\" -p \"fur\";\n"
                                "connectAttr \"furShape.od\" \"bridge.vid\";\n"
                                "connectAttr -f \"otherShape.od\" \"bridge.vid\";\n"));
    MPlugArray sources;
    plug("bridge", "inputData").connectedTo(sources, true, false);
    ASSERT_EQ(sources.length(), 1u);
    EXPECT_EQ(mayahost::nodeName(sources[0].node()), "otherShape");
}

// Two characters hold the same short names under different parents, as Maya allows; each is
// reached by its full or partial path, and a second createNode of a name that is taken among
// its siblings gets the next free name without capturing the lines that name the first.
TEST_F(SceneReaderTest, RepeatedShortNamesKeepTheirOwnSettings) {
    std::string scene = "requires \"xrVellMaya\" \"1.0\";\n";
    for (const char* character : {"charA", "charB"})
        scene += std::string("createNode transform -n \"") + character +
                 "\";\ncreateNode transform -n \"fur\" -p \"" + character +
                 "\";\ncreateNode xrVellMaya -n \"furShape\" -p \"|" + character + "|fur\";\n";
    scene +=
        "createNode xrVellMaya -n \"furShape\" -p \"charB|fur\";\n"  // furShape1
        "\tsetAttr \".rd\" 7.1;\n"
        "setAttr \"|charA|fur|furShape.rd\" 0.3;\n"
        "select -ne charB|fur|furShape;\n"
        "\tsetAttr \".rw\" 0.7;\n"
        "setAttr \"charB|fur|furShape.rd\" 1.9;\n";
    ASSERT_TRUE(read(scene)) << diagnostics.lines()[0];
    EXPECT_TRUE(diagnostics.lines().empty());
    EXPECT_EQ(plug("|charA|fur|furShape", "rd").asFloat(), 0.3f);
    EXPECT_EQ(plug("|charA|fur|furShape", "rw").asFloat(), 1.0f);
    EXPECT_EQ(plug("|charB|fur|furShape", "rd").asFloat(), 1.9f);
    EXPECT_EQ(plug("|charB|fur|furShape", "rw").asFloat(), 0.7f);
    EXPECT_EQ(plug("charB|fur|furShape1", "rd").asFloat(), 7.1f);
    EXPECT_EQ(created, 7u);
}

// Maya's own types the host does not model and the types of plug-ins that are not there are
// kept as unknown nodes, with their places, values and connections: a fur node under a joint
// or under an unknown group is still in the scene.
TEST_F(SceneReaderTest, UnknownNodesKeepTheirPlaceValuesAndConnections) {
    ASSERT_TRUE(
        read("requires \"xrVellMaya\" \"1.0\";\n"                                     // 1
             "requires -nodeType \"rigGroup\" \"studioRig\" \"3.1\";\n"               // 2
             "createNode joint -n \"root\";\n"                                        // 3
             "\tsetAttr \".jo\" -type \"double3\" 0 90 0 ;\n"                         // 4
             "createNode joint -n \"head\" -p \"root\";\n"                            // 5
             "createNode xrVellMaya -n \"furShape\" -p \"head\";\n"                   // 6
             "\tsetAttr -k off \".v\" no;\n"                                          // 7
             "\tsetAttr \".iog[0].og[1].gcl\" -type \"componentList\" 1 \"f[0]\";\n"  // 8
             "\taddAttr -ci true -sn \"note\" -ln \"studioNote\" -dt \"string\";\n"   // 9
             "\tsetAttr \".note\" -type \"string\" \"dense\";\n"                      // 10
             "createNode rigGroup -n \"rig\";\n"                                      // 11
             "createNode xrVellMaya -n \"tailShape\" -p \"rig\";\n"                   // 12
             "createNode shadingEngine -n \"furSG\";\n"                               // 13
             "select -ne :defaultRenderGlobals;\n"                                    // 14
             "\tsetAttr \".ren\" -type \"string\" \"vray\";\n"                        // 15
             "connectAttr \"furShape.iog\" \"furSG.dsm\" -na;\n"                      // 16
             "connectAttr \"furSG.msg\" \":defaultLightSet.dsm\" -na;\n"))            // 17
        << diagnostics.lines()[0];
    EXPECT_EQ(diagnostics.lines(),
              std::vector<std::string>{"scene.ma:2: warning: required plug-in \"studioRig\" not "
                                       "found; searched " PLUGIN_DIR "; its nodes are kept as "
                                       "unknown nodes"});
    const MObject fur = mayahost::findNode("|root|head|furShape");
    ASSERT_FALSE(fur.isNull());
    EXPECT_FALSE(mayahost::findNode("|rig|tailShape").isNull());
    EXPECT_EQ(mayahost::realTypeName(mayahost::findNode("rig")), "rigGroup");
    std::string kept;
    EXPECT_TRUE(mayahost::keptValue(fur, "v", &kept) && kept == "no") << kept;
    EXPECT_TRUE(mayahost::keptValue(fur, "note", &kept) && kept == "-type \"string\" \"dense\"");
    EXPECT_TRUE(mayahost::keptValue(mayahost::findNode("root"), "jo", &kept) &&
                kept == "-type \"double3\" 0 90 0");
    const auto connections = mayahost::keptConnections(mayahost::findNode("furSG"));
    ASSERT_EQ(connections.size(), 2u);
    EXPECT_EQ(connections[0].source, "furShape.iog");
    EXPECT_EQ(connections[1].destination, "defaultLightSet.dsm");
}

// Without the fur product's plug-in there is nothing to render: its nodes are errors, where a
// missing plug-in of anything else is a warning.
TEST_F(SceneReaderTest, AMissingFurPluginIsAnErrorAtItsFirstNode) {
    plugins = xrvell::PluginPath({"/nonexistent"});
    EXPECT_FALSE(
        read("requires -nodeType \"xrVellMaya\" \"xrVellMaya\" \"1.0\";\n"
             "requires -nodeType \"rigGroup\" \"studioRig\" \"3.1\";\n"
             "createNode rigGroup -n \"rig\";\n"
             "createNode xrVellMaya -n \"furShape\" -p \"rig\";\n"));
    const std::vector<std::string> expected = {
        "scene.ma:4: error: required plug-in \"xrVellMaya\" not found; searched /nonexistent",
        "scene.ma:2: warning: required plug-in \"studioRig\" not found; searched /nonexistent; "
        "its nodes are kept as unknown nodes"};
    EXPECT_EQ(diagnostics.lines(), expected);
}

TEST_F(SceneReaderTest, SharedNodeThatExistsIsSelectedNotMadeAgain) {
    ASSERT_TRUE(
        read(kPrelude + "createNode xrVellMaya -s -n \"furShape\";\n\tsetAttr \".rd\" 3;\n"));
    EXPECT_EQ(created, 2u);
    EXPECT_EQ(plug("furShape", "renderDensity").asFloat(), 3.0f);
}

TEST_F(SceneReaderTest, CompoundsTakeTheirNumbersWithOrWithoutAType) {
    ASSERT_TRUE(read(kPrelude + "setAttr \"fur.t\" 1 2 3;\n"
                                "setAttr \"fur.s\" -type \"float3\" 2 0.5 4;\n"
                                "setAttr -k on \"fur.r\";\n"
                                "select -ne furShape;\n"
                                "\tsetAttr \".rn\" -type \"double3\" -3 -2 -1e-400;\n"))
        << diagnostics.lines()[0];
    EXPECT_EQ(plug("fur", "translateZ").asDouble(), 3.0);
    EXPECT_EQ(plug("fur", "scaleY").asDouble(), 0.5);
    EXPECT_EQ(plug("furShape", "roiMinX").asDouble(), -3.0);
    EXPECT_EQ(plug("furShape", "roiMinZ").asDouble(), 0.0) << "too small for a double: zero";
    EXPECT_TRUE(diagnostics.lines().empty());
}

TEST_F(SceneReaderTest, APlugInRequiredUnderTwoNamesLoadsOnce) {
    ASSERT_TRUE(
        read("requires \"xrVellMaya.so\" \"1.0\";\nrequires \"xrVellMaya\" \"1.0\";\n"
             "requires \"xrVellMaya.so\" \"1.0\";\n"))
        << diagnostics.lines()[0];
    EXPECT_EQ(plugins.loadedFiles(), std::vector<std::string>{PLUGIN_DIR "/xrVellMaya.so"});
    EXPECT_EQ(mayahost::loadedPlugins().size(), 1u);
}

// What Maya itself writes is read without a word; what the host skips is one line per kind,
// with a count, at the first place (each at verbosity 2).
TEST_F(SceneReaderTest, RepeatedWarningsOfOneKindAreOneLine) {
    const std::string scene = kPrelude +
                              "fileInfo \"application\" \"maya\";\n"        // 5
                              "\trename -uid \"3C1D5E7F\";\n"               // 6
                              "relationship \"link\" \":lightLinker1\";\n"  // 7
                              "scriptJob -e \"idle\" \"x\";\n"              // 8
                              "evalDeferred \"y\";\n"                       // 9
                              "scriptJob -e \"idle\" \"z\";\n"              // 10
                              "select -r furShape;\n";                      // 11
    ASSERT_TRUE(read(scene)) << diagnostics.lines()[0];
    EXPECT_EQ(diagnostics.lines(),
              std::vector<std::string>{"scene.ma:8: warning: \"scriptJob\" commands are skipped "
                                       "(and 2 more like it; -v 2 lists each)"});
    EXPECT_EQ(diagnostics.warnings(), 3);
    mayahost::reset();
    plugins = xrvell::PluginPath({PLUGIN_DIR});
    diagnostics = xrvell::Diagnostics("scene.ma", nullptr, 2);
    ASSERT_TRUE(read(scene));
    EXPECT_EQ(diagnostics.lines().size(), 3u);
    EXPECT_EQ(diagnostics.lines()[1], "scene.ma:9: warning: \"evalDeferred\" commands are skipped");
}

// A plug-in node's setting driven by an animation curve keeps the value the scene set: the
// host does not evaluate the curve, so the render differs from Maya's and says so.
TEST_F(SceneReaderTest, ASettingDrivenByAnUnevaluatedNodeIsAWarning) {
    ASSERT_TRUE(read(kPrelude + "createNode animCurveTU -n \"densityCurve\";\n"
                                "connectAttr \"densityCurve.o\" \"furShape.rd\";\n"));
    EXPECT_EQ(diagnostics.lines(),
              std::vector<std::string>{
                  "scene.ma:6: warning: \"furShape.rd\" is driven by \"densityCurve\" "
                  "(animCurveTU), which the host does not evaluate; the value set in the scene "
                  "is used"});
}

}  // namespace
