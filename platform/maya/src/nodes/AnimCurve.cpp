#include "AnimCurve.h"

#include <algorithm>

namespace mayahost {
namespace detail {

// Placeholder: straight lines between keys, constant outside them.
std::vector<std::string> AnimCurve::set(std::vector<AnimCurveKey> newKeys,
                                        const AnimCurveSettings& newSettings) {
    keys = std::move(newKeys);
    settings = newSettings;
    std::stable_sort(keys.begin(), keys.end(),
                     [](const AnimCurveKey& a, const AnimCurveKey& b) { return a.time < b.time; });
    return {};
}

double AnimCurve::evaluate(double input) const {
    if (keys.empty()) return 0.0;
    if (input <= keys.front().time) return keys.front().value;
    if (input >= keys.back().time) return keys.back().value;
    auto next = std::upper_bound(keys.begin(), keys.end(), input,
                                 [](double t, const AnimCurveKey& key) { return t < key.time; });
    auto previous = next - 1;
    const double f = (input - previous->time) / (next->time - previous->time);
    return previous->value + f * (next->value - previous->value);
}

}  // namespace detail
}  // namespace mayahost
