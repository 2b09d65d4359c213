// All results of a water hammer, from the pick of liquid and pipe to the curve that is drawn. "allocations"
// are per turn.
#include <benchmark/benchmark.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/HammerScene.h"
#include "fluids/FluidTables.h"
#include "fluids/LiquidData.h"
#include "hammer/PipeModulus.h"

namespace {

using namespace quillmetra;

template <typename Act>
void Measure(benchmark::State& state, Act act) {
    TakeHammerScene();
    act();
    const std::size_t before = AllocationCount();
    for ([[maybe_unused]] auto each : state) {
        act();
        benchmark::ClobberMemory();
    }
    state.counters["allocations"] =
        static_cast<double>(AllocationCount() - before) / static_cast<double>(state.iterations());
}

void HammerCase(benchmark::State& state) { Measure(state, CalculateHammer); }

void HammerCurve(benchmark::State& state) {
    Measure(state, [] { benchmark::DoNotOptimize(ClosingCurveOfRecord()); });
}

void HammerLiquid(benchmark::State& state) {
    Calc.FluidRow =
        "Toluene                        "
        ",1,92.138,0.8718,605.5,60,0.621,200,0.284,598.5,231.1,0.399,0.51,39,220,13,155,";
    const std::string row = Calc.FluidRow;
    Measure(state, [&] {
        Calc.FluidRow = row;
        ParseLiquidRow();
        ProcessLiquidData();
    });
}

void HammerModulus(benchmark::State& state) {
    const std::vector<std::string> fields = {"Steel", "2.95", "2.934", "2.88", "2.83", "2.77", "2.73"};
    Measure(state, [&] { LoadPipeModulus(fields); });
}

BENCHMARK(HammerCase);
BENCHMARK(HammerCurve);
BENCHMARK(HammerLiquid);
BENCHMARK(HammerModulus);

}  // namespace
