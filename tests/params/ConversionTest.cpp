#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ProbeParam.h"
#include "params/AnimatedParameterInterface.h"
#include "vray/VRayContext.h"

using VUtils::AColor;
using VUtils::Color;

namespace {

void fillValues(ProbeParam& p) {
    p.i = 7;
    p.f = 0.25f;
    p.d = 2.5;
    p.c = Color{0.3f, 0.6f, 0.9f};
    p.a = AColor{{1.0f, 2.0f, 4.0f}, 0.5f};
    p.expectedIndex = 3;
    p.expectedTime = 1.5;
}

struct ConversionRow {
    int type;
    float asFloat;
    Color asColor;
    AColor asAColor;
};

void expectColor(const Color& expected, const Color& actual) {
    EXPECT_EQ(expected.r, actual.r);
    EXPECT_EQ(expected.g, actual.g);
    EXPECT_EQ(expected.b, actual.b);
}

void expectAColor(const AColor& expected, const AColor& actual) {
    expectColor(expected.color, actual.color);
    EXPECT_EQ(expected.alpha, actual.alpha);
}

}  // namespace

// The sums are multiplied by the float 1/3: 0.600000024 and 2.33333349 where a
// division by 3 would give 0.599999964 and 2.33333325.
TEST(DefParamBaseConversion, FollowsTheTypeTable) {
    const ConversionRow rows[] = {
        {0, 0.0f, {0, 0, 0}, {{0, 0, 0}, 0}},
        {1, 0.25f, {0.25f, 0.25f, 0.25f}, {{0.25f, 0.25f, 0.25f}, 1.0f}},
        {2, 2.5f, {2.5f, 2.5f, 2.5f}, {{2.5f, 2.5f, 2.5f}, 1.0f}},
        {4, 0.0f, {0, 0, 0}, {{0, 0, 0}, 0}},
        {5, 0.600000024f, {0.3f, 0.6f, 0.9f}, {{0.3f, 0.6f, 0.9f}, 1.0f}},
        {6, 2.33333349f, {1.0f, 2.0f, 4.0f}, {{1.0f, 2.0f, 4.0f}, 0.5f}},
        {9, 0.0f, {0, 0, 0}, {{0, 0, 0}, 0}},
        {10000, 0.0f, {0, 0, 0}, {{0, 0, 0}, 0}},
    };
    for (const ConversionRow& row : rows) {
        SCOPED_TRACE(row.type);
        ProbeParam p(row.type);
        fillValues(p);
        EXPECT_EQ(row.asFloat, p.getFloat(3, 1.5));
        expectColor(row.asColor, p.getColor(3, 1.5));
        expectAColor(row.asAColor, p.getAColor(3, 1.5));
        EXPECT_FALSE(p.argumentsChanged) << "index and time must be handed on";
    }
}

// Summed left to right before the multiply: (1e8 + -1e8) + 1 is 1, while
// 1e8 + (-1e8 + 1) is 0 in float, and so is (1 + 1e8) + -1e8.
TEST(DefParamBaseConversion, ThirdOfTheSumKeepsTheOrderOfTheSum) {
    const struct {
        int type;
        Color rgb;
        float asFloat;
    } rows[] = {
        {5, {1e8f, -1e8f, 1.0f}, 0.33333334f},
        {6, {1e8f, -1e8f, 1.0f}, 0.33333334f},
        {5, {1.0f, 1e8f, -1e8f}, 0.0f},
        {6, {1.0f, 1e8f, -1e8f}, 0.0f},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.type);
        ProbeParam p(row.type);
        p.c = row.rgb;
        p.a = AColor{row.rgb, 7.0f};
        EXPECT_EQ(row.asFloat, p.getFloat(0, 0.0));
    }
}

// The base has no conversion into the kind a class stores itself: that class answers.
TEST(DefParamBaseConversion, OwnKindIsLeftToTheClass) {
    ProbeParam floatKind(1);
    ProbeParam colorKind(5);
    ProbeParam acolorKind(6);
    for (ProbeParam* p : {&floatKind, &colorKind, &acolorKind}) {
        fillValues(*p);
    }
    EXPECT_EQ(0.0f, floatKind.DefParamBase::getFloat(3, 1.5));
    expectColor(Color{0, 0, 0}, colorKind.DefParamBase::getColor(3, 1.5));
    expectAColor(AColor{{0, 0, 0}, 0}, acolorKind.DefParamBase::getAColor(3, 1.5));
}

TEST(DefParamBaseConversion, DoubleIsNarrowedNotTruncated) {
    ProbeParam p(2);
    fillValues(p);
    p.d = 0.1;
    EXPECT_EQ(0.1f, p.getFloat(3, 1.5));
    p.d = 1e300;
    EXPECT_EQ(std::numeric_limits<float>::infinity(), p.getFloat(3, 1.5));
}

TEST(DefParamBaseConversion, BoolIsTheIntegerUnchanged) {
    ProbeParam p(1);
    fillValues(p);
    for (int value : {0, 1, -1, 42}) {
        p.i = value;
        EXPECT_EQ(value, p.getBool(3, 1.5));
    }
}

