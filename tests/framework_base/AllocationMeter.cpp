#include "AllocationMeter.h"

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> g_largest{0};

} // namespace

std::size_t TakeLargestAllocation() {
    return g_largest.exchange(0);
}

void* operator new(std::size_t size) {
    g_largest = std::max(g_largest.load(), size);
    if (void* memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
