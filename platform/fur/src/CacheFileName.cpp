#include "CacheFileName.h"

namespace xrvellfur {
namespace {

const char* const kFrameMarker = "####";
const std::size_t kFrameDigits = 4;

std::string paddedFrame(int frame) {
    // Widened first so that the lowest int has a magnitude too.
    const long long value = frame;
    std::string digits = std::to_string(value < 0 ? -value : value);
    if (digits.size() < kFrameDigits) digits.insert(0, kFrameDigits - digits.size(), '0');
    return value < 0 ? "-" + digits : digits;
}

}  // namespace

std::string cacheFileName(const std::string& pattern, int frame) {
    const std::size_t marker = pattern.find(kFrameMarker);
    if (marker == std::string::npos) return pattern;
    std::string name = pattern;
    name.replace(marker, std::string(kFrameMarker).size(), paddedFrame(frame));
    return name;
}

}  // namespace xrvellfur
