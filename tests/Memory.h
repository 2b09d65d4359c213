// How much memory the process has in hand.
#pragma once

#include <fstream>

namespace quillmetra {

// MB; 0 on a machine that does not tell.
inline double ResidentMegabytes() {
    long pages = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> pages >> resident;
    return static_cast<double>(resident) * 4096 / 1e6;
}

// A sanitizer keeps what was freed for a while. GCC says by a macro that it is at work, Clang by a question.
#ifndef __has_feature
#define __has_feature(feature) 0
#endif
#if defined(__SANITIZE_ADDRESS__) || __has_feature(address_sanitizer)
inline constexpr bool MemoryIsOurs = false;
#else
inline constexpr bool MemoryIsOurs = true;
#endif

}  // namespace quillmetra
