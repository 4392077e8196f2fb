#pragma once

#include <cstddef>

#include "params/Vector.h"

namespace VUtils {
namespace simd {

// One SSE register's worth. The fourth lane repeats z so that lane-wise
// operations on it never see garbage.
struct alignas(16) Vector3f {
    float x;
    float y;
    float z;
    float w;

    static Vector3f fromVector(const Vector& v) { return Vector3f{v.x, v.y, v.z, v.z}; }
    Vector toVector() const { return Vector{x, y, z}; }
};

static_assert(sizeof(Vector3f) == 16, "renderer layout");
static_assert(alignof(Vector3f) == 16, "renderer layout");
static_assert(offsetof(Vector3f, w) == 12, "renderer layout");

}  // namespace simd
}  // namespace VUtils
