#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "ProbeParam.h"
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

TEST(DefParamBaseDefaults, AnswerNoValue) {
    ProbeParam p(10000);
    VUtils::VRayPluginParameter& base = p;
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
