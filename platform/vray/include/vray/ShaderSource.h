#pragma once

#include <string>

namespace VUtils {

// Shader text being assembled for the GPU path.
class ShaderSource {
public:
    std::string text;
};

}  // namespace VUtils
