#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <memory>

#include "params/DefFloatParam.h"
#include "params/DefIntParam.h"
#include "params/DefStringParam.h"
#include "params/DefVectorParam.h"
#include "vray/VRayContext.h"

using VUtils::DefFloatParam;
using VUtils::DefIntParam;
using VUtils::DefStringParam;
using VUtils::DefVectorParam;

namespace {

const float quietNaN = std::numeric_limits<float>::quiet_NaN();
const float infinity = std::numeric_limits<float>::infinity();

struct FloatReadRow {
    float value;
    int asInt;
    int asBool;
};

}  // namespace

TEST(DefFloatParam, TruncatesTowardZeroAndThresholdsBool) {
    const FloatReadRow rows[] = {
        {-2.7f, -2, 1},
        {2.99f, 2, 1},
        {0.0f, 0, 0},
        {-0.0f, 0, 0},
        {1e-13f, 0, 0},
        {std::nextafter(1e-12f, 0.0f), 0, 0},
        {1e-12f, 0, 1},
        {-1e-12f, 0, 1},
        {2147483520.0f, 2147483520, 1},
        {-2147483648.0f, INT_MIN, 1},
        {3e9f, INT_MIN, 1},
        {-3e9f, INT_MIN, 1},
        {infinity, INT_MIN, 1},
        {quietNaN, INT_MIN, 1},
    };
    for (const FloatReadRow& row : rows) {
        SCOPED_TRACE(row.value);
        DefFloatParam p("f", row.value);
        EXPECT_EQ(row.asInt, p.getInt(5, 9.0));
        EXPECT_EQ(row.asBool, p.getBool(5, 9.0));
    }
}

TEST(DefFloatParam, ReadsEveryKind) {
    DefFloatParam p("f", -2.7f);
    EXPECT_EQ(-2.7f, p.getFloat(0, 0.0));
    EXPECT_EQ(static_cast<double>(-2.7f), p.getDouble(0, 0.0));
    EXPECT_EQ(1, p.getType(0, 0.0));
    p.setFloat(0.25f, 0, 0.0);
    const VUtils::AColor a = p.getAColor(0, 0.0);
    EXPECT_EQ(0.25f, a.color.r);
    EXPECT_EQ(0.25f, a.color.b);
    EXPECT_EQ(1.0f, a.alpha);
    EXPECT_EQ(0.25f, p.getColor(0, 0.0).g);
    const VUtils::Vector v = p.getVector(0, 0.0);
    EXPECT_EQ(0.0f, v.x);
    EXPECT_EQ(nullptr, p.getString(0, 0.0));
    float constant = 0.0f;
    EXPECT_TRUE(p.isConstant(constant));
    EXPECT_EQ(0.25f, constant);
}

struct IntWriteRow {
    const char* what;
    void (*write)(DefIntParam&);
    int stored;
};

TEST(DefIntParam, SettersConvertByTruncation) {
    const IntWriteRow rows[] = {
        {"setInt", [](DefIntParam& p) { p.setInt(-9, 3, 1.0); }, -9},
        {"setBool keeps 5", [](DefIntParam& p) { p.setBool(5, 3, 1.0); }, 5},
        {"setFloat -3.99", [](DefIntParam& p) { p.setFloat(-3.99f, 3, 1.0); }, -3},
        {"setDouble 3.99", [](DefIntParam& p) { p.setDouble(3.99, 3, 1.0); }, 3},
        {"setDouble max", [](DefIntParam& p) { p.setDouble(2147483647.9, 3, 1.0); }, INT_MAX},
        {"setDouble 2^31", [](DefIntParam& p) { p.setDouble(2147483648.0, 3, 1.0); }, INT_MIN},
        {"setDouble min", [](DefIntParam& p) { p.setDouble(-2147483648.9, 3, 1.0); }, INT_MIN},
        {"setFloat NaN", [](DefIntParam& p) { p.setFloat(quietNaN, 3, 1.0); }, INT_MIN},
        {"setVector ignored",
         [](DefIntParam& p) {
             p.setVector({1, 2, 3}, 0, 0.0);
         },
         42},
        {"setString ignored", [](DefIntParam& p) { p.setString("7", 0, 0.0); }, 42},
    };
    for (const IntWriteRow& row : rows) {
        SCOPED_TRACE(row.what);
        DefIntParam p("i", 42);
        row.write(p);
        EXPECT_EQ(row.stored, p.getInt(0, 0.0));
    }
    DefIntParam p("i", 0);
    p.setBool(5, 0, 0.0);
    EXPECT_EQ(1, p.getBool(0, 0.0));
}

struct FloatWriteRow {
    const char* what;
    void (*write)(DefFloatParam&);
    float stored;
};

TEST(DefFloatParam, SettersConvert) {
    const FloatWriteRow rows[] = {
        {"setInt", [](DefFloatParam& p) { p.setInt(16777217, 0, 0.0); }, 16777216.0f},
        {"setBool", [](DefFloatParam& p) { p.setBool(5, 0, 0.0); }, 5.0f},
        {"setFloat", [](DefFloatParam& p) { p.setFloat(-0.5f, 0, 0.0); }, -0.5f},
        {"setDouble", [](DefFloatParam& p) { p.setDouble(0.1, 0, 0.0); }, 0.1f},
        {"setVector ignored",
         [](DefFloatParam& p) {
             p.setVector({1, 2, 3}, 0, 0.0);
         },
         4.0f},
        {"setColor ignored",
         [](DefFloatParam& p) {
             p.setColor({1, 2, 3}, 0, 0.0);
         },
         4.0f},
    };
    for (const FloatWriteRow& row : rows) {
        SCOPED_TRACE(row.what);
        DefFloatParam p("f", 4.0f);
        row.write(p);
        EXPECT_EQ(row.stored, p.getFloat(0, 0.0));
    }
}

