// A liquid table of 10,000 rows read and matched, and a row parsed with its properties.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/LiquidData.h"
#include "platform/TextFiles.h"

namespace {

using namespace quillmetra;

constexpr const char* Toluene =
    "Toluene                        "
    ",1,92.138,0.8718,605.5,60,0.621,200,0.284,598.5,231.1,0.399,0.51,39,220,13,155,";

// A folder of its own with a long Liquid.txt, gone when the program ends.
class LongTable {
public:
    LongTable() : folder_((std::filesystem::temp_directory_path() / "quillmetra-bench-XXXXXX").string()) {
        if (mkdtemp(folder_.data()) == nullptr) throw std::runtime_error("no temporary folder");
        std::ofstream file(std::filesystem::path(folder_) / "Liquid.txt", std::ios::binary);
        file << "Name,Tp,MW\r\n";
        for (int i = 1; i < 10000; ++i)
            file << "Liquid number " << i << std::string(Toluene).substr(20) << "\r\n";
        file << Toluene << "\r\n";
        file.close();
        Suite.DefaultPaths[4] = SuitePath(folder_);
        Calc.FluidType = words::Liquid;
        Calc.FluidName = "Toluene";
    }
    ~LongTable() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    LongTable(const LongTable&) = delete;
    LongTable& operator=(const LongTable&) = delete;

private:
    std::string folder_;
};

void ReadAndMatch(benchmark::State& state) {
    const LongTable table;
    for ([[maybe_unused]] auto each : state) {
        const auto rows = ReadFluidRows(Calc.FluidType);
        if (FindFluidName(rows, Calc.FluidName) != 9999) state.SkipWithError("not found");
    }
}

void FindLastRow(benchmark::State& state) {
    const LongTable table;
    for ([[maybe_unused]] auto each : state) {
        FindFluidRow();
        benchmark::DoNotOptimize(Calc.FluidRow);
    }
}

void ParseAndProcess(benchmark::State& state) {
    Calc = CalcRecord();
    Calc.CurrentProgram = 1;
    Calc.FluidRow = Toluene;
    Calc.FlowTemperature = 100;
    Calc.FlowPressure = 114.7;
    Calc.BaroPressure = 14.7;
    for ([[maybe_unused]] auto each : state) {
        ParseLiquidRow();
        if (!ProcessLiquidData()) state.SkipWithError("refused");
    }
}

BENCHMARK(ReadAndMatch)->Unit(benchmark::kMillisecond);
BENCHMARK(FindLastRow)->Unit(benchmark::kMillisecond);
BENCHMARK(ParseAndProcess);

}  // namespace
