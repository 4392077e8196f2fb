#include "Value.h"

#include <cmath>
#include <limits>

namespace mayahost {
namespace detail {
namespace {

// Truncates toward zero; values outside the target range saturate instead of being undefined.
template <class Int>
Int truncateTo(double value) {
    if (std::isnan(value)) return 0;
    const double low = static_cast<double>(std::numeric_limits<Int>::min());
    const double high = static_cast<double>(std::numeric_limits<Int>::max());
    if (value <= low) return std::numeric_limits<Int>::min();
    if (value >= high) return std::numeric_limits<Int>::max();
    return static_cast<Int>(value);
}

}  // namespace

void Value::setNumber(double value) {
    d = value;
    f = static_cast<float>(value);
    i = truncateTo<int>(value);
    s = truncateTo<short>(value);
    c = truncateTo<char>(value);
    b = value != 0.0;
    timeUnit = MTime::uiUnit();
}

void Value::setTime(const MTime& value) {
    setNumber(value.value());
    timeUnit = value.unit();
}

void Value::setAddr(void* value) { addr = value; }

void Value::setString(const MString& value) { str = value; }

void Value::setData(const MObject& value) { data = value; }

}  // namespace detail
}  // namespace mayahost
