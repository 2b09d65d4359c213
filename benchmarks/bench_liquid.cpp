// A whole liquid case with its messages hidden, beside a plain loop of the same arithmetic. The counter
// "ratio" of a record's row is its time over that of the plain row of its name; "allocations" are per case.
#include <ctime>
#include <iterator>

#include <benchmark/benchmark.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/PlainLiquidLine.h"
#include "lineloss/Friction.h"
#include "lineloss/LiquidLineLoss.h"

namespace {

using namespace quillmetra;

struct Scene {
    const char* Name;
    double Flow;
};
constexpr Scene Scenes[] = {{"turbulent", 50000}, {"critical", 2000}, {"laminar", 1000}};

// Of this process alone, so that a busy machine does not move the ratio.
double Seconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

double PlainSeconds[std::size(Scenes)];

void PlainLoop(benchmark::State& state) {
    const auto scene = static_cast<std::size_t>(state.range(0));
    PlainLine line{.Flow = Scenes[scene].Flow};
    const double start = Seconds();
    for ([[maybe_unused]] auto each : state) {
        benchmark::DoNotOptimize(line);
        benchmark::DoNotOptimize(PlainFinalPressure(line));
    }
    PlainSeconds[scene] = (Seconds() - start) / static_cast<double>(state.iterations());
    state.SetLabel(Scenes[scene].Name);
}

void LiquidCase(benchmark::State& state) {
    const auto scene = static_cast<std::size_t>(state.range(0));
    TakePlainLine({.Flow = Scenes[scene].Flow});
    CalcFriction();
    CalcFinalPressure();
    const std::size_t before = AllocationCount();
    const double start = Seconds();
    for ([[maybe_unused]] auto each : state) {
        CalcFriction();
        CalcFinalPressure();
        benchmark::DoNotOptimize(Calc.FlowPressure);
    }
    const double taken = Seconds() - start;
    const auto allocations = static_cast<double>(AllocationCount() - before);
    const auto count = static_cast<double>(state.iterations());
    state.counters["ratio"] = taken / count / PlainSeconds[scene];
    state.counters["allocations"] = allocations / count;
    state.SetLabel(Scenes[scene].Name);
}

// In this order, so that the ratio can be told in one run.
BENCHMARK(PlainLoop)->DenseRange(0, 2);
BENCHMARK(LiquidCase)->DenseRange(0, 2);

}  // namespace
