// A whole liquid case with its messages hidden.
#include "benchmarks/Measure.h"
#include "benchmarks/PlainLiquidLine.h"
#include "lineloss/Friction.h"
#include "lineloss/LiquidLineLoss.h"

namespace {

using namespace quillmetra;

constexpr double Turbulent = 50000, Critical = 2000, Laminar = 1000;  // lb/h

void LiquidCase(benchmark::State& state, double flow) {
    const PlainLine line{.Flow = flow};
    TakePlainLine(line);
    Measure(state, [] {
        CalcFriction();
        CalcFinalPressure();
    });
    RequireSame(state, PlainFinalPressure(line), Calc.FlowPressure);
}

void PlainCase(benchmark::State& state, double flow) {
    PlainLine line{.Flow = flow};
    Measure(state, [&line] {
        Forget(line);
        return PlainFinalPressure(line);
    });
}

BENCHMARK_CAPTURE(LiquidCase, turbulent, Turbulent)->Name("liquid line/turbulent case");
BENCHMARK_CAPTURE(PlainCase, turbulent, Turbulent)->Name("liquid line/turbulent case/plain");
BENCHMARK_CAPTURE(LiquidCase, critical, Critical)->Name("liquid line/critical case");
BENCHMARK_CAPTURE(PlainCase, critical, Critical)->Name("liquid line/critical case/plain");
BENCHMARK_CAPTURE(LiquidCase, laminar, Laminar)->Name("liquid line/laminar case");
BENCHMARK_CAPTURE(PlainCase, laminar, Laminar)->Name("liquid line/laminar case/plain");

}  // namespace
