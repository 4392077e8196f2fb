#pragma once
// The arithmetic of one Maya animation curve: keys, tangents from their types, spans and
// infinity. It knows nothing of nodes or plugs; the animCurve node types feed it their keys.

#include <cstdint>
#include <string>
#include <vector>

namespace mayahost {
namespace detail {

// Maya's clock: key times of time curves are whole ticks.
const double kTicksPerSecond = 141120000.0;

// One key as the curve evaluates it. Time curves give key times in ticks, driven keys the
// driver's value; values are in internal units (centimetres, radians).
struct AnimCurveKey {
    double time = 0.0;
    double value = 0.0;
    // Maya's tangent codes as written in .kit/.kot (1 fixed, 2 linear, 3 flat, 5 step, 9 spline,
    // 10 clamped, 16 plateau, 17 step next, 18 auto, 28 auto ease, ...).
    int inTangentType = 18;
    int outTangentType = 18;
    // Stored tangent vectors (.kix/.kiy, .kox/.koy): x in seconds (driver units for driven
    // keys), y in internal units.
    bool hasStoredIn = false;
    bool hasStoredOut = false;
    double inX = 1.0, inY = 0.0, outX = 1.0, outY = 0.0;
};

struct AnimCurveSettings {
    bool timeInput = true;  // animCurveT*: input in ticks; animCurveU*: the driver's value
    bool weighted = false;
    int preInfinity = 0;   // Maya's codes: 0 constant, 1 linear, 3 cycle, 4 cycle with offset,
    int postInfinity = 0;  // 5 oscillate
};

class AnimCurve {
public:
    // Takes the keys in the order the file gave them and prepares every span once. Returns the
    // problems a user should hear about (a tangent type without a known rule and the fallback
    // used), one line each, without the curve's name.
    std::vector<std::string> set(std::vector<AnimCurveKey> keys, const AnimCurveSettings& settings);

    // The value at an input: ticks for time curves (snapped to the nearest whole tick), the
    // driver's value for driven keys. A curve without keys gives 0.
    double evaluate(double input) const;

    size_t keyCount() const { return keys.size(); }

private:
    std::vector<AnimCurveKey> keys;
    AnimCurveSettings settings;
};

}  // namespace detail
}  // namespace mayahost
