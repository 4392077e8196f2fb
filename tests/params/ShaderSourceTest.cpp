#include <gtest/gtest.h>

#include <string>

#include "ProbeParam.h"
#include "params/DefFloatParam.h"
#include "vray/OCLData.h"
#include "vray/ShaderSource.h"

namespace {

struct SourceCase {
    int type;
    const char* expected;
};

}  // namespace

TEST(GetSource, RefusesAnyDescriptorButMaterialDescriptorExactly) {
    VUtils::DefFloatParam param("f", 2.0f);
    VUtils::ShaderSource source;
    const VUtils::OCLData ocl;
    for (const char* kind : {"MaterialDescriptor ", "MaterialDescripto", "materialDescriptor",
                             "MaterialDescriptorX", "", static_cast<const char*>(nullptr)}) {
        EXPECT_FALSE(param.getSource("a", "b", kind, source, ocl)) << (kind ? kind : "(null)");
    }
    EXPECT_EQ("", source.text);
}

TEST(GetSource, AppendsOneColorLinePerValueType) {
    // Scalars repeat their value in alpha; a colour gets alpha 1.
    const SourceCase cases[] = {
        {0, "color 7.000000 7.000000 7.000000 7.000000\n"},
        {1, "color 0.250000 0.250000 0.250000 0.250000\n"},
        {2, "color -2.500000 -2.500000 -2.500000 -2.500000\n"},
        {4, "color 0.000000 0.000000 0.000000 0.000000\n"},
        {5, "color 0.500000 0.250000 0.125000 1.000000\n"},
        {6, "color 1.000000 2.000000 4.000000 0.500000\n"},
        {10000, "color 0.000000 0.000000 0.000000 0.000000\n"},
    };
    for (const SourceCase& c : cases) {
        SCOPED_TRACE(c.type);
        ProbeParam p(c.type);
        p.i = 7;
        p.f = 0.25f;
        p.d = -2.5;
        p.c = VUtils::Color{0.5f, 0.25f, 0.125f};
        p.a = VUtils::AColor{{1.0f, 2.0f, 4.0f}, 0.5f};
        VUtils::ShaderSource source;
        source.text = "head\n";
        VUtils::OCLData ocl;
        ocl.frameTime = 12.0;
        EXPECT_TRUE(p.getSource(nullptr, nullptr, "MaterialDescriptor", source, ocl));
        EXPECT_EQ(std::string("head\n") + c.expected, source.text);
        // The type is asked at time 0, the value at the frame time.
        EXPECT_EQ(0.0, p.typeTime);
        const bool readsValue = c.type != 4 && c.type != 10000;
        EXPECT_EQ(readsValue ? 12.0 : -1.0, p.valueTime);
    }
}

TEST(GetSource, FloatParameterPassesItsValueFourTimes) {
    VUtils::DefFloatParam param("f", 2.0f);
    VUtils::ShaderSource source;
    EXPECT_TRUE(param.getSource("", "", "MaterialDescriptor", source, VUtils::OCLData{}));
    EXPECT_EQ("color 2.000000 2.000000 2.000000 2.000000\n", source.text);
}
