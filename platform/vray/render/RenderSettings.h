#pragma once
#include <cfloat>
#include <cstddef>
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
};

// Why the frames of a render, or their sample times, cannot be rendered.
struct RangeProblem {
    enum class Kind {
        None,
        NoStep,             // the step is not above 0
        Backwards,          // the last frame comes before the first
        TooManyFrames,      // more than kMaxFrames
        FramesTooClose,     // the step is below the precision of the frame numbers
        FrameOutOfRange,    // a frame beyond the times the renderer takes
        SamplesOutOfRange,  // a frame's motion-blur samples beyond them
    };
    Kind kind = Kind::None;
    double frame = 0.0;  // the frame the problem is found at
};

const size_t kMaxFrames = 100000;
// The renderer takes sample times as 32-bit floats.
const double kMaxSampleTime = FLT_MAX;

RangeProblem rangeProblem(const RenderSettings& settings);
// Frame i is start + i * step, for as many frames as fit up to the end; the last one is the end
// itself when it comes within a billionth of a step of it. Empty when rangeProblem finds one.
std::vector<double> frames(const RenderSettings& settings);

// The geometry sample times of one frame: the frame itself without blur, otherwise the samples
// spread evenly over the blur interval.
std::vector<double> sampleTimes(double frame, const MotionBlur& blur);

}  // namespace vrayrender
