#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <memory>
#include <new>
#include <vector>

#include "params/DefFloatListParam.h"

using VUtils::DefFloatListParam;
using VUtils::PtrArray;

namespace {

std::vector<float> elementsOf(DefFloatListParam& list) {
    const PtrArray<float> view = list.getFloatList(0.0);
    return std::vector<float>(view.ptr, view.ptr + view.length);
}

void appendValues(DefFloatListParam& list, int count) {
    for (int i = 0; i < count; ++i) {
        list.setFloat(static_cast<float>(i), -1, 0.0);
    }
}

PtrArray<float> viewOf(std::vector<float>& values) {
    PtrArray<float> view;
    view.ptr = values.data();
    view.length = static_cast<int>(values.size());
    return view;
}

}  // namespace

TEST(FloatListGrowth, AddsOneStepPastTheNextMultiple) {
    const struct {
        int count;
        int capacity;
    } rows[] = {{1, 100}, {99, 100}, {100, 200}, {101, 200}, {150, 200}, {200, 300}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.count);
        DefFloatListParam list("l");
        std::vector<float> values(static_cast<std::size_t>(row.count), 1.5f);
        list.setFloatList(viewOf(values), 0.0);
        EXPECT_EQ(row.capacity, list.getTable().capacity());
        EXPECT_EQ(row.count, list.getCount(0.0));
    }
}

TEST(FloatListGrowth, AppendingReallocatesOnlyWhenFull) {
    DefFloatListParam list("l");
    appendValues(list, 99);
    const float* storage = list.getTable().data();
    list.setFloat(99.0f, -1, 0.0);
    EXPECT_EQ(storage, list.getTable().data());
    EXPECT_EQ(100, list.getTable().capacity());
    list.setFloat(100.0f, 1000, 0.0);
    EXPECT_EQ(200, list.getTable().capacity());
    const std::vector<float> all = elementsOf(list);
    ASSERT_EQ(101u, all.size());
    for (int i = 0; i < 101; ++i) {
        EXPECT_EQ(static_cast<float>(i), all[static_cast<std::size_t>(i)]);
    }
}

TEST(FloatListGrowth, DoublesWhenTheStepIsNotPositive) {
    DefFloatListParam list("l");
    list.getTable().setStep(0);
    list.setFloat(1.0f, -1, 0.0);
    EXPECT_EQ(1, list.getTable().capacity());
    appendValues(list, 2);
    EXPECT_EQ(4, list.getTable().capacity());
    appendValues(list, 2);
    EXPECT_EQ(8, list.getTable().capacity());
    EXPECT_EQ((std::vector<float>{1, 0, 1, 0, 1}), elementsOf(list));
}

TEST(FloatListSetFloat, OutOfRangeIndicesAppend) {
    DefFloatListParam list("l");
    list.setFloat(7.0f, 5, 0.0);
    EXPECT_EQ(std::vector<float>{7}, elementsOf(list));
    EXPECT_EQ(100, list.getTable().capacity());
    list.setFloat(8.0f, 0, 0.0);
    EXPECT_EQ(std::vector<float>{8}, elementsOf(list));
    list.setFloat(9.0f, -1, 0.0);
    list.setFloat(10.0f, 1, 0.0);
    list.setFloat(11.0f, 2, 0.0);
    list.setFloat(12.0f, std::numeric_limits<int>::min(), 0.0);
    list.setFloat(13.0f, std::numeric_limits<int>::max(), 0.0);
    EXPECT_EQ((std::vector<float>{8, 10, 11, 12, 13}), elementsOf(list));
}

TEST(FloatListSetFloat, OtherKindsConvertThenGoThroughSetFloat) {
    DefFloatListParam list("l");
    list.setInt(16777217, -1, 0.0);
    list.setBool(5, -1, 0.0);
    list.setDouble(0.1, -1, 0.0);
    list.setDouble(1e300, 0, 0.0);
    EXPECT_EQ((std::vector<float>{std::numeric_limits<float>::infinity(), 5.0f, 0.1f}),
              elementsOf(list));
}

namespace {

// Notes what reaches setFloat instead of storing it.
class SetFloatSpy : public DefFloatListParam {
public:
    SetFloatSpy() : DefFloatListParam("spy") {}
    void setFloat(float value, int index, double time) override {
        values.push_back(value);
        indices.push_back(index);
        times.push_back(time);
    }
    std::vector<float> values;
    std::vector<int> indices;
    std::vector<double> times;
};

}  // namespace

