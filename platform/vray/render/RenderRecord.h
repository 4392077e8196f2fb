#pragma once
#include <cstddef>
#include <string>
#include <vector>

namespace vrayrender {

// One value as the renderer read it through the parameter's typed getters. The fields of the
// kind read are the value; the others stay at their defaults.
struct RecordedValue {
    enum class Kind : unsigned char { Int, Float, Double, Vector, Color, String, FloatList, None };
    Kind kind = Kind::None;
    bool isNull = false;  // a string parameter that answered null
    int intValue = 0;
    double number = 0.0;
    float vector[3] = {0.0f, 0.0f, 0.0f};
    std::string text;
    std::vector<float> list;

    // Compares the fields of the kind only, so that telling a held number from a changed one
    // reads just the start of the value.
    bool operator==(const RecordedValue& other) const;
    bool operator!=(const RecordedValue& other) const { return !(*this == other); }
};

// What the renderer read from one parameter through a frame. The fields each sample compares
// come first, so that a large scene reads little more than one cache line per parameter.
struct RecordedParameter {
    // The value at each later geometry sample, kept only once the value changes within the
    // frame: most parameters hold theirs, and a large scene records thousands of them a frame.
    std::vector<RecordedValue> later;
    RecordedValue first;  // at the frame's first sample
    std::string name;
    bool animated = false;

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
