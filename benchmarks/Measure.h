// The rounds of a benchmark. A benchmark is named "area/what"; the one named "area/what/plain" does the same
// work without the suite's record, forms or layers, and ./bench shows the two in one row of its table.
#pragma once

#include <cmath>
#include <string>
#include <type_traits>

#include <benchmark/benchmark.h>

#include "benchmarks/CountAllocations.h"

namespace quillmetra {

// Repeats an act and counts what a round takes from the heap. The first time is not measured: what is made
// once and kept is made there.
template <typename Act>
void Measure(benchmark::State& state, Act act) {
    const auto once = [&act] {
        if constexpr (std::is_void_v<decltype(act())>) {
            act();
        } else {
            benchmark::DoNotOptimize(act());
        }
        benchmark::ClobberMemory();
    };
    once();
    const std::size_t before = AllocationCount();
    for ([[maybe_unused]] auto each : state) once();
    state.counters["allocations"] =
        static_cast<double>(AllocationCount() - before) / static_cast<double>(state.iterations());
}

// The compiler may no longer take the value for known. By its address: GCC may lose a number that is given to
// DoNotOptimize itself, and the round would work on what lay in its place.
template <typename T>
void Forget(T& value) {
    benchmark::DoNotOptimize(&value);
    benchmark::ClobberMemory();
}

// A comparison says nothing when the two do different work: then the benchmark fails.
inline void RequireSame(benchmark::State& state, double plain, double suite) {
    if (std::fabs(plain - suite) <= 1e-9 * std::fabs(suite)) return;
    const std::string text = "plain " + std::to_string(plain) + ", suite " + std::to_string(suite);
    state.SkipWithError(text.c_str());
}

}  // namespace quillmetra
