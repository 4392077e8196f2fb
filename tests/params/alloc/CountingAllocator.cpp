// Replaces the global allocation functions of this test executable so a test can
// tell whether a call allocated, and whether it freed before it allocated.
#include "CountingAllocator.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocations{0};
std::atomic<std::size_t> releases{0};
std::atomic<std::size_t> releasesAtLastAllocation{0};

void count() {
    allocations.fetch_add(1, std::memory_order_relaxed);
    releasesAtLastAllocation.store(releases.load(std::memory_order_relaxed),
                                   std::memory_order_relaxed);
}

void* allocate(std::size_t size) {
    count();
    if (void* p = std::malloc(size ? size : 1)) {
        return p;
    }
    throw std::bad_alloc();
}

void* allocateNothrow(std::size_t size) noexcept {
    count();
    return std::malloc(size ? size : 1);
}

void release(void* p) noexcept {
    if (p) {
        releases.fetch_add(1, std::memory_order_relaxed);
    }
    std::free(p);
}

}  // namespace

std::size_t heapAllocations() { return allocations.load(std::memory_order_relaxed); }
std::size_t heapReleases() { return releases.load(std::memory_order_relaxed); }
std::size_t heapReleasesAtLastAllocation() {
    return releasesAtLastAllocation.load(std::memory_order_relaxed);
}

void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return allocateNothrow(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return allocateNothrow(size);
}
void operator delete(void* p) noexcept { release(p); }
void operator delete[](void* p) noexcept { release(p); }
void operator delete(void* p, std::size_t) noexcept { release(p); }
void operator delete[](void* p, std::size_t) noexcept { release(p); }
void operator delete(void* p, const std::nothrow_t&) noexcept { release(p); }
void operator delete[](void* p, const std::nothrow_t&) noexcept { release(p); }
