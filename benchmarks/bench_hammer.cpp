// All results of a water hammer, from the modulus of the pipe to the curve that is drawn.
#include <charconv>

#include "benchmarks/Measure.h"
#include "benchmarks/PlainHammer.h"
#include "hammer/PipeModulus.h"

namespace {

using namespace quillmetra;

void HammerCase(benchmark::State& state) {
    TakeHammerScene();
    Measure(state, CalculateHammer);
    RequireSame(state, PlainHammerCase(PlainHammer()).SelectedThrust, Calc.HammerResult[18]);
}

void PlainCase(benchmark::State& state) {
    TakeHammerScene();
    PlainHammer line;
    Measure(state, [&line] {
        Forget(line);
        return PlainHammerCase(line);
    });
}

void HammerCurve(benchmark::State& state) {
    TakeHammerScene();
    CalculateHammer();
    Measure(state, ClosingCurveOfRecord);
}

void CurveOnArrays(benchmark::State& state) {
    TakeHammerScene();
    PlainHammer line;
    const PlainHammerResults results = PlainHammerCase(line);
    Measure(state, [&] {
        Forget(line);
        return PlainHammerCurve(line, results);
    });
}

const std::vector<std::string> Steel = {"Steel", "2.95", "2.934", "2.88", "2.83", "2.77", "2.73"};

void HammerModulus(benchmark::State& state) {
    TakeHammerScene();
    Measure(state, [] { LoadPipeModulus(Steel); });
}

// The fields up to the first that is missing read, as the limit of the row asks, and two of them for the line
// between.
void PlainModulus(benchmark::State& state) {
    std::string name;
    Measure(state, [&name] {
        double value = 0;
        for (std::size_t i = 1; i < Steel.size(); ++i) {
            const std::string& field = Steel[i];
            std::from_chars(field.data(), field.data() + field.size(), value);
            Forget(value);
        }
        std::from_chars(Steel[1].data(), Steel[1].data() + Steel[1].size(), value);
        name = Steel[0];
        return value * 1e7;
    });
}

BENCHMARK(HammerCase)->Name("water hammer/case");
BENCHMARK(PlainCase)->Name("water hammer/case/plain");
BENCHMARK(HammerCurve)->Name("water hammer/curve");
BENCHMARK(CurveOnArrays)->Name("water hammer/curve/plain");
BENCHMARK(HammerModulus)->Name("water hammer/modulus of the pipe");
BENCHMARK(PlainModulus)->Name("water hammer/modulus of the pipe/plain");

}  // namespace
