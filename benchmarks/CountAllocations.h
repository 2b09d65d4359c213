// Counts what a program takes from the heap. Linking CountAllocations.cpp replaces its operator new.
#pragma once

#include <cstddef>

namespace quillmetra {

// Calls of operator new since the start.
std::size_t AllocationCount();

}  // namespace quillmetra
