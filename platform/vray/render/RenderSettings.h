#pragma once
#include <functional>
#include <vector>

#include "RenderRecord.h"

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
    // When set, each frame is handed here as soon as it is rendered instead of being kept in the
    // record, so that a long render need not hold every frame at once.
    std::function<void(RecordedFrame&&)> frameDone;
};

// The geometry sample times of one frame: the frame itself without blur, otherwise the samples
// spread evenly over the blur interval.
std::vector<double> sampleTimes(double frame, const MotionBlur& blur);
std::vector<double> frames(const RenderSettings& settings);

}  // namespace vrayrender
