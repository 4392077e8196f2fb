#pragma once

namespace VUtils {

// What the GPU path knows about the frame being compiled.
class OCLData {
public:
    double frameTime = 0.0;
};

}  // namespace VUtils
