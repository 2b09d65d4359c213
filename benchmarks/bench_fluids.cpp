// The properties that a form asks for in one click: a liquid and a gas of their tables, steam from its files,
// and both kinds of mixture.
#include "benchmarks/Measure.h"
#include "benchmarks/PlainFluids.h"
#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "fluids/Mixtures.h"
#include "platform/TemporaryFolder.h"

namespace {

using namespace quillmetra;

constexpr Surroundings LiquidFlow = {.Temperature = 60, .Pressure = 500, .Barometer = 14.7};
constexpr Surroundings GasFlow = {.Temperature = 500, .Pressure = 164.7, .Barometer = 14.7};
constexpr int LiquidLine = 1, GasLine = 2;

// A record of a line-loss program with its flow, and the shipped tables in place.
class Ready {
public:
    explicit Ready(int program) : Flow(program == GasLine ? GasFlow : LiquidFlow) {
        Suite = SuiteState();
        SeedShippedData(SuitePath(folder_.Path()));
        Suite.DefaultPaths.fill(SuitePath(folder_.Path() / "TRData"));
        Suite.DefaultPaths[5] = SuitePath(folder_.Path());
        Calc = CalcRecord();
        Calc.CurrentProgram = program;
        Calc.FluidType = program == GasLine ? words::Gas : words::Liquid;
        Calc.UnitName[2] = "degF";
        Calc.UnitName[12] = "degR";
        Calc.FlowTemperature = Calc.CaseInput[2][0] = Flow.Temperature;
        Calc.FlowPressure = Flow.Pressure;
        Calc.BaroPressure = Flow.Barometer;
    }

    // The first row of the table.
    std::string Pick() const {
        Calc.FluidOk = words::FluidPicked;
        return Calc.FluidRow = ReadFluidRows(Calc.FluidType).front();
    }

    // The first six rows in equal parts.
    std::vector<std::string> Mix() const {
        std::vector<std::string> rows = ReadFluidRows(Calc.FluidType);
        rows.resize(6);
        for (std::size_t i = 0; i < rows.size(); ++i) {
            AddComponent(rows[i]);
            Calc.FluidPercent[i] = 100.0 / 6;
        }
        return rows;
    }

