#pragma once

namespace VUtils {

struct Color {
    float r;
    float g;
    float b;
};

static_assert(sizeof(Color) == 12, "renderer layout");
static_assert(alignof(Color) == 4, "renderer layout");

}  // namespace VUtils
