// What a scene that reads without an error can still get wrong: no bridge, or a bridge that no
// fur node feeds. Each is one warning on the scene as a whole, naming the bridge and its feeder.
#include <mayahost/Host.h>

#include <string>
#include <vector>

#include "HostTest.h"
#include "PluginPath.h"
#include "SceneChecks.h"
#include "SceneReader.h"

namespace {

const std::string kPlugins =
    "requires \"xrVellMaya\" \"1.0\";\nrequires \"xrVellVRayMaya\" \"1.0\";\n";
const std::string kFur = "createNode xrVellMaya -n \"fur\";\n";
const std::string kBridge = "createNode xrVellMayaVRay -n \"bridge\";\n";
const std::string kDefaults = "; the renderer would receive the defaults";

class SceneChecksTest : public HostTest {
protected:
    // The warnings of the checks alone, at the given verbosity.
    std::vector<std::string> checked(const std::string& scene, int verbosity = 1) {
        xrvell::Diagnostics reading("scene.ma", nullptr);
        xrvell::PluginPath plugins({FUR_VARIANT_DIR, PLUGIN_DIR});
        xrvell::SceneReader reader(reading,
                                   [&](const std::string& name) { return plugins.require(name); });
        EXPECT_TRUE(reader.read(scene)) << reading.lines()[0];
        xrvell::Diagnostics diagnostics("scene.ma", nullptr, verbosity);
        xrvell::SceneChecks(diagnostics).run();
        diagnostics.flush();
        EXPECT_EQ(diagnostics.errors(), 0);
        return diagnostics.lines();
    }
};

TEST_F(SceneChecksTest, EachSilentWrongOutcomeIsOneWarning) {
    const struct {
        const char* name;
        std::string scene;
        std::string warning;  // empty: none
    } cases[] = {
        {"fed", kPlugins + kFur + kBridge + "connectAttr \"fur.od\" \"bridge.vid\";\n", ""},
        {"noBridge", kPlugins + kFur,
         "scene.ma: warning: the scene has no xrVellMayaVRay node: there is nothing to render"},
        {"empty", "",
         "scene.ma: warning: the scene has no xrVellMayaVRay node: there is nothing to render"},
        {"notConnected", kPlugins + kFur + kBridge + "connectAttr \":time1.o\" \"bridge.time\";\n",
         "scene.ma: warning: bridge \"bridge\": nothing feeds its inputData" + kDefaults},
        {"lookalikeFur",
         "requires \"furImpostor\" \"1.0\";\nrequires \"xrVellVRayMaya\" \"1.0\";\n"
         "createNode xrVellMayaImpostor -n \"imp\";\n" +
             kBridge + "connectAttr \"imp.od\" \"bridge.vid\";\n",
         "scene.ma: warning: bridge \"bridge\": its inputData is fed by \"imp.outputData\" "
         "(xrVellMayaImpostor), not by an xrVellMaya node" +
             kDefaults},
        {"unknownNode",
         kPlugins + kBridge + "createNode furCacheReader -n \"reader\";\n" +
             "connectAttr \"reader.out\" \"bridge.vid\";\n",
         "scene.ma: warning: bridge \"bridge\": its inputData is fed by \"reader.out\" "
         "(furCacheReader), not by an xrVellMaya node" +
             kDefaults},
        {"repeatedShortName",
         kPlugins + kFur + "createNode transform -n \"a\";\ncreateNode transform -n \"b\";\n" +
             "createNode xrVellMayaVRay -n \"bridge\" -p \"a\";\n"
             "createNode xrVellMayaVRay -n \"bridge\" -p \"b\";\n"
             "connectAttr \"fur.od\" \"a|bridge.vid\";\n",
         "scene.ma: warning: bridge \"b|bridge\": nothing feeds its inputData" + kDefaults},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        mayahost::reset();
        const std::vector<std::string> expected =
            c.warning.empty() ? std::vector<std::string>{} : std::vector<std::string>{c.warning};
        EXPECT_EQ(checked(c.scene), expected);
    }
}

TEST_F(SceneChecksTest, BridgesWithoutFurAreOneLineWithACountUnlessListed) {
    const std::string scene = kPlugins + kFur + "createNode xrVellMayaVRay -n \"b1\";\n" +
                              "createNode xrVellMayaVRay -n \"b2\";\n" +
                              "createNode xrVellMayaVRay -n \"b3\";\n" +
                              "connectAttr \"fur.od\" \"b2.vid\";\n";
    EXPECT_EQ(checked(scene),
              std::vector<std::string>{"scene.ma: warning: bridge \"b1\": nothing feeds its "
                                       "inputData" +
                                       kDefaults + " (and 1 more like it; -v 2 lists each)"});
    mayahost::reset();
    const std::vector<std::string> each = {
        "scene.ma: warning: bridge \"b1\": nothing feeds its inputData" + kDefaults,
        "scene.ma: warning: bridge \"b3\": nothing feeds its inputData" + kDefaults};
    EXPECT_EQ(checked(scene, 2), each);
}

}  // namespace
