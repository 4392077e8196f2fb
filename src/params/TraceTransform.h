#pragma once

#include <cstddef>

#include "params/Matrix.h"

namespace VUtils {

// Double offset: scene positions need more precision than directions.
struct TraceTransform {
    struct Offset {
        double x;
        double y;
        double z;
    };

    Matrix m;
    Offset offs;
};

static_assert(offsetof(TraceTransform, offs) == 40, "offset starts on the 8-byte boundary");
static_assert(sizeof(TraceTransform) == 64, "renderer layout");
static_assert(alignof(TraceTransform) == 8, "renderer layout");

}  // namespace VUtils
