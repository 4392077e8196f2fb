#pragma once

#include <cstddef>

#include "params/Color.h"

namespace VUtils {

struct AColor {
    Color color;
    float alpha;
};

static_assert(sizeof(AColor) == 16, "renderer layout");
static_assert(offsetof(AColor, alpha) == 12, "renderer layout");

}  // namespace VUtils
