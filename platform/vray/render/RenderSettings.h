#pragma once
#include <vector>

namespace vrayrender {

// V-Ray's camera motion blur settings, in frames.
struct MotionBlur {
    bool enabled = false;
    double duration = 1.0;
    double intervalCenter = 0.5;  // relative to the frame
    int geometrySamples = 2;
};

struct RenderSettings {
    double startFrame = 1.0;
    double endFrame = 1.0;
    double byFrame = 1.0;
    MotionBlur motionBlur;
    // Whether the renderer hands back the instance made at an earlier translation of the same
    // node (as during an interactive session) or makes a fresh one each frame.
    bool reuseInstances = true;
};

// The geometry sample times of one frame: the frame itself without blur, otherwise the samples
// spread evenly over the blur interval.
std::vector<double> sampleTimes(double frame, const MotionBlur& blur);
std::vector<double> frames(const RenderSettings& settings);

}  // namespace vrayrender
