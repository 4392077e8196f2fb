#pragma once
#include <string>
#include <vector>

namespace vrayrender {

// One value as the renderer read it through the parameter's typed getters.
struct RecordedValue {
    enum class Kind { Int, Float, Double, Vector, Color, String, FloatList, None };
    Kind kind = Kind::None;
    int intValue = 0;
    double number = 0.0;
    float vector[3] = {0.0f, 0.0f, 0.0f};
    bool isNull = false;  // a string parameter that answered null
    std::string text;
    std::vector<float> list;

    bool operator==(const RecordedValue& other) const;
    bool operator!=(const RecordedValue& other) const { return !(*this == other); }
};

struct RecordedSample {
    double time;
    RecordedValue value;
};

struct RecordedParameter {
    std::string name;
    bool animated = false;
    std::vector<RecordedSample> samples;  // one per geometry sample time of the frame
};

struct RecordedInstance {
    std::string node;
    int instance = 0;      // the renderer's number for the plugin instance
    bool created = false;  // made at this frame's translation rather than handed back
    std::vector<RecordedParameter> parameters;  // in the instance's list order
};

struct RecordedFrame {
    double frame = 0.0;
    std::vector<double> sampleTimes;
    std::vector<RecordedInstance> instances;
};

struct RenderRecord {
    std::vector<RecordedFrame> frames;
    int geometrySources = 0;
    int instancesCreated = 0;
};

}  // namespace vrayrender
