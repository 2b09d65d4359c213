// The time of an act, the quickest of a few: a loaded machine makes single ones slow.
#pragma once

#include <algorithm>
#include <chrono>

namespace quillmetra {

// Seconds by the clock on the wall, since a user waits for the disk too.
template <typename Act>
double Quickest(const Act& act) {
    using Clock = std::chrono::steady_clock;
    double quickest = 1e9;
    for (int i = 0; i < 5; ++i) {
        const auto start = Clock::now();
        act();
        quickest = std::min(quickest, std::chrono::duration<double>(Clock::now() - start).count());
    }
    return quickest;
}

}  // namespace quillmetra