TEST(FloatListSetFloat, OtherKindsReachAnOverridingSetFloat) {
    SetFloatSpy spy;
    spy.setInt(16777217, 4, 2.5);
    spy.setBool(5, -1, 0.5);
    spy.setDouble(0.1, 7, -3.0);
    EXPECT_EQ((std::vector<float>{16777216.0f, 5.0f, 0.1f}), spy.values);
    EXPECT_EQ((std::vector<int>{4, -1, 7}), spy.indices);
    EXPECT_EQ((std::vector<double>{2.5, 0.5, -3.0}), spy.times);
    EXPECT_EQ(0, spy.getCount(0.0));
}

TEST(FloatListReaders, ConvertEachElement) {
    DefFloatListParam list("l");
    std::vector<float> values{-2.7f, 1e-13f, std::nanf(""), 3e9f, 0.5f};
    list.setFloatList(viewOf(values), 0.0);
    EXPECT_EQ(1, list.getType(0, 0.0));
    EXPECT_EQ(-2, list.getInt(0, 5.0));
    EXPECT_EQ(1, list.getBool(0, 5.0));
    EXPECT_EQ(0, list.getBool(1, 5.0));
    EXPECT_EQ(1, list.getBool(2, 5.0));
    EXPECT_EQ(std::numeric_limits<int>::min(), list.getInt(3, 5.0));
    EXPECT_EQ(1, list.getBool(4, 5.0)) << "a fraction is true, not truncated to 0";
    EXPECT_EQ(static_cast<double>(-2.7f), list.getDouble(0, 5.0));
    const VUtils::AColor a = list.getAColor(0, 5.0);
    EXPECT_EQ(-2.7f, a.color.g);
    EXPECT_EQ(1.0f, a.alpha);
    EXPECT_EQ(-2.7f, list.getColor(0, 5.0).b);
}

TEST(FloatListView, IsTheStorageItself) {
    DefFloatListParam list("l");
    appendValues(list, 3);
    const PtrArray<float> view = list.getFloatList(0.0);
    EXPECT_EQ(list.getTable().data(), view.ptr);
    EXPECT_EQ(nullptr, view.refCounter);
    EXPECT_EQ(3, view.length);
    EXPECT_EQ(PtrArray<float>::ownerTypeNone, view.type);
}

TEST(FloatListSetFloatList, KeepsCapacityAndCopiesTheValues) {
    DefFloatListParam list("l");
    appendValues(list, 10);
    std::vector<float> values{4, 5, 6};
    list.setFloatList(viewOf(values), 0.0);
    values[0] = 99;
    EXPECT_EQ(100, list.getTable().capacity());
    EXPECT_EQ((std::vector<float>{4, 5, 6}), elementsOf(list));
    list.setFloatList(list.getFloatList(0.0), 0.0);
    EXPECT_EQ((std::vector<float>{4, 5, 6}), elementsOf(list));
    list.setFloatList(PtrArray<float>{}, 0.0);
    EXPECT_EQ(0, list.getCount(0.0));
}

// The elements are never read: the capacity is refused first.
TEST(FloatListSetFloatList, CapacityBeyondTheLargestArrayIsRefused) {
    const struct {
        int step;
        int length;
    } rows[] = {{100, INT_MAX}, {100, INT_MAX - 47}, {0, INT_MAX}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.length);
        DefFloatListParam list("l");
        list.getTable().setStep(row.step);
        appendValues(list, 3);
        const int capacity = list.getTable().capacity();
        EXPECT_THROW(list.setFloatList(PtrArray<float>{nullptr, nullptr, row.length, 0}, 0.0),
                     std::bad_array_new_length);
        EXPECT_EQ((std::vector<float>{0, 1, 2}), elementsOf(list));
        EXPECT_EQ(capacity, list.getTable().capacity());
    }
}

TEST(FloatListSetFloatList, GrowingKeepsNothingStale) {
    DefFloatListParam list("l");
    appendValues(list, 3);
    std::vector<float> values(250, 2.0f);
    list.setFloatList(viewOf(values), 0.0);
    EXPECT_EQ(300, list.getTable().capacity());
    EXPECT_EQ(values, elementsOf(list));
}

