#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "FakeInterface.h"
#include "params/DefFloatListParam.h"
#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "params/DefStringParam.h"
#include "params/DefVectorParam.h"

using VUtils::VRayPluginParameter;

namespace {

std::vector<std::unique_ptr<VRayPluginParameter>> everyParameterClass() {
    std::vector<std::unique_ptr<VRayPluginParameter>> params;
    params.emplace_back(new VUtils::DefIntParam("i", 1));
    params.emplace_back(new VUtils::DefFloatParam("f", 1.0f));
    params.emplace_back(new VUtils::DefVectorParam("v"));
    params.emplace_back(new VUtils::DefStringParam("s"));
    params.emplace_back(new VUtils::DefFloatListParam("l"));
    return params;
}

// The interfaces every parameter class answers itself, and the names they report.
const std::pair<unsigned long, const char*> kBuiltIns[] = {
    {EXT_RTTEX, "EXT_RTTEX"},
    {EXT_TEXTURE, "EXT_TEXTURE"},
    {EXT_TEXTURE_FLOAT, "EXT_TEXTURE_FLOAT"},
    {EXT_TEXTURE_INT, "EXT_TEXTURE_INT"},
    {EXT_TEXTURE_TRANSFORM, "EXT_TEXTURE_TRANSFORM"},
    {EXT_TEXTURE_VECTOR, "EXT_TEXTURE_VECTOR"},
    {EXT_SETTABLE_PARAM, "EXT_SETTABLE_PARAM"},
    {EXT_CLONEABLE_PARAM, "EXT_CLONEABLE_PARAM"},
};

}  // namespace

TEST(NewInterface, UnknownIdsAreComparedInSixtyFourBits) {
    const unsigned long unknown[] = {
        0, EXT_ANIMATEDPARAM, 0xFFFFFFFF, 1ul << 32, (1ul << 32) | EXT_TEXTURE_FLOAT, ~0ul};
    for (const auto& param : everyParameterClass()) {
        for (unsigned long id : unknown) {
            EXPECT_EQ(nullptr, param->newInterface(id)) << param->getName() << " " << id;
        }
    }
}

// Ids that differ only above bit 31 are different interfaces.
TEST(NewInterface, AddedInterfacesComeAfterTheBuiltInsAndMatchInSixtyFourBits) {
    const unsigned long high = 1ul << 32;
    std::vector<std::string> releases;
    FakeInterface extra(0x1234, "EXTRA", &releases);
    FakeInterface wide(high | 0x5678, "WIDE", &releases);
    std::vector<std::unique_ptr<FakeInterface>> shadows;
    for (const auto& builtIn : kBuiltIns)
        shadows.emplace_back(new FakeInterface(builtIn.first, "SHADOW", &releases));
    for (const auto& param : everyParameterClass()) {
        SCOPED_TRACE(param->getName());
        EXPECT_EQ(nullptr, param->newInterface(0x1234));
        for (const auto& shadow : shadows) EXPECT_TRUE(param->addInterface(shadow.get(), 0));
        EXPECT_TRUE(param->addInterface(&extra, 0));
        EXPECT_TRUE(param->addInterface(&wide, 0));
        for (const auto& builtIn : kBuiltIns) {
            PluginInterface* found = param->newInterface(builtIn.first);
            ASSERT_NE(nullptr, found) << builtIn.second;
            EXPECT_STREQ(builtIn.second, found->getInterfaceName());
            EXPECT_EQ(nullptr, param->newInterface(high | builtIn.first)) << builtIn.second;
        }
        EXPECT_EQ(&extra, param->newInterface(0x1234));
        EXPECT_EQ(nullptr, param->newInterface(high | 0x1234));
        EXPECT_EQ(&wide, param->newInterface(high | 0x5678));
        EXPECT_EQ(nullptr, param->newInterface(0x5678));
    }
    EXPECT_TRUE(releases.empty());
}

TEST(RemoveInterface, TakesTheNewestNodeOnly) {
    std::vector<std::string> releases;
    FakeInterface x(0x1234, "x", &releases);
    {
        VUtils::DefIntParam param("i", 1);
        EXPECT_FALSE(param.removeInterface(&x));
        param.addInterface(&x, 1);
        param.addInterface(&x, 0);
        EXPECT_TRUE(param.removeInterface(&x));
        EXPECT_TRUE(releases.empty());
        EXPECT_EQ(&x, param.newInterface(0x1234));
    }
    // The older node, added with deleteOnDestroy, was the one left.
    EXPECT_EQ(std::vector<std::string>{"x"}, releases);
}

TEST(RemoveInterface, UnlinksFromTheMiddleAndReportsMisses) {
    std::vector<std::string> releases;
    FakeInterface a(1, "a", &releases);
    FakeInterface b(2, "b", &releases);
    FakeInterface c(3, "c", &releases);
    {
        VUtils::DefStringParam param("s");
        param.addInterface(&a, 1);
        param.addInterface(&b, 1);
        param.addInterface(&c, 1);
        EXPECT_TRUE(param.removeInterface(&b));
        EXPECT_FALSE(param.removeInterface(&b));
        EXPECT_EQ(nullptr, param.newInterface(2));
        EXPECT_EQ(&a, param.newInterface(1));
        EXPECT_EQ(&c, param.newInterface(3));
    }
    EXPECT_EQ((std::vector<std::string>{"a", "c"}), releases);
}

TEST(Destruction, ReleasesOnlyDeleteOnDestroyOldestFirst) {
    std::vector<std::string> releases;
    FakeInterface first(1, "first", &releases);
    FakeInterface none(2, "none", &releases);
    FakeInterface persistent(3, "persistent", &releases);
    FakeInterface three(4, "three", &releases);
    FakeInterface last(5, "last", &releases);
    {
        VUtils::DefFloatListParam param("l");
        param.addInterface(&first, 1);
        param.addInterface(&none, 0);
        param.addInterface(&persistent, 2);
        param.addInterface(&three, 3);
        param.addInterface(&last, 1);
    }
    EXPECT_EQ((std::vector<std::string>{"first", "last"}), releases);
}

TEST(Destruction, DefaultReleaseHandsTheInterfaceToItsPlugin) {
    RecordingPlugin owner;
    OwnedInterface owned(&owner);
    OwnedInterface orphan(nullptr);
    {
        VUtils::DefVectorParam param("v");
        param.addInterface(&owned, 1);
        param.addInterface(&orphan, 1);
    }
    EXPECT_EQ(std::vector<PluginInterface*>{&owned}, owner.handedBack);
}

TEST(Destruction, LongInterfaceListsDoNotRecurse) {
    std::vector<std::string> releases;
    FakeInterface x(1, "x", &releases);
    {
        VUtils::DefIntParam param("i", 0);
        for (int i = 0; i < 200000; ++i) {
            param.addInterface(&x, i == 0 ? 1 : 0);
        }
    }
    EXPECT_EQ(std::vector<std::string>{"x"}, releases);
}

TEST(Clone, StartsWithoutTheAddedInterfaces) {
    std::vector<std::string> releases;
    FakeInterface extra(0x1234, "EXTRA", &releases);
    for (const auto& param : everyParameterClass()) {
        param->addInterface(&extra, 0);
        auto* cloneable = static_cast<VUtils::VRayCloneableParamInterface*>(
            param->newInterface(EXT_CLONEABLE_PARAM));
        std::unique_ptr<VRayPluginParameter> copy(cloneable->clone());
        EXPECT_EQ(nullptr, copy->newInterface(0x1234)) << param->getName();
        EXPECT_EQ(param->getType(0, 0.0), copy->getType(0, 0.0));
    }
}
