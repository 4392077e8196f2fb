#pragma once
#include <string>

namespace xrvellfur {

// The pattern with its first "####" replaced by the frame, zero-padded to four digits with the
// sign in front of the padding (-5 gives "-0005"); a pattern without "####" names one file
// for every frame.
std::string cacheFileName(const std::string& pattern, int frame);

}  // namespace xrvellfur
