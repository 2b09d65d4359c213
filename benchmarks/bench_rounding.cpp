// Rounding to significant figures: a number as results have it, and the farthest from the limits.
#include <benchmark/benchmark.h>

#include "units/Rounding.h"

namespace {

using namespace quillmetra;

void Round(benchmark::State& state, double (*routine)(double), double value) {
    for ([[maybe_unused]] auto each : state) {
        benchmark::DoNotOptimize(value);
        benchmark::DoNotOptimize(routine(value));
    }
}

BENCHMARK_CAPTURE(Round, FourOfOrdinary, RoundedFour, 2.517409);
BENCHMARK_CAPTURE(Round, SixOfOrdinary, RoundedSix, 2.517409);
BENCHMARK_CAPTURE(Round, FourOfLarge, RoundedFour, 78365.62);
BENCHMARK_CAPTURE(Round, SixOfTiny, RoundedSix, 1.2345678e-290);

}  // namespace
