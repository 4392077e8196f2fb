#pragma once

#include <cstddef>

// Heap allocations made through operator new in this process so far.
std::size_t heapAllocations();
// Blocks given back through operator delete so far, and how many had been given back
// when the latest allocation was made, so a test can tell which came first.
std::size_t heapReleases();
std::size_t heapReleasesAtLastAllocation();
