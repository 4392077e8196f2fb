#pragma once

namespace VUtils {

// A point or direction as the renderer exchanges it: three packed floats.
struct Vector {
    float x;
    float y;
    float z;
};

static_assert(sizeof(Vector) == 12, "renderer layout");
static_assert(alignof(Vector) == 4, "renderer layout");

}  // namespace VUtils
