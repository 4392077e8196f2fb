#pragma once

#include <cstring>

namespace VUtils {

// A new[] copy with its terminator, or null for null.
inline char* duplicateString(const char* text) {
    if (!text) {
        return nullptr;
    }
    const std::size_t size = std::strlen(text) + 1;
    char* copy = new char[size];
    std::memcpy(copy, text, size);
    return copy;
}

}  // namespace VUtils
