#pragma once

#include <cstddef>

// Heap allocations made through operator new in this process so far.
std::size_t heapAllocations();
