#pragma once

#include "params/Vector.h"

namespace VUtils {

// Three columns.
struct Matrix {
    Vector m[3];
};

static_assert(sizeof(Matrix) == 36, "renderer layout");
static_assert(alignof(Matrix) == 4, "renderer layout");

}  // namespace VUtils
