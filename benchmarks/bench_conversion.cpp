// A whole record converted and rounded, beside a plain loop of the same arithmetic.
#include <benchmark/benchmark.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/PlainConversion.h"

namespace {

using namespace quillmetra;

void PlainLoop(benchmark::State& state) {
    TakeConvertedLine();
    PlainRecord record = PlainOfRecord();
    const UnitFactors english = Calc.UnitFactor;
    ApplyNamedUnitSet(3);
    const UnitFactors si = Calc.UnitFactor;
    bool toSI = false;
    for ([[maybe_unused]] auto each : state) {
        toSI = !toSI;
        ConvertPlain(record, toSI ? english : si, toSI ? si : english, toSI);
        benchmark::DoNotOptimize(record);
    }
}

// The conversion alone, without the choice of a set: all its work, from units to the same units.
void ConvertRecord(benchmark::State& state) {
    TakeConvertedLine();
    ChangeSet(true);
    const std::size_t before = AllocationCount();
    for ([[maybe_unused]] auto each : state) ConvertProgramData();
    state.counters["allocations"] = benchmark::Counter(static_cast<double>(AllocationCount() - before),
                                                       benchmark::Counter::kAvgIterations);
}

void ChangeUnitSet(benchmark::State& state) {
    TakeConvertedLine();
    bool toSI = false;
    for ([[maybe_unused]] auto each : state) {
        toSI = !toSI;
        ChangeSet(toSI);
    }
}

BENCHMARK(PlainLoop);
BENCHMARK(ConvertRecord);
BENCHMARK(ChangeUnitSet);

}  // namespace
