#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

#include "vray/PluginRegistry.h"

using VUtils::PluginRegistry;

TEST(PluginRegistry, FindsTheFurPluginTypeAndNothingElse) {
    PluginRegistry registry;
    EXPECT_TRUE(registry.loadDirectories({FUR_VRAY_DIR}).empty());
    ASSERT_NE(registry.getPluginDesc("xrVellVRay"), nullptr);
    EXPECT_STREQ(registry.getPluginDesc("xrVellVRay")->typeName, "xrVellVRay");
    EXPECT_EQ(registry.getPluginDesc("xrVellVRay2"), nullptr);
    EXPECT_EQ(registry.getPluginDesc("xrVell"), nullptr);
    EXPECT_EQ(registry.getPluginDesc(nullptr), nullptr);
}

TEST(PluginRegistry, NamesEveryFileItCannotUseAndLoadsTheRest) {
    const std::string broken = std::string(FIXTURE_DIR) + "/zz_broken.so";
    std::ofstream(broken) << "not an ELF file";
    PluginRegistry registry;
    const std::vector<std::string> problems =
        registry.loadDirectories({"/no/such/plugins", FIXTURE_DIR, FUR_VRAY_DIR});

    ASSERT_EQ(problems.size(), 4u);
    EXPECT_EQ(problems[0].rfind("renderer plugin directory '/no/such/plugins' cannot be read: ", 0),
              0u)
        << problems[0];
    const std::string fixtures = FIXTURE_DIR;
    EXPECT_EQ(problems[1], "'" + fixtures +
                               "/NotAPluginLibrary.so' is not a renderer plugin library: it does "
                               "not export vrayPluginLibraryApiVersion and vrayPluginLibraryDescs");
    EXPECT_EQ(problems[2], "renderer plugin library '" + fixtures +
                               "/OtherApiLibrary.so' is built for API version 1, this renderer "
                               "needs 20220001");
    EXPECT_EQ(problems[3].rfind("renderer plugin library '" + broken + "' cannot be loaded: ", 0),
              0u)
        << problems[3];
    EXPECT_NE(registry.getPluginDesc("xrVellVRay"), nullptr);
    std::remove(broken.c_str());
}

TEST(PluginRegistry, ATypeFoundTwiceKeepsItsFirstLibrary) {
    PluginRegistry registry;
    registry.loadDirectories({FUR_VRAY_DIR, FUR_VRAY_DIR});
    EXPECT_EQ(registry.typeNames(), std::vector<std::string>{"xrVellVRay"});
}

TEST(PluginRegistry, ReadsItsSearchPathFromTheEnvironment) {
    setenv(PluginRegistry::kSearchPathVariable, "/a::/b/c:", 1);
    EXPECT_EQ(PluginRegistry::directoriesFromEnvironment(),
              (std::vector<std::string>{"/a", "/b/c"}));
    unsetenv(PluginRegistry::kSearchPathVariable);
    EXPECT_TRUE(PluginRegistry::directoriesFromEnvironment().empty());
}