TEST(FloatListCounts, SetCountAndReserveAllocateExactly) {
    DefFloatListParam list("l");
    list.setCount(5, 0.0);
    EXPECT_EQ(5, list.getCount(0.0));
    EXPECT_EQ(5, list.getTable().capacity());
    for (int i = 0; i < 5; ++i) {
        list.setFloat(static_cast<float>(i), i, 0.0);
    }
    list.setCount(2, 0.0);
    EXPECT_EQ((std::vector<float>{0, 1}), elementsOf(list));
    EXPECT_EQ(5, list.getTable().capacity());
    list.setCount(4, 0.0);
    EXPECT_EQ(4, list.getCount(0.0));
    EXPECT_EQ(1.0f, list.getFloat(1, 0.0));

    DefFloatListParam reserved("r");
    appendValues(reserved, 3);
    reserved.reserve(10, 0.0);
    EXPECT_EQ(0, reserved.getCount(0.0));
    EXPECT_EQ(100, reserved.getTable().capacity());
    reserved.reserve(150, 0.0);
    EXPECT_EQ(150, reserved.getTable().capacity());
    reserved.setFloat(3.0f, -1, 0.0);
    EXPECT_EQ(std::vector<float>{3}, elementsOf(reserved));

    DefFloatListParam fresh("f");
    fresh.reserve(10, 0.0);
    EXPECT_EQ(10, fresh.getTable().capacity());
}

TEST(FloatListCounts, NegativeCountIsReportedAndAppendStillSafe) {
    DefFloatListParam list("l");
    list.setCount(-5, 0.0);
    EXPECT_EQ(-5, list.getCount(0.0));
    EXPECT_EQ(-5, list.getFloatList(0.0).length);
    list.setFloat(1.0f, 0, 0.0);
    EXPECT_EQ(std::vector<float>{1}, elementsOf(list));
}

TEST(FloatListNesting, OnlyLevelZeroShowsTheCount) {
    DefFloatListParam list("l");
    EXPECT_EQ(0, list.getCount(0.0));
    appendValues(list, 2);
    EXPECT_EQ(nullptr, list.openList(0));
    EXPECT_EQ(-1, list.getCount(0.0));
    EXPECT_EQ(nullptr, list.openList(0, 1.0));
    list.closeList(nullptr);
    EXPECT_EQ(-1, list.getCount(0.0));
    EXPECT_EQ(2, list.getFloatList(0.0).length);
    EXPECT_EQ(1.0f, list.getFloat(1, 0.0));
    list.closeList(nullptr);
    EXPECT_EQ(2, list.getCount(0.0));
    // A close without its open takes the level below zero: still no count.
    list.closeList(nullptr);
    EXPECT_EQ(-1, list.getCount(0.0));
    EXPECT_EQ(2, list.getFloatList(0.0).length);
    list.openList(0);
    EXPECT_EQ(2, list.getCount(0.0));
}

TEST(FloatListClone, CapacityIsTheCountAndTheStepIsReset) {
    DefFloatListParam list("l", true);
    appendValues(list, 150);
    list.getTable().setStep(7);
    list.openList(0);
    std::unique_ptr<VUtils::VRayPluginParameter> copy(list.clone());
    auto& clone = static_cast<DefFloatListParam&>(*copy);
    EXPECT_EQ(150, clone.getTable().capacity());
    EXPECT_EQ(100, clone.getTable().step());
    EXPECT_EQ(1, clone.getListLevel());
    EXPECT_NE(list.getName(), clone.getName());
    EXPECT_STREQ("l", clone.getName());
    EXPECT_EQ(elementsOf(list), elementsOf(clone));
    EXPECT_NE(list.getTable().data(), clone.getTable().data());
    clone.setFloat(1.0f, -1, 0.0);
    EXPECT_EQ(200, clone.getTable().capacity());

    DefFloatListParam empty("e");
    empty.reserve(20, 0.0);
    std::unique_ptr<VUtils::VRayPluginParameter> emptyCopy(empty.clone());
    auto& emptyClone = static_cast<DefFloatListParam&>(*emptyCopy);
    EXPECT_EQ(nullptr, emptyClone.getTable().data());
    EXPECT_EQ(0, emptyClone.getTable().capacity());
    EXPECT_EQ(0, emptyClone.getCount(0.0));
}
