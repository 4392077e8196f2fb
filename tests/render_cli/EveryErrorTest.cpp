// One reading reports every failing command and goes on, as Maya does; the lines meant for a
// node that could not be made or found go nowhere else; only the first hundred errors are shown.
#include <maya/MPlug.h>
#include <mayahost/Host.h>

#include <string>
#include <vector>

#include "HostTest.h"
#include "PluginPath.h"
#include "SceneReader.h"

namespace {

const std::string kPrelude =
    "requires \"xrVellMaya\" \"1.0\";\n"
    "createNode transform -n \"fur\";\n"
    "createNode xrVellMaya -n \"furShape\" -p \"fur\";\n"
    "\tsetAttr \".rw\" 0.5;\n";

class EveryErrorTest : public HostTest {
protected:
    bool read(const std::string& text) {
        xrvell::SceneReader reader(
            diagnostics, [this](const std::string& name) { return plugins.require(name); });
        return reader.read(text);
    }
    double value(const char* node, const char* attribute) {
        return mayahost::findPlug(mayahost::findNode(node), attribute).asDouble();
    }

    xrvell::PluginPath plugins{{PLUGIN_DIR}};
    xrvell::Diagnostics diagnostics{"scene.ma", nullptr};
};

TEST_F(EveryErrorTest, EachFailingCommandIsReportedAndTheOthersApply) {
    EXPECT_FALSE(read(kPrelude + "\tsetAttr \".rd\" dense;\n"                       // 5
                                 "\tsetAttr \".rd\" 3;\n"                           // 6
                                 "setAttr \"ghost.rd\" 1;\n"                        // 7
                                 "connectAttr \"furShape.od\" \"nobody.vid\";\n"    // 8
                                 "setAttr \"fur.tx\" 4;\n"                          // 9
                                 "currentUnit -t 23.976;\n"                         // 10
                                 "createNode transform -n \"after\" -p \"fur\";\n"  // 11
                                 "\tsetAttr \".ty\" 5;\n"));                        // 12
    const std::vector<std::string> expected = {
        "scene.ma:5: error: \"furShape.rd\" expects a number, not \"dense\"",
        "scene.ma:7: error: setAttr: no node \"ghost\"",
        "scene.ma:8: error: cannot connect \"furShape.od\" to \"nobody.vid\": no node \"nobody\"",
        "scene.ma:10: error: currentUnit: unsupported time unit \"23.976\""};
    EXPECT_EQ(diagnostics.lines(), expected);
    EXPECT_EQ(diagnostics.errors(), 4);
    EXPECT_EQ(value("furShape", "rd"), 3.0);
    EXPECT_EQ(value("furShape", "rw"), 0.5);
    EXPECT_EQ(value("fur", "tx"), 4.0);
    EXPECT_EQ(value("after", "ty"), 5.0);
}

// After a createNode or select -ne that fails, Maya has not selected the node the following
// lines were written for: they fail, saying why, as one line with a count, and the node before
// keeps its values.
TEST_F(EveryErrorTest, LinesMeantForAFailedNodeLandOnNoOtherNode) {
    const struct {
        const char* command;
        const char* why;
    } cases[] = {
        {"createNode xrVellMaya -n \"fur Mane}\" -p \"fur\";",
         "the createNode of \"fur Mane}\" at line 5 failed"},
        {"createNode xrVellMaya -n \"s\" -p \"nowhere\";",
         "the createNode of \"s\" at line 5 failed"},
        {"createNode xrVellMayaVRay;", "the createNode at line 5 failed"},
        {"createNode xrVellMaya -q -name \"s\";", "the createNode of \"s\" at line 5 failed"},
        {"select -ne furShap;", "the select of \"furShap\" at line 5 failed"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.command);
        for (int verbosity : {1, 2}) {
            mayahost::reset();
            diagnostics = xrvell::Diagnostics("scene.ma", nullptr, verbosity);
            plugins = xrvell::PluginPath({PLUGIN_DIR});
            EXPECT_FALSE(read(kPrelude + c.command +
                              "\n"
                              "\tsetAttr \".rw\" 9;\n"                             // 6
                              "\taddAttr -ci true -ln \"note\" -dt \"string\";\n"  // 7
                              "select -ne furShape;\n"                             // 8
                              "\tsetAttr \".rd\" 2;\n"));                          // 9
            const std::string why = std::string(" (") + c.why + ")";
            const std::vector<std::string> expected[] = {
                {"scene.ma:6: error: setAttr \".rw\": no node is selected" + why +
                 " (and 1 more like it, to line 7; -v 2 lists each)"},
                {"scene.ma:6: error: setAttr \".rw\": no node is selected" + why,
                 "scene.ma:7: error: addAttr: no node is selected" + why}};
            const std::vector<std::string>& lines = diagnostics.lines();
            ASSERT_FALSE(lines.empty());
            EXPECT_EQ(std::vector<std::string>(lines.begin() + 1, lines.end()),
                      expected[verbosity - 1]);
            EXPECT_EQ(diagnostics.errors(), 3);
            EXPECT_EQ(value("furShape", "rw"), 0.5) << "a line for the failed node changed another";
            EXPECT_EQ(value("furShape", "rd"), 2.0) << "a later select -ne did not select again";
        }
    }
}

TEST_F(EveryErrorTest, OnlyTheFirstHundredErrorsAreShownAndAllAreCounted) {
    std::string scene;
    for (int i = 0; i < 150; ++i) scene += "setAttr \"ghost.tx\" 1;\n";
    scene += "scriptJob -e \"idle\" \"x\";\n";
    EXPECT_FALSE(read(scene));
    EXPECT_EQ(diagnostics.errors(), 150);
    EXPECT_EQ(diagnostics.hiddenErrors(), 50);
    const std::vector<std::string>& lines = diagnostics.lines();
    ASSERT_EQ(lines.size(), 101u);
    EXPECT_EQ(lines[99], "scene.ma:100: error: setAttr: no node \"ghost\"");
    EXPECT_EQ(lines[100], "scene.ma:151: warning: \"scriptJob\" commands are skipped")
        << "warnings are still shown";
}

// A syntax error leaves nothing after it that can be told apart: the reading ends there, after
// the errors before it.
TEST_F(EveryErrorTest, ASyntaxErrorEndsTheReadingAfterTheErrorsBeforeIt) {
    EXPECT_FALSE(
        read("setAttr \"ghost.tx\" 1;\n"
             "createNode transform -n \"a\";\n"
             "\tsetAttr \".tx\" \"open;\n"
             "createNode transform -n \"b\";\n"));
    const std::vector<std::string> expected = {"scene.ma:1: error: setAttr: no node \"ghost\"",
                                               "scene.ma:3: error: unterminated string"};
    EXPECT_EQ(diagnostics.lines(), expected);
    EXPECT_FALSE(mayahost::findNode("a").isNull());
    EXPECT_TRUE(mayahost::findNode("b").isNull());
}

// A Maya file with old Mac line ends, cut in its last command: both problems at the right line.
TEST_F(EveryErrorTest, ACutFileIsReportedAtItsLastLineWhateverItsLineEnds) {
    EXPECT_FALSE(
        read("//Maya ASCII 2022 scene\r//Name: shot.ma\rrequires maya \"2022\";\r"
             "createNode transform -n \"t\";\r\tsetAttr \".tx\" 1;\r\r\tsetAttr \".ty\"\r 2"));
    const std::vector<std::string> expected = {
        "scene.ma:7: error: missing ';' at the end of the command",
        "scene.ma:8: warning: the file ends without the line Maya closes its files with (\"// End "
        "of shot.ma\"): it may be truncated"};
    EXPECT_EQ(diagnostics.lines(), expected);
    EXPECT_EQ(value("t", "tx"), 1.0);
}

}  // namespace
