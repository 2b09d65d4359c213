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

// A sanitizer keeps what was freed for a while.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool MemoryIsOurs = false;
#else
inline constexpr bool MemoryIsOurs = true;
#endif

}  // namespace quillmetra
