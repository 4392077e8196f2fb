#pragma once

#include <cstddef>

namespace VUtils {

// Array handed across the renderer boundary; `type` tells the receiver who frees it.
template <class T>
struct PtrArray {
    enum OwnerType { ownerTypeNone = 0, ownerTypeOwnMem = 1, ownerTypeCallback = 2 };

    T* ptr = nullptr;
    int* refCounter = nullptr;
    int length = 0;
    int type = ownerTypeNone;
};

static_assert(sizeof(PtrArray<float>) == 24, "renderer layout");
static_assert(offsetof(PtrArray<float>, refCounter) == 8, "renderer layout");
static_assert(offsetof(PtrArray<float>, length) == 16, "renderer layout");
static_assert(offsetof(PtrArray<float>, type) == 20, "renderer layout");

}  // namespace VUtils
