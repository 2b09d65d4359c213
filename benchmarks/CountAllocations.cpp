// See CountAllocations.h. The array forms of the standard library end in the two replaced here.
#include "benchmarks/CountAllocations.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<std::size_t> Allocations{0};
}  // namespace

namespace quillmetra {
std::size_t AllocationCount() { return Allocations; }
}  // namespace quillmetra

void* operator new(std::size_t size) {
    ++Allocations;
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