    const Surroundings Flow;

private:
    TemporaryFolder folder_;
};

// --- One fluid ---------------------------------------------------------------------------------------------

void Liquid(benchmark::State& state) {
    const Ready ready(LiquidLine);
    const std::string row = ready.Pick();
    ParseLiquidRow();
    const double viscosity = Calc.FluidViscosity;
    Measure(state, [viscosity] {
        Calc.FluidViscosity = viscosity;
        ProcessLiquidData();
    });
    const PlainLiquid plain = PlainLiquidOf(row, ready.Flow.Temperature);
    RequireSame(state, PlainLiquidProperties(plain, ready.Flow, false).Gravity, Calc.FlowingSG);
}

void PlainLiquidCorrelations(benchmark::State& state) {
    const Ready ready(LiquidLine);
    PlainLiquid liquid = PlainLiquidOf(ready.Pick(), ready.Flow.Temperature);
    Measure(state, [&] {
        Forget(liquid);
        return PlainLiquidProperties(liquid, ready.Flow, false);
    });
}

void LiquidRow(benchmark::State& state) {
    const Ready ready(LiquidLine);
    ready.Pick();
    Measure(state, [] {
        ParseLiquidRow();
        ProcessLiquidData();
    });
}

void PlainLiquidRow(benchmark::State& state) {
    const Ready ready(LiquidLine);
    const std::string row = ready.Pick();
    Measure(state, [&] {
        return PlainLiquidProperties(PlainLiquidOf(row, ready.Flow.Temperature), ready.Flow, false);
    });
}

void Gas(benchmark::State& state) {
    const Ready ready(GasLine);
    const std::string row = ready.Pick();
    ParseGasRow();
    Measure(state, [] { ProcessGasData(); });
    RequireSame(state, PlainGasProperties(PlainRow(row, 12), ready.Flow).Density, Calc.Density);
}

void PlainGasCorrelations(benchmark::State& state) {
    const Ready ready(GasLine);
    PlainColumns columns = PlainRow(ready.Pick(), 12);
    Measure(state, [&] {
        Forget(columns);
        return PlainGasProperties(columns, ready.Flow);
    });
}

void GasRow(benchmark::State& state) {
    const Ready ready(GasLine);
    ready.Pick();
    Measure(state, [] {
        ParseGasRow();
        ProcessGasData();
    });
}

void PlainGasRow(benchmark::State& state) {
    const Ready ready(GasLine);
    const std::string row = ready.Pick();
    Measure(state, [&] { return PlainGasProperties(PlainRow(row, 12), ready.Flow); });
}

BENCHMARK(Liquid)->Name("correlations/liquid");
BENCHMARK(PlainLiquidCorrelations)->Name("correlations/liquid/plain");
BENCHMARK(LiquidRow)->Name("correlations/liquid from its row");
BENCHMARK(PlainLiquidRow)->Name("correlations/liquid from its row/plain");
BENCHMARK(Gas)->Name("correlations/gas");
BENCHMARK(PlainGasCorrelations)->Name("correlations/gas/plain");
BENCHMARK(GasRow)->Name("correlations/gas from its row");
BENCHMARK(PlainGasRow)->Name("correlations/gas from its row/plain");

// --- Steam -------------------------------------------------------------------------------------------------

PlainSteam SteamInMemory() {
    return {Suite.DefaultPaths[5] + "\\STEAM.txt", Suite.DefaultPaths[5] + "\\Stm07.Dat"};
}

void Saturated(benchmark::State& state) {
    const Ready ready(GasLine);
    Calc.SteamKind = words::Saturated;
    Measure(state, GetSteamData);
    RequireSame(state, PlainSteamOnForm(SteamInMemory().Saturated(ready.Flow.Pressure)).Density,
                RoundedFour(Calc.Density));
}

void PlainSaturated(benchmark::State& state) {
    const Ready ready(GasLine);
    const PlainSteam steam = SteamInMemory();
    double pressure = ready.Flow.Pressure;
    Measure(state, [&] {
        Forget(pressure);
        return PlainSteamOnForm(steam.Saturated(pressure));
    });
}

void Superheated(benchmark::State& state) {
    const Ready ready(GasLine);
    Calc.SteamKind = words::Superheated;
    Measure(state, GetSteamData);
    const PlainSteam::Found plain = SteamInMemory().Superheated(ready.Flow.Pressure, ready.Flow.Temperature);
    RequireSame(state, PlainSteamOnForm(plain).Density, RoundedFour(Calc.Density));
}

// Saturation is looked up too, since no steam may be below it.
void PlainSuperheated(benchmark::State& state) {
    const Ready ready(GasLine);
    const PlainSteam steam = SteamInMemory();
    Surroundings flow = ready.Flow;
    Measure(state, [&] {
        Forget(flow);
        benchmark::DoNotOptimize(PlainSteamOnForm(steam.Saturated(flow.Pressure)));
        return PlainSteamOnForm(steam.Superheated(flow.Pressure, flow.Temperature));
    });
}

BENCHMARK(Saturated)->Name("steam/saturated");
BENCHMARK(PlainSaturated)->Name("steam/saturated/plain");
BENCHMARK(Superheated)->Name("steam/superheated");
BENCHMARK(PlainSuperheated)->Name("steam/superheated/plain");

// --- Mixtures ----------------------------------------------------------------------------------------------

void LiquidMixture(benchmark::State& state) {
    const Ready ready(LiquidLine);
    const std::vector<std::string> rows = ready.Mix();
    Measure(state, [] { return CalcLiquidMixture() && ProcessLiquidData(); });
    RequireSame(state, PlainLiquidMixture(rows, ready.Flow).Gravity, Calc.FlowingSG);
}

void PlainLiquids(benchmark::State& state) {
    const Ready ready(LiquidLine);
    const std::vector<std::string> rows = ready.Mix();
    Measure(state, [&] { return PlainLiquidMixture(rows, ready.Flow); });
}

void GasMixture(benchmark::State& state) {
    const Ready ready(GasLine);
    const std::vector<std::string> rows = ready.Mix();
    Measure(state, [] { return CalcGasMixtureForLine() && ProcessGasData(); });
    RequireSame(state, PlainGasMixture(rows, ready.Flow).Density, Calc.Density);
}

void PlainGases(benchmark::State& state) {
    const Ready ready(GasLine);
    const std::vector<std::string> rows = ready.Mix();
    Measure(state, [&] { return PlainGasMixture(rows, ready.Flow); });
}

BENCHMARK(LiquidMixture)->Name("mixtures/six liquids");
BENCHMARK(PlainLiquids)->Name("mixtures/six liquids/plain");
BENCHMARK(GasMixture)->Name("mixtures/six gases");
BENCHMARK(PlainGases)->Name("mixtures/six gases/plain");

}  // namespace
