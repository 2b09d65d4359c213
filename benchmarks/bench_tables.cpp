// Tables of 10,000 rows: read and searched by a calculation, opened and saved in the editor. The lookup of a
// shipped pipe.
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "benchmarks/Measure.h"
#include "benchmarks/TableScene.h"
#include "core/CalcRecord.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "platform/ProgramPlaces.h"
#include "platform/TemporaryFolder.h"
#include "platform/TextFiles.h"
#include "tables/PipeSizes.h"

namespace {

using namespace quillmetra;

constexpr int Rows = 10000;

// A folder with the table.
class Tables {
public:
    Tables() {
        Calc = CalcRecord();
        Suite.DefaultPaths[4] = SuitePath(folder_.Path());
        SaveTable(table::Liquid, Sheet);
        Calc.FluidType = words::Liquid;
        Calc.FluidName = Sheet.back()[0];
    }

    // The lines of the file one after the other, while the act wants more.
    template <typename Act>
    static void EachLine(Act act) {
        std::ifstream file(MachinePath(TablePath(table::Liquid)), std::ios::binary);
        for (std::string line; std::getline(file, line) && act(line);) {
        }
    }

    const std::vector<TableFields> Sheet = ManyLiquids(Rows);

private:
    TemporaryFolder folder_;
};

void Read(benchmark::State& state) {
    const Tables tables;
    Measure(state, [] { return ReadFluidRows(Calc.FluidType); });
}

void PlainRead(benchmark::State& state) {
    const Tables tables;
    Measure(state, [] {
        std::vector<std::string> lines;
        Tables::EachLine([&lines](const std::string& line) {
            lines.push_back(line);
            return true;
        });
        return lines;
    });
}

void FindLast(benchmark::State& state) {
    const Tables tables;
    Measure(state, FindFluidRow);
    if (!Calc.FluidRow.starts_with(Calc.FluidName)) state.SkipWithError("not found");
}

void PlainFind(benchmark::State& state) {
    const Tables tables;
    Measure(state, [] {
        std::string found;
        Tables::EachLine([&found](const std::string& line) {
            if (line.starts_with(Calc.FluidName) && line[Calc.FluidName.size()] == ' ') found = line;
            return found.empty();
        });
        return found;
    });
}

void Load(benchmark::State& state) {
    const Tables tables;
    Measure(state, [] { return LoadTable(table::Liquid); });
}

void PlainLoad(benchmark::State& state) {
    const Tables tables;
    Measure(state, [] {
        std::vector<TableFields> rows;
        Tables::EachLine([&rows](const std::string& line) {
            TableFields fields;
            std::size_t start = 0;
            for (std::size_t i = 0; i < table::Liquid.Columns.size() && start < line.size(); ++i) {
                const std::size_t comma = std::min(line.find(',', start), line.size());
                fields[i] = line.substr(start, comma - start);
                start = comma + 1;
            }
            rows.push_back(std::move(fields));
            return true;
        });
        return rows;
    });
}

void Save(benchmark::State& state) {
    const Tables tables;
    Measure(state, [&tables] { SaveTable(table::Liquid, tables.Sheet); });
}

void PlainSave(benchmark::State& state) {
    const Tables tables;
    const std::filesystem::path file = MachinePath(TablePath(table::Liquid));
    const std::filesystem::path beside = std::filesystem::path(file) += ".new";
    Measure(state, [&] {
        std::ofstream out(beside, std::ios::binary);
        for (const TableFields& fields : tables.Sheet) {
            for (std::size_t i = 0; i < table::Liquid.Columns.size(); ++i) out << fields[i] << ',';
            out << "\r\n";
        }
        out.close();
        std::filesystem::rename(beside, file);
    });
}

// The shipped table of steel pipe, the longest of the families, and its largest size.
struct Pipes {
    Pipes() {
        Calc = CalcRecord();
        Suite.DefaultPaths[path::DataFiles] = SuitePath(ShippedDataFolder());
        Calc.UnitFactor[pipeunit::PipeSizeRound] = Calc.UnitFactor[pipeunit::PipeSizeFactor] = 1;
    }
    static constexpr const char* Size = "80";
};

void LookUp(benchmark::State& state) {
    const Pipes pipes;
    Measure(state, [] { return FindPipeSizes(Pipes::Size); });
    if (FindPipeSizes(Pipes::Size).empty()) state.SkipWithError("not found");
}

void PlainLookUp(benchmark::State& state) {
    const Pipes pipes;
    Measure(state, [] {
        std::vector<std::string> found;
        double size = 0;
        std::ifstream file(MachinePath(TablePath(table::Pipe)), std::ios::binary);
        for (std::string line; std::getline(file, line);) {
            const double of = std::strtod(line.c_str(), nullptr);
            if (of <= 0 || of > 80 || of < size) continue;
            if (of > size) found.clear();
            size = of;
            found.push_back(line);
        }
        return found;
    });
}

BENCHMARK(Read)->Name("tables/10,000 fluids read");
BENCHMARK(PlainRead)->Name("tables/10,000 fluids read/plain");
BENCHMARK(FindLast)->Name("tables/last of 10,000 fluids found");
BENCHMARK(PlainFind)->Name("tables/last of 10,000 fluids found/plain");
BENCHMARK(Load)->Name("tables/10,000 rows into the editor");
BENCHMARK(PlainLoad)->Name("tables/10,000 rows into the editor/plain");
BENCHMARK(Save)->Name("tables/10,000 rows saved")->UseRealTime();
BENCHMARK(PlainSave)->Name("tables/10,000 rows saved/plain")->UseRealTime();
BENCHMARK(LookUp)->Name("tables/size among 422 pipes looked up");
BENCHMARK(PlainLookUp)->Name("tables/size among 422 pipes looked up/plain");

}  // namespace
