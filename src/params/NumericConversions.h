#pragma once

#include <climits>
#include <cmath>

namespace VUtils {

// Truncation toward zero with the processor's answer for values that do not fit:
// the most negative int (a plain cast would be undefined there).
inline int truncateToInt(double value) {
    if (value > -2147483649.0 && value < 2147483648.0) {
        return static_cast<int>(value);
    }
    return INT_MIN;
}

// Values below the float nearest to 1e-12 count as false; NaN counts as true.
inline int floatToBool(float value) { return std::fabs(value) < 1e-12f ? 0 : 1; }

// Multiplying by the float nearest to 1/3 rather than dividing by 3 is what the
// renderer expects, bit for bit.
constexpr float oneThird = 0.33333334f;

}  // namespace VUtils
