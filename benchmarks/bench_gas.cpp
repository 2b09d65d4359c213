// The march along a gas line of 10,000 ft, and the compressibility factor alone.
#include "benchmarks/Measure.h"
#include "benchmarks/PlainGasLine.h"
#include "fluids/GasData.h"
#include "lineloss/GasLineLoss.h"

namespace {

using namespace quillmetra;

void Compressibility(benchmark::State& state) {
    const PlainGas gas;
    TakePlainGas(gas);
    Measure(state, [] { CalcCompressibility(); });
    RequireSame(state, PlainGasDensity(gas, gas.Source), Calc.Density);
}

void PlainFactor(benchmark::State& state) {
    PlainGas gas;
    Measure(state, [&gas] {
        Forget(gas);
        return PlainGasDensity(gas, gas.Source);
    });
}

void March(benchmark::State& state) {
    const PlainGas gas;
    TakePlainGas(gas);
    CalcGasFriction();
    Measure(state, [] { CalcGasProfile(); });
    RequireSame(state, PlainGasFinalPressure(gas, Calc.FrictionFactor), Calc.FlowPressure);
}

// What a plot of the line costs when somebody looks.
void ObservedMarch(benchmark::State& state) {
    TakePlainGas({});
    CalcGasFriction();
    double lowest = 0;
    Measure(state, [&lowest] {
        CalcGasProfile([&lowest](const GasStation& station) { lowest = station.Pressure; });
    });
}

void PlainMarch(benchmark::State& state) {
    PlainGas gas;
    TakePlainGas(gas);
    CalcGasFriction();
    Measure(state, [&gas] {
        Forget(gas);
        return PlainGasFinalPressure(gas, Calc.FrictionFactor);
    });
}

BENCHMARK(Compressibility)->Name("gas line/compressibility factor");
BENCHMARK(PlainFactor)->Name("gas line/compressibility factor/plain");
BENCHMARK(March)->Name("gas line/march of 10,000 steps");
BENCHMARK(PlainMarch)->Name("gas line/march of 10,000 steps/plain");
BENCHMARK(ObservedMarch)->Name("gas line/march with a plot");
BENCHMARK(PlainMarch)->Name("gas line/march with a plot/plain");

}  // namespace
