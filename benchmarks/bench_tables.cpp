// What a user of the table editor waits for with a table of 10,000 rows, beside the bare writing of its
// bytes.
#include <fstream>

#include <benchmark/benchmark.h>

#include "benchmarks/TableScene.h"
#include "platform/TextFiles.h"
#include "script/TemporaryFolder.h"

namespace {

using namespace quillmetra;

constexpr int Rows = 10000;

class Tables : public benchmark::Fixture {
public:
    void SetUp(benchmark::State&) override {
        Suite.DefaultPaths[4] = SuitePath(folder_.Path());
        SaveTable(table::Liquid, rows_);
    }

protected:
    TemporaryFolder folder_;
    const std::vector<TableFields> rows_ = ManyLiquids(Rows);
};

BENCHMARK_F(Tables, LoadTenThousandRows)(benchmark::State& state) {
    for ([[maybe_unused]] auto each : state) benchmark::DoNotOptimize(LoadTable(table::Liquid));
}

BENCHMARK_F(Tables, SaveTenThousandRows)(benchmark::State& state) {
    for ([[maybe_unused]] auto each : state) SaveTable(table::Liquid, rows_);
}

BENCHMARK_F(Tables, PlainWriteOfItsBytes)(benchmark::State& state) {
    const std::string path = TablePath(table::Liquid);
    const std::string bytes = ReadBytes(path);
    for ([[maybe_unused]] auto each : state) {
        std::ofstream(MachinePath(path), std::ios::binary)
            .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    }
}

}  // namespace
