#include <gtest/gtest.h>

#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "vray/PluginRegistry.h"
#include "vray/VRayParameterList.h"
#include "vray/VRayPlugin.h"

namespace {

struct Instance {
    VUtils::PluginRegistry registry;
    VUtils::PluginDesc* desc = nullptr;
    VUtils::VRayPlugin* plugin = nullptr;

    Instance() {
        registry.loadDirectories({FUR_VRAY_DIR});
        desc = registry.getPluginDesc("xrVellVRay");
        plugin = desc ? desc->create() : nullptr;
    }
    ~Instance() {
        if (plugin) desc->destroy(plugin);
    }
};

// An instance type that keeps no parameter list.
struct ListlessPlugin : VUtils::VRayPlugin {};

}  // namespace

TEST(ParameterList, KeepsEveryParameterInTheOrderItWasSetDuplicatesIncluded) {
    Instance fur;
    ASSERT_NE(fur.plugin, nullptr);
    VUtils::DefFloatParam density("density", 1.0f), length("length", 2.0f), again("density", 3.0f);
    VUtils::VRayPluginInterface* face = fur.plugin;
    face->setParameter(&density);
    face->setParameter(&length);
    face->setParameter(&again);
    face->setParameter(&length);
    face->setParameter(nullptr);

    VUtils::VRayParameterList* list = face->getParameterList();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->getNumParams(), 4);
    EXPECT_EQ(list->getParam(0), &density);
    EXPECT_EQ(list->getParam(1), &length);
    EXPECT_EQ(list->getParam(2), &again);
    EXPECT_EQ(list->getParam(3), &length);
    // By name, the entry set first.
    EXPECT_EQ(list->getParam("density"), &density);
    EXPECT_EQ(list->getParam("length"), &length);
    EXPECT_EQ(list->getParam("width"), nullptr);
    EXPECT_EQ(list->getParam(static_cast<const char*>(nullptr)), nullptr);
    EXPECT_EQ(list->getParam(4), nullptr);
    EXPECT_EQ(list->getParam(-1), nullptr);
}

TEST(ParameterList, AnInstanceWithoutAListAcceptsParametersWithoutEffect) {
    ListlessPlugin plugin;
    VUtils::DefIntParam verbosity("verbosity", 0);
    static_cast<VUtils::VRayPluginInterface&>(plugin).setParameter(&verbosity);
    EXPECT_EQ(plugin.getParameterList(), nullptr);
}

TEST(ParameterList, TheFurGeneratorNamesEveryMissingInput) {
    Instance fur;
    VUtils::DefFloatParam density("density", 1.0f);
    fur.plugin->setParameter(&density);
    ::testing::internal::CaptureStderr();
    fur.plugin->frameBegin(1.0);
    const std::string printed = ::testing::internal::GetCapturedStderr();
    EXPECT_EQ(printed,
              "xrVellVRay: missing input \"sampleGenerator\"\n"
              "xrVellVRay: missing input \"length\"\n"
              "xrVellVRay: missing input \"width\"\n"
              "xrVellVRay: missing input \"verbosity\"\n"
              "xrVellVRay: missing input \"imageSearchPath\"\n"
              "xrVellVRay: missing input \"file\"\n"
              "xrVellVRay: missing input \"dynamicHairTesselation\"\n"
              "xrVellVRay: missing input \"segmentLength\"\n"
              "xrVellVRay: missing input \"obeyROI\"\n"
              "xrVellVRay: missing input \"minROI\"\n"
              "xrVellVRay: missing input \"maxROI\"\n"
              "xrVellVRay: frame 1 skipped\n");
}