TEST(DefVectorParam, KeepsZInTheFourthLane) {
    DefVectorParam p("v");
    const VUtils::simd::Vector3f zero = p.getTexVector(VUtils::VRayContext{});
    EXPECT_EQ(0.0f, zero.x + zero.y + zero.z + zero.w);
    p.setVector(VUtils::Vector{1.0f, 2.0f, 3.0f}, 0, 0.0);
    p.setFloat(9.0f, 0, 0.0);
    const VUtils::simd::Vector3f lanes = p.getTexVector(VUtils::VRayContext{});
    EXPECT_EQ(1.0f, lanes.x);
    EXPECT_EQ(2.0f, lanes.y);
    EXPECT_EQ(3.0f, lanes.z);
    EXPECT_EQ(3.0f, lanes.w);
    const VUtils::Vector v = p.getVector(7, 2.0);
    EXPECT_EQ(1.0f, v.x);
    EXPECT_EQ(3.0f, v.z);
    VUtils::simd::Vector3f lo{};
    VUtils::simd::Vector3f hi{};
    p.getTexVectorBounds(lo, hi);
    EXPECT_EQ(3.0f, lo.w);
    EXPECT_EQ(2.0f, hi.y);
    EXPECT_EQ(4, p.getType(0, 0.0));
    EXPECT_EQ(0.0f, p.getFloat(0, 0.0));
    EXPECT_EQ(0, p.getInt(0, 0.0));
}

TEST(DefStringParam, OwnsItsText) {
    DefStringParam p("s");
    ASSERT_NE(nullptr, p.getString(0, 0.0));
    EXPECT_STREQ("", p.getString(0, 0.0));
    EXPECT_EQ(9, p.getType(0, 0.0));

    char buffer[] = "abc";
    p.setString(buffer, 0, 0.0);
    buffer[0] = 'x';
    EXPECT_STREQ("abc", p.getString(0, 0.0));

    p.setInt(1, 0, 0.0);
    EXPECT_STREQ("abc", p.getString(0, 0.0));

    p.setString(nullptr, 0, 0.0);
    EXPECT_EQ(nullptr, p.getString(0, 0.0));
    p.setString("", 0, 0.0);
    EXPECT_STREQ("", p.getString(0, 0.0));
}

TEST(DefStringParam, CloneHoldsItsOwnCopyOrNull) {
    DefStringParam p("s");
    p.setString("abc", 0, 0.0);
    std::unique_ptr<VUtils::VRayPluginParameter> copy(p.clone());
    p.setString("changed", 0, 0.0);
    EXPECT_STREQ("abc", copy->getString(0, 0.0));
    EXPECT_NE(p.getString(0, 0.0), copy->getString(0, 0.0));

    p.setString(nullptr, 0, 0.0);
    std::unique_ptr<VUtils::VRayPluginParameter> nullCopy(p.clone());
    EXPECT_EQ(nullptr, nullCopy->getString(0, 0.0));
}

TEST(DefParamBaseName, BorrowsOrCopiesAsAsked) {
    char name[] = "density";
    DefFloatParam borrowed(name, 1.0f);
    DefFloatParam copied(name, 1.0f, true);
    DefFloatParam nullName(nullptr, 1.0f, true);
    EXPECT_EQ(name, borrowed.getName());
    EXPECT_NE(name, copied.getName());
    EXPECT_STREQ("density", copied.getName());
    EXPECT_EQ(nullptr, nullName.getName());

    std::unique_ptr<VUtils::VRayPluginParameter> borrowedClone(borrowed.clone());
    std::unique_ptr<VUtils::VRayPluginParameter> copiedClone(copied.clone());
    std::unique_ptr<VUtils::VRayPluginParameter> nullClone(nullName.clone());
    EXPECT_EQ(name, borrowedClone->getName());
    EXPECT_NE(copied.getName(), copiedClone->getName());
    EXPECT_STREQ("density", copiedClone->getName());
    EXPECT_EQ(nullptr, nullClone->getName());
}

TEST(ScalarClones, CopyTheValue) {
    DefIntParam i("i", 5);
    DefFloatParam f("f", 0.5f);
    DefVectorParam v("v");
    v.setVector({1, 2, 3}, 0, 0.0);
    std::unique_ptr<VUtils::VRayPluginParameter> ic(i.clone());
    std::unique_ptr<VUtils::VRayPluginParameter> fc(f.clone());
    std::unique_ptr<VUtils::VRayPluginParameter> vc(v.clone());
    EXPECT_EQ(5, ic->getInt(0, 0.0));
    EXPECT_EQ(0.5f, fc->getFloat(0, 0.0));
    auto* texture =
        static_cast<VUtils::TextureVectorInterface*>(vc->newInterface(EXT_TEXTURE_VECTOR));
    EXPECT_EQ(3.0f, texture->getTexVector(VUtils::VRayContext{}).w);
}
