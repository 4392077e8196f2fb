#pragma once
#include <cstddef>
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

struct RecordedParameter {
    std::string name;
    bool animated = false;
    // The value at the frame's first geometry sample, and at each later one only when the value
    // changes within the frame: most parameters hold theirs, and a large scene records thousands
    // of them a frame.
    RecordedValue first;
    std::vector<RecordedValue> later;

    bool heldThroughFrame() const { return later.empty(); }
    const RecordedValue& valueAt(size_t sample) const {
        return sample == 0 || heldThroughFrame() ? first : later.at(sample - 1);
    }
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
