#include <gtest/gtest.h>

#include "../FakeInterface.h"
#include "CountingAllocator.h"
#include "params/DefFloatListParam.h"
#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "params/DefStringParam.h"
#include "params/DefVectorParam.h"
#include "vray/OCLData.h"
#include "vray/ShaderSource.h"
#include "vray/VRayContext.h"

namespace {

// Every getter and texture answer the renderer may call per sample.
void readEverything(VUtils::DefParamBase& p) {
    const VUtils::VRayContext context{};
    volatile float sink = 0.0f;
    const char* name = nullptr;
    sink = sink + static_cast<float>(p.getInt(0, 0.0)) + p.getFloat(0, 0.0) +
           static_cast<float>(p.getDouble(0, 0.0)) + static_cast<float>(p.getBool(0, 0.0));
    sink = sink + p.getVector(0, 0.0).x + p.getColor(0, 0.0).r + p.getAColor(0, 0.0).alpha;
    sink = sink + p.getMatrix(0, 0.0).m[0].x + static_cast<float>(p.getTransform(0, 0.0).offs.x);
    sink = sink + (p.getString(0, 0.0) ? 1.0f : 0.0f) + (p.getObject(0, 0.0, &name) ? 1.0f : 0.0f);
    sink =
        sink + static_cast<float>(p.getFloatList(0.0).length + p.getCount(0.0) + p.getType(0, 0.0));
    sink = sink + p.getTexColor(context).alpha + p.getTexFloat(context) +
           static_cast<float>(p.getTexInt(context)) + p.getTexVector(context).w +
           p.getTexTransform(context).offs.x;
    VUtils::AColor alo{};
    VUtils::AColor ahi{};
    p.getTexColorBounds(alo, ahi);
    float flo = 0.0f;
    float fhi = 0.0f;
    p.getTexFloatBounds(flo, fhi);
    VUtils::simd::Vector3f vlo{};
    VUtils::simd::Vector3f vhi{};
    p.getTexVectorBounds(vlo, vhi);
    sink = sink + p.getColorBumpGradient(context).x + p.getFloatBumpGradient(context).y;
    for (unsigned long id : {EXT_TEXTURE, EXT_TEXTURE_FLOAT, EXT_TEXTURE_VECTOR, EXT_TEXTURE_INT,
                             EXT_TEXTURE_TRANSFORM, EXT_RTTEX, EXT_SETTABLE_PARAM,
                             EXT_CLONEABLE_PARAM, EXT_ANIMATEDPARAM, 0ul}) {
        sink = sink + (p.newInterface(id) ? 1.0f : 0.0f);
    }
}

}  // namespace

TEST(NoAllocation, GettersTextureAnswersAndLookupsAllocateNothing) {
    VUtils::DefIntParam i("i", 3);
    VUtils::DefFloatParam f("f", 0.5f);
    VUtils::DefVectorParam v("v");
    VUtils::DefStringParam s("s");
    s.setString("abc", 0, 0.0);
    VUtils::DefFloatListParam l("l");
    for (int k = 0; k < 10; ++k) {
        l.setFloat(static_cast<float>(k), -1, 0.0);
    }
    VUtils::DefParamBase* params[] = {&i, &f, &v, &s, &l};
    for (VUtils::DefParamBase* p : params) {
        const std::size_t before = heapAllocations();
        readEverything(*p);
        EXPECT_EQ(before, heapAllocations()) << p->getName();
    }
}

TEST(NoAllocation, ShaderSourceAllocatesOnlyForTheRendererBuffer) {
    VUtils::DefFloatParam f("f", 0.5f);
    VUtils::ShaderSource source;
    source.text.reserve(256);
    const std::size_t before = heapAllocations();
    EXPECT_TRUE(f.getSource("", "", "MaterialDescriptor", source, VUtils::OCLData{}));
    EXPECT_EQ(before, heapAllocations());
}

TEST(NoAllocation, TheCounterSeesAllocations) {
    const std::size_t before = heapAllocations();
    VUtils::DefStringParam s("s");
    s.setString("abc", 0, 0.0);
    EXPECT_EQ(before + 2, heapAllocations());
}

// The old text is given back before the new copy is made.
TEST(StringReplacement, FreesTheOldTextBeforeCopying) {
    VUtils::DefStringParam s("s");
    s.setString("abc", 0, 0.0);
    const std::size_t allocations = heapAllocations();
    const std::size_t releases = heapReleases();
    s.setString("xyz", 0, 0.0);
    EXPECT_EQ(allocations + 1, heapAllocations());
    EXPECT_EQ(releases + 1, heapReleases());
    EXPECT_EQ(releases + 1, heapReleasesAtLastAllocation());
    s.setString(nullptr, 0, 0.0);
    EXPECT_EQ(allocations + 1, heapAllocations());
    EXPECT_EQ(releases + 2, heapReleases());
}

// Without the leak checker of the sanitizer build, the count shows a block a parameter keeps.
TEST(Destruction, GivesBackEveryBlockTheParametersTook) {
    const std::size_t allocations = heapAllocations();
    const std::size_t releases = heapReleases();
    {
        OwnedInterface added(nullptr);
        VUtils::DefIntParam i("i", 3, true);
        VUtils::DefFloatParam f("f", 0.1f, true);
        VUtils::DefVectorParam v("v", true);
        VUtils::DefStringParam s("s", true);
        s.setString("first", 0, 0.0);
        s.setString("second", 0, 0.0);
        VUtils::DefFloatListParam l("l", true);
        for (int k = 0; k < 250; ++k) l.setFloat(0.1f * static_cast<float>(k), -1, 0.0);
        VUtils::DefParamBase* params[] = {&i, &f, &v, &s, &l};
        for (VUtils::DefParamBase* p : params) {
            for (int flags : {0, 1, 2}) p->addInterface(&added, flags);
            auto* cloneable = static_cast<VUtils::VRayCloneableParamInterface*>(
                p->newInterface(EXT_CLONEABLE_PARAM));
            delete cloneable->clone();
        }
        l.setCount(400, 0.0);
        l.reserve(500, 0.0);
    }
    EXPECT_LT(allocations + 10, heapAllocations());
    EXPECT_EQ(heapAllocations() - allocations, heapReleases() - releases);
}
