#pragma once

namespace VUtils {

// The shading context of one sample.
class VRayContext {
public:
    double time = 0.0;
};

}  // namespace VUtils
