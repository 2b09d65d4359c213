// What a user waits for on a form, on the script host: the refresh of a calculation beside the bare writing
// of its numbers, and the list of a large fluid table beside the bare reading of its lines.
#include <benchmark/benchmark.h>

#include "benchmarks/FilledForm.h"
#include "platform/NumberText.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"

namespace {

using namespace quillmetra;

void RefreshLiquidLoss(benchmark::State& state) {
    FilledForm filled;
    for ([[maybe_unused]] auto each : state) {
        Calc.UnitsConverted = words::Yes;
        ShowCalculation();
    }
}
BENCHMARK(RefreshLiquidLoss)->Unit(benchmark::kMicrosecond);

void PlainTextOfItsNumbers(benchmark::State& state) {
    FilledForm filled;
    for ([[maybe_unused]] auto each : state) {
        for (const FormRow& row : FormRows(1)) {
            for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i)
                benchmark::DoNotOptimize(Str(LiveValue(row, i)));
        }
    }
}
BENCHMARK(PlainTextOfItsNumbers)->Unit(benchmark::kMicrosecond);

constexpr int Liquids = 10000;

void OpenFluidList(benchmark::State& state) {
    FilledForm filled;
    filled.WriteLiquids(Liquids);
    Calc.FluidName = "Liquid 9000";
    for ([[maybe_unused]] auto each : state) {
        filled.Form().Fluids.Open(words::Liquid);
        state.PauseTiming();
        filled.Form().Fluids.Close();
        state.ResumeTiming();
    }
}
BENCHMARK(OpenFluidList)->Unit(benchmark::kMillisecond);

void PlainReadOfItsLines(benchmark::State& state) {
    FilledForm filled;
    const std::string path = filled.WriteLiquids(Liquids);
    for ([[maybe_unused]] auto each : state) {
        std::ifstream file(MachinePath(path), std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);) lines.push_back(line);
        benchmark::DoNotOptimize(lines.data());
    }
}
BENCHMARK(PlainReadOfItsLines)->Unit(benchmark::kMillisecond);

void CalculateOneCase(benchmark::State& state) {
    FilledForm filled;
    int flow = 90000;
    for ([[maybe_unused]] auto each : state) {
        TypeText(filled.Form().txtFlow(0), std::to_string(++flow));
        ClickControl(filled.Form().cmdCalculate(0));
    }
}
BENCHMARK(CalculateOneCase)->Unit(benchmark::kMicrosecond);

}  // namespace
