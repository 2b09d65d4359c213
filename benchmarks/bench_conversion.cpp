// A whole record converted and rounded, and the rounding alone.
#include "benchmarks/Measure.h"
#include "benchmarks/PlainConversion.h"

namespace {

using namespace quillmetra;

void ConvertBareArrays(benchmark::State& state) {
    TakeConvertedLine();
    PlainRecord record = PlainOfRecord();
    const UnitFactors english = Calc.UnitFactor;
    ApplyNamedUnitSet(3);
    const UnitFactors si = Calc.UnitFactor;
    bool toSI = false;
    Measure(state, [&] {
        toSI = !toSI;
        ConvertPlain(record, toSI ? english : si, toSI ? si : english, toSI);
        return record;
    });
}

// The conversion alone, without the choice of a set: all its work, from units to the same units.
void ConvertRecord(benchmark::State& state) {
    TakeConvertedLine();
    ChangeSet(true);
    Measure(state, [] { ConvertProgramData(); });
}

void ChangeUnitSet(benchmark::State& state) {
    TakeConvertedLine();
    bool toSI = false;
    Measure(state, [&] {
        toSI = !toSI;
        ChangeSet(toSI);
    });
}

// The names and factors of the set put in place besides.
void ChangeBareArrays(benchmark::State& state) {
    TakeConvertedLine();
    PlainRecord record = PlainOfRecord();
    const CalcRecord english = Calc;
    ApplyNamedUnitSet(3);
    const CalcRecord si = Calc;
    auto names = si.UnitName, former = names, chosen = names;
    UnitFactors factors{};
    bool toSI = false;
    Measure(state, [&] {
        toSI = !toSI;
        const CalcRecord& to = toSI ? si : english;
        former = names;
        chosen = names = to.UnitName;
        factors = to.UnitFactor;
        ConvertPlain(record, (toSI ? english : si).UnitFactor, factors, toSI);
        return record;
    });
}

BENCHMARK(ConvertRecord)->Name("conversion/whole record");
BENCHMARK(ConvertBareArrays)->Name("conversion/whole record/plain");
BENCHMARK(ChangeUnitSet)->Name("conversion/change of the unit set");
BENCHMARK(ChangeBareArrays)->Name("conversion/change of the unit set/plain");

// By the logarithm, as one would do it at a desk; it is off in the last digit now and then.
double RoundedByLogarithm(double value, int figures) {
    const double scale = std::pow(10.0, figures - 1 - std::floor(std::log10(std::fabs(value))));
    return std::copysign(std::floor(std::fabs(value) * scale + 0.5) / scale, value);
}

void Round(benchmark::State& state, double (*routine)(double), double value) {
    Measure(state, [routine, &value] {
        Forget(value);
        return routine(value);
    });
}

void RoundPlain(benchmark::State& state, int figures, double value) {
    Measure(state, [figures, &value] {
        Forget(value);
        return RoundedByLogarithm(value, figures);
    });
}

BENCHMARK_CAPTURE(Round, four, RoundedFour, 2.517409)->Name("rounding/4 figures");
BENCHMARK_CAPTURE(RoundPlain, four, 4, 2.517409)->Name("rounding/4 figures/plain");
BENCHMARK_CAPTURE(Round, six, RoundedSix, 78365.62)->Name("rounding/6 figures");
BENCHMARK_CAPTURE(RoundPlain, six, 6, 78365.62)->Name("rounding/6 figures/plain");
BENCHMARK_CAPTURE(Round, tiny, RoundedSix, 1.2345678e-290)->Name("rounding/smallest number");

}  // namespace
