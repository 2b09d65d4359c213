// The march along a gas line of 10,000 ft and the compressibility factor alone, each beside a plain loop of
// the same arithmetic. The counter "ratio" of a record's row is its time over that of the plain row before
// it; "allocations" are per march.
#include <ctime>

#include <benchmark/benchmark.h>

#include "benchmarks/CountAllocations.h"
#include "benchmarks/PlainGasLine.h"
#include "fluids/GasData.h"
#include "lineloss/GasLineLoss.h"

namespace {

using namespace quillmetra;

// Of this process alone, so that a busy machine does not move the ratio.
double Seconds() { return static_cast<double>(std::clock()) / CLOCKS_PER_SEC; }

// Processor seconds of one round.
template <typename Act>
double Measure(benchmark::State& state, Act act) {
    const double start = Seconds();
    for ([[maybe_unused]] auto each : state) act();
    return (Seconds() - start) / static_cast<double>(state.iterations());
}

double PlainFactorSeconds = 0;
double PlainMarchSeconds = 0;

void PlainFactor(benchmark::State& state) {
    PlainGas gas;
    PlainFactorSeconds = Measure(state, [&] {
        benchmark::DoNotOptimize(gas);
        benchmark::DoNotOptimize(PlainGasDensity(gas, gas.Source));
    });
}

void Compressibility(benchmark::State& state) {
    TakePlainGas({});
    const double taken = Measure(state, [] {
        CalcCompressibility();
        benchmark::DoNotOptimize(Calc.Density);
    });
    state.counters["ratio"] = taken / PlainFactorSeconds;
}

void PlainMarch(benchmark::State& state) {
    PlainGas gas;
    TakePlainGas(gas);
    CalcGasFriction();
    PlainMarchSeconds = Measure(state, [&] {
        benchmark::DoNotOptimize(gas);
        benchmark::DoNotOptimize(PlainGasFinalPressure(gas, Calc.FrictionFactor));
    });
}

void GasMarch(benchmark::State& state) {
    TakePlainGas({});
    CalcGasFriction();
    const std::size_t before = AllocationCount();
    const double taken = Measure(state, [] {
        CalcGasProfile();
        benchmark::DoNotOptimize(Calc.FlowPressure);
    });
    const auto allocations = static_cast<double>(AllocationCount() - before);
    state.counters["ratio"] = taken / PlainMarchSeconds;
    state.counters["allocations"] = allocations / static_cast<double>(state.iterations());
}

// What a plot of the line costs when somebody looks.
void ObservedMarch(benchmark::State& state) {
    TakePlainGas({});
    CalcGasFriction();
    double lowest = 0;
    const double taken = Measure(state, [&lowest] {
        CalcGasProfile([&lowest](const GasStation& station) { lowest = station.Pressure; });
        benchmark::DoNotOptimize(lowest);
    });
    state.counters["ratio"] = taken / PlainMarchSeconds;
}

// In this order, so that the ratios can be told in one run.
BENCHMARK(PlainFactor);
BENCHMARK(Compressibility);
BENCHMARK(PlainMarch)->Unit(benchmark::kMicrosecond);
BENCHMARK(GasMarch)->Unit(benchmark::kMicrosecond);
BENCHMARK(ObservedMarch)->Unit(benchmark::kMicrosecond);

}  // namespace
