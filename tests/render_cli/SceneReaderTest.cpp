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
        {"UnknownType", p + "createNode furball -n \"x\";",
         "scene.ma:5: error: unknown node type \"furball\""},
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
        {"UnknownPlugin", "requires maya \"2022\";\nrequires \"xrVellNothing\" \"1.0\";",
         std::string("scene.ma:2: error: required plug-in \"xrVellNothing\" not found; searched ") +
             PLUGIN_DIR},
        {"PluginPathName", "requires \"../lib/evil\" \"1.0\";",
         "scene.ma:1: error: requires: invalid plug-in name \"../lib/evil\""},
        {"NoPluginName", "requires;", "scene.ma:1: error: requires: no plug-in named"},
        {"TimeUnit", "currentUnit -l centimeter -t 23.976fps;",
         "scene.ma:1: error: currentUnit: unsupported time unit \"23.976fps\""},
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
         "scene.ma:5: error: \"time1.o\" expects a time within double range, not \"1e400\""},
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

TEST_F(SceneReaderTest, EachBadInputStopsWithItsMessage) {
    for (const BadInput& bad : badInputs()) {
        SCOPED_TRACE(bad.name);
        mayahost::reset();
        diagnostics = xrvell::Diagnostics("scene.ma", nullptr);
        plugins = xrvell::PluginPath({PLUGIN_DIR});
        // A later command that must not run, where the bad input leaves room for one.
        const bool complete = bad.text.back() == ';';
        EXPECT_FALSE(read(bad.text + (complete ? "\ncreateNode transform -n \"after\";\n" : "")));
        EXPECT_EQ(diagnostics.lines(), std::vector<std::string>{bad.message});
        EXPECT_EQ(diagnostics.errors(), 1);
        EXPECT_TRUE(mayahost::findNode("after").isNull()) << "reading went on after the error";
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

TEST_F(SceneReaderTest, NameOfASkippedNodeCanBeUsedAgain) {
    ASSERT_TRUE(read(kPrelude + "createNode camera -n \"cam\";\ncreateNode transform -n \"cam\";\n"
                                "setAttr \"cam.tx\" 4;\n"));
    EXPECT_EQ(plug("cam", "translateX").asDouble(), 4.0);
}

TEST_F(SceneReaderTest, SharedNodeThatExistsIsSelectedNotMadeAgain) {
    ASSERT_TRUE(
        read(kPrelude + "createNode xrVellMaya -s -n \"furShape\";\n\tsetAttr \".rd\" 3;\n"));
    EXPECT_EQ(created, 2u);
    EXPECT_EQ(plug("furShape", "renderDensity").asFloat(), 3.0f);
}

// Maya writes the DAG node and shape attributes every shape inherits (hidden shapes, display
// overrides, render flags); the host does not model them on plug-in shapes either.
TEST_F(SceneReaderTest, InheritedDagAttributesOfPlugInShapesAreSkippedWithAWarning) {
    ASSERT_TRUE(read(kPrelude +
                     "\tsetAttr \".v\" no;\n"                                                 // 5
                     "\tsetAttr \".tmp\" yes;\n"                                              // 6
                     "\tsetAttr \".io\" yes;\n"                                               // 7
                     "\tsetAttr \".lod\" yes;\n"                                              // 8
                     "\tsetAttr -s 2 \".iog[0].og\";\n"                                       // 9
                     "\tsetAttr \".iog[0].og[1].gcl\" -type \"componentList\" 1 \"f[0]\";\n"  // 10
                     "\tsetAttr \".csh\" no;\n"                                               // 11
                     "\tsetAttr \".visibility\" yes;\n"                                       // 12
                     "\tsetAttr \".ihi\" 0;\n"                                                // 13
                     "createNode xrVellMayaVRay -n \"bridge\" -p \"fur\";\n"                  // 14
                     "\tsetAttr \".v\" no;\n"                                                 // 15
                     "\tsetAttr \".ovdt\" 2;\n"))                                             // 16
        << diagnostics.lines()[0];
    const std::vector<std::string> expected = {
        "scene.ma:5: warning: attribute \"v\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:6: warning: attribute \"tmp\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:7: warning: attribute \"io\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:8: warning: attribute \"lod\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:9: warning: attribute \"iog\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:11: warning: attribute \"csh\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:12: warning: attribute \"visibility\" is not modelled on \"xrVellMaya\" nodes; "
        "skipped",
        "scene.ma:13: warning: attribute \"ihi\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:15: warning: attribute \"v\" is not modelled on \"xrVellMayaVRay\" nodes; "
        "skipped",
        "scene.ma:16: warning: attribute \"ovdt\" is not modelled on \"xrVellMayaVRay\" nodes; "
        "skipped",
    };
    EXPECT_EQ(diagnostics.lines(), expected);
    EXPECT_EQ(diagnostics.errors(), 0);
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

// What a real Maya file holds beyond the fur: each kind gives one warning and is skipped.
TEST_F(SceneReaderTest, WarnsOnceForWhatItSkips) {
    ASSERT_TRUE(read(kPrelude +
                     "fileInfo \"application\" \"maya\";\n"                              // 5
                     "fileInfo \"product\" \"Maya 2022\";\n"                             // 6
                     "createNode camera -s -n \"perspShape\" -p \"fur\";\n"              // 7
                     "\tsetAttr \".fl\" 35;\n"                                           // 8
                     "createNode camera -n \"topShape\";\n"                              // 9
                     "select -ne :hardwareRenderingGlobals;\n"                           // 10
                     "\tsetAttr \".otfna\" -type \"stringArray\" 2 \"a\" \"b\" ;\n"      // 11
                     "connectAttr \"fur.msg\" \":defaultList1.c\" -na;\n"                // 12
                     "setAttr \"fur.v\" no;\n"                                           // 13
                     "setAttr \"fur.v\" yes;\n"                                          // 14
                     "select -ne furShape;\n"                                            // 15
                     "\tsetAttr -k off \".v\";\n"                                        // 16
                     "\taddAttr -ci true -ln \"custom\" -at \"float\";\n"                // 17
                     "\tsetAttr \".custom\" 2;\n"                                        // 18
                     "requires -nodeType \"VRaySettingsNode\" \"vrayformaya\" \"5\";\n"  // 19
                     "createNode VRaySettingsNode -s -n \"vraySettings\";\n"             // 20
                     "\tsetAttr \".anything\" 1;\n"                                      // 21
                     "select -r furShape;\n"))                                           // 22
        << diagnostics.lines()[0];
    const std::vector<std::string> expected = {
        "scene.ma:5: warning: \"fileInfo\" commands are skipped",
        "scene.ma:7: warning: node type \"camera\" is not modelled by the stand-in host; its "
        "nodes are skipped",
        "scene.ma:10: warning: node \"hardwareRenderingGlobals\" is not in the scene; its "
        "settings are skipped",
        "scene.ma:12: warning: node \"defaultList1\" is not in the scene; its settings are "
        "skipped",
        "scene.ma:13: warning: attribute \"v\" is not modelled on \"transform\" nodes; skipped",
        "scene.ma:16: warning: attribute \"v\" is not modelled on \"xrVellMaya\" nodes; skipped",
        "scene.ma:17: warning: \"addAttr\" commands are skipped",
        "scene.ma:20: warning: node type \"VRaySettingsNode\" is not modelled by the stand-in "
        "host; its nodes are skipped",
        "scene.ma:22: warning: \"select\" commands are skipped",
    };
    EXPECT_EQ(diagnostics.lines(), expected);
    EXPECT_EQ(diagnostics.warnings(), 9);
    EXPECT_EQ(diagnostics.errors(), 0);
}

}  // namespace
