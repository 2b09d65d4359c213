// The properties that a form asks for in one click: steam from its files, a gas of the table and both kinds
// of mixture. "allocations" are per round; the texts of a parsed row make some.
#include <cstdlib>

#include <benchmark/benchmark.h>

#include "benchmarks/CountAllocations.h"
#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "fluids/Mixtures.h"
#include "fluids/SteamTables.h"
#include "platform/TextFiles.h"
#include "script/TemporaryFolder.h"

namespace {

using namespace quillmetra;

// A record of a program at 500 degF and 164.7 psia, with the shipped tables in place.
class Ready {
public:
    explicit Ready(int program) {
        Suite = SuiteState();
        SeedShippedData(SuitePath(folder_.Path()));
        Suite.DefaultPaths.fill(SuitePath(folder_.Path() / "TRData"));
        Suite.DefaultPaths[5] = SuitePath(folder_.Path());
        Calc = CalcRecord();
        Calc.CurrentProgram = program;
        Calc.FluidType = program == 2 ? words::Gas : words::Liquid;
        Calc.UnitName[2] = "degF";
        Calc.UnitName[12] = "degR";
        Calc.FlowTemperature = Calc.CaseInput[2][0] = 500;
        Calc.FlowPressure = 164.7;
        Calc.BaroPressure = 14.7;
    }

    // The first rows of the table in equal parts.
    static void TakeComponents(int count) {
        const auto rows = ReadFluidRows(Calc.FluidType);
        for (int i = 0; i < count; ++i) {
            AddComponent(rows.at(static_cast<std::size_t>(i)));
            Calc.FluidPercent[static_cast<std::size_t>(i)] = 100.0 / count;
        }
    }

private:
    TemporaryFolder folder_;
};

template <typename Act>
void Repeat(benchmark::State& state, Act act) {
    const std::size_t before = AllocationCount();
    for ([[maybe_unused]] auto each : state) act(state);
    state.counters["allocations"] =
        static_cast<double>(AllocationCount() - before) / static_cast<double>(state.iterations());
}

void Steam(benchmark::State& state, const char* kind) {
    const Ready ready(2);
    Calc.SteamKind = kind;
    Repeat(state, [](benchmark::State& each) {
        Calc.FlowTemperature = Calc.CaseInput[2][0] = 500;
        if (GetSteamData() != SteamOutcome::Found) each.SkipWithError("no steam");
    });
}

void SaturatedSteam(benchmark::State& state) { Steam(state, words::Saturated); }
void SuperheatedSteam(benchmark::State& state) { Steam(state, words::Superheated); }

void PureGas(benchmark::State& state) {
    const Ready ready(2);
    Calc.FluidOk = words::FluidPicked;
    Calc.FluidRow = ReadFluidRows(Calc.FluidType).front();
    Repeat(state, [](benchmark::State& each) {
        ParseGasRow();
        if (!ProcessGasData()) each.SkipWithError("refused");
    });
}

void GasMixtureOfSix(benchmark::State& state) {
    const Ready ready(2);
    Ready::TakeComponents(6);
    Repeat(state, [](benchmark::State& each) {
        if (!CalcGasMixtureForLine() || !ProcessGasData()) each.SkipWithError("refused");
    });
}

void LiquidMixtureOfSix(benchmark::State& state) {
    const Ready ready(1);
    Calc.FlowTemperature = 60;
    Calc.FlowPressure = 500;
    Ready::TakeComponents(6);
    Repeat(state, [](benchmark::State& each) {
        if (!CalcLiquidMixture() || !ProcessLiquidData()) each.SkipWithError("refused");
    });
}

BENCHMARK(SaturatedSteam)->Unit(benchmark::kMicrosecond);
BENCHMARK(SuperheatedSteam)->Unit(benchmark::kMicrosecond);
BENCHMARK(PureGas)->Unit(benchmark::kMicrosecond);
BENCHMARK(GasMixtureOfSix)->Unit(benchmark::kMicrosecond);
BENCHMARK(LiquidMixtureOfSix)->Unit(benchmark::kMicrosecond);

}  // namespace
