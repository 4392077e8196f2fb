#pragma once

#include "params/TraceTransform.h"
#include "params/Vector3f.h"

namespace VUtils {
namespace simd {

// The single-precision transform a texture hands out: three columns and the offset.
struct Transform3f {
    Vector3f m[3];
    Vector3f offs;

    static Transform3f fromTraceTransform(const TraceTransform& t) {
        const TraceTransform::Offset& o = t.offs;
        const float x = static_cast<float>(o.x);
        const float y = static_cast<float>(o.y);
        const float z = static_cast<float>(o.z);
        return Transform3f{{Vector3f::fromVector(t.m.m[0]), Vector3f::fromVector(t.m.m[1]),
                            Vector3f::fromVector(t.m.m[2])},
                           Vector3f{x, y, z, z}};
    }
};

static_assert(sizeof(Transform3f) == 64, "renderer layout");
static_assert(alignof(Transform3f) == 16, "renderer layout");

}  // namespace simd
}  // namespace VUtils
