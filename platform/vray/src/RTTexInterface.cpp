// The renderer library's part of the GPU texture interface.
#include "params/RTTexInterface.h"

#include <cstdarg>
#include <cstdio>

#include "vray/OCLData.h"
#include "vray/ShaderSource.h"

namespace VUtils {

double RTTexInterface::getFrameTimeFromOCLData(const OCLData& oclData) { return oclData.frameTime; }

void RTTexInterface::printShaderSourceString(ShaderSource& shaderSource, const char* format, ...) {
    va_list args;
    va_start(args, format);
    va_list measure;
    va_copy(measure, args);
    const int length = std::vsnprintf(nullptr, 0, format, measure);
    va_end(measure);
    if (length > 0) {
        std::string& text = shaderSource.text;
        const std::size_t start = text.size();
        text.resize(start + static_cast<std::size_t>(length));
        // vsnprintf writes a terminator; std::string keeps room for one past size().
        std::vsnprintf(&text[start], static_cast<std::size_t>(length) + 1, format, args);
    }
    va_end(args);
}

}  // namespace VUtils
