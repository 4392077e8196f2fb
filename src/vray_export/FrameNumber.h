#pragma once
#include <climits>
#include <cmath>
#include <limits>

// A render time as a frame number: truncated toward zero. Times beyond the int range give the
// value the processor's truncating conversion gives, without undefined behaviour.
inline int frameNumberOf(double time) {
    if (!(time > -2147483649.0 && time < 2147483648.0)) return INT_MIN;
    return static_cast<int>(time);
}

// A render time as a sample: the nearest float, infinite beyond the float range.
inline float sampleOf(double time) {
    if (time > std::numeric_limits<float>::max()) return std::numeric_limits<float>::infinity();
    if (time < -std::numeric_limits<float>::max()) return -std::numeric_limits<float>::infinity();
    return static_cast<float>(time);
}
