#pragma once

#include "params/DefParamBase.h"

// A parameter that holds one value of whatever type a test gives it and answers
// only the getter of that type itself, so the base's conversions answer the rest.
// It records the index and time the conversions hand on.
class ProbeParam : public VUtils::DefParamBase {
public:
    explicit ProbeParam(int type) : DefParamBase("probe"), type(type) {}

    int getType(int index, double time) override {
        record(index, time);
        typeTime = time;
        return type;
    }
    int getInt(int index, double time) override {
        recordValue(index, time);
        return i;
    }
    double getDouble(int index, double time) override {
        recordValue(index, time);
        return d;
    }
    float getFloat(int index, double time) override {
        recordValue(index, time);
        return type == VUtils::paramTypeFloat ? f : DefParamBase::getFloat(index, time);
    }
    VUtils::Color getColor(int index, double time) override {
        recordValue(index, time);
        return type == VUtils::paramTypeColor ? c : DefParamBase::getColor(index, time);
    }
    VUtils::AColor getAColor(int index, double time) override {
        recordValue(index, time);
        return type == VUtils::paramTypeAColor ? a : DefParamBase::getAColor(index, time);
    }
    VUtils::Vector getVector(int index, double time) override {
        record(index, time);
        return v;
    }
    VUtils::TraceTransform getTransform(int index, double time) override {
        record(index, time);
        return tm;
    }

    int type;
    int i = 0;
    float f = 0.0f;
    double d = 0.0;
    VUtils::Color c{0.0f, 0.0f, 0.0f};
    VUtils::AColor a{{0.0f, 0.0f, 0.0f}, 0.0f};
    VUtils::Vector v{0.0f, 0.0f, 0.0f};
    VUtils::TraceTransform tm{};
    bool argumentsChanged = false;
    int expectedIndex = 0;
    double expectedTime = 0.0;
    double typeTime = -1.0;
    double valueTime = -1.0;

private:
    void recordValue(int index, double time) {
        record(index, time);
        valueTime = time;
    }
    void record(int index, double time) {
        argumentsChanged |= index != expectedIndex || time != expectedTime;
    }
};
