#pragma once

namespace VUtils {

class VRayRenderer {
public:
    int frame = 0;
};

}  // namespace VUtils