// A parameter base that stores nothing and overrides nothing.
TEST(DefParamBaseDefaults, AnswerNoValue) {
    VUtils::DefParamBase p("bare");
    VUtils::VRayPluginParameter& base = p;
    EXPECT_EQ(10000, base.getType(0, 0.0));
    EXPECT_EQ(0.0f, base.getFloat(0, 0.0));
    EXPECT_EQ(-1, base.getCount(0.0));
    EXPECT_EQ(nullptr, base.openList(0));
    EXPECT_EQ(nullptr, base.openList(0, 1.0));
    EXPECT_EQ(nullptr, base.getString(0, 0.0));
    EXPECT_EQ(0, base.getFlags());
    const VUtils::Matrix m = base.getMatrix(0, 0.0);
    for (const VUtils::Vector& col : m.m) {
        EXPECT_EQ(0.0f, col.x + col.y + col.z);
    }
    const VUtils::PtrArray<float> list = base.getFloatList(0.0);
    EXPECT_EQ(nullptr, list.ptr);
    EXPECT_EQ(nullptr, list.refCounter);
    EXPECT_EQ(0, list.length);
    EXPECT_EQ(0, list.type);
}

TEST(DefParamBaseDefaults, TexturesAreNeitherConstantNorInstanceDependentNorBumpy) {
    VUtils::DefParamBase p("bare");
    const VUtils::VRayContext context{};
    AColor color{{1, 1, 1}, 1};
    float value = 1.0f;
    EXPECT_FALSE(static_cast<VUtils::TextureInterface&>(p).isConstant(color));
    EXPECT_FALSE(p.isInstanceDependent(nullptr));
    EXPECT_FALSE(static_cast<VUtils::TextureFloatInterface&>(p).isConstant(value));
    for (const VUtils::Vector& gradient :
         {p.getColorBumpGradient(context), p.getFloatBumpGradient(context)}) {
        EXPECT_EQ(0.0f, gradient.x);
        EXPECT_EQ(0.0f, gradient.y);
        EXPECT_EQ(0.0f, gradient.z);
    }
    const VUtils::Matrix vectorGradient = p.getVectorBumpGradient(context);
    for (const VUtils::Vector& col : vectorGradient.m) {
        EXPECT_EQ(0.0f, std::fabs(col.x) + std::fabs(col.y) + std::fabs(col.z));
    }

    struct NoKeyframes : VUtils::AnimatedParameterInterface {
        void clearKeyFrames(double, int) override {}
        void createKeyFrame(double, int) override {}
    } keyframes;
    EXPECT_EQ(0, keyframes.numKeyframesPerFrame());
    EXPECT_EQ(nullptr, keyframes.getPlugin());
}

TEST(DefParamBaseTexture, AnswersTheValueAtIndexZeroTimeZero) {
    ProbeParam p(1);
    fillValues(p);
    p.expectedIndex = 0;
    p.expectedTime = 0.0;
    p.v = VUtils::Vector{1.0f, 2.0f, 3.0f};
    const VUtils::VRayContext context{};
    EXPECT_EQ(0.25f, p.getTexFloat(context));
    EXPECT_EQ(7, p.getTexInt(context));
    expectAColor(AColor{{0.25f, 0.25f, 0.25f}, 1.0f}, p.getTexColor(context));
    const VUtils::simd::Vector3f tv = p.getTexVector(context);
    EXPECT_EQ(1.0f, tv.x);
    EXPECT_EQ(2.0f, tv.y);
    EXPECT_EQ(3.0f, tv.z);
    EXPECT_EQ(3.0f, tv.w);
    float fmin = -1.0f;
    float fmax = -1.0f;
    p.getTexFloatBounds(fmin, fmax);
    EXPECT_EQ(0.25f, fmin);
    EXPECT_EQ(0.25f, fmax);
    AColor cmin{};
    AColor cmax{};
    p.getTexColorBounds(cmin, cmax);
    expectAColor(AColor{{0.25f, 0.25f, 0.25f}, 1.0f}, cmin);
    expectAColor(AColor{{0.25f, 0.25f, 0.25f}, 1.0f}, cmax);
    EXPECT_FALSE(p.argumentsChanged) << "textures read index 0 at time 0";
}

TEST(DefParamBaseTexture, TransformWidensColumnsAndNarrowsTheOffset) {
    ProbeParam p(10000);
    p.tm.m = VUtils::Matrix{{{1, 2, 3}, {4, 5, 6}, {7, 8, 9}}};
    p.tm.offs = {0.1, 1e40, -2.5};
    const VUtils::simd::Transform3f t = p.getTexTransform(VUtils::VRayContext{});
    const float expected[4][4] = {{1, 2, 3, 3}, {4, 5, 6, 6}, {7, 8, 9, 9}};
    for (int col = 0; col < 3; ++col) {
        const VUtils::simd::Vector3f& v = t.m[col];
        EXPECT_EQ(expected[col][0], v.x);
        EXPECT_EQ(expected[col][1], v.y);
        EXPECT_EQ(expected[col][2], v.z);
        EXPECT_EQ(expected[col][3], v.w);
    }
    EXPECT_EQ(0.1f, t.offs.x);
    EXPECT_TRUE(std::isinf(t.offs.y));
    EXPECT_EQ(-2.5f, t.offs.z);
    EXPECT_EQ(-2.5f, t.offs.w);
}
