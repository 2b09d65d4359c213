// The record browser's acts on 100,000 records, and the database layer beside the bare engine doing the same
// inserts and look-ups.
#include <benchmark/benchmark.h>

#include "benchmarks/ManyRecords.h"
#include "benchmarks/PlainHeads.h"
#include "records/LoadRecord.h"
#include "records/RecordExport.h"
#include "records/RecordView.h"
#include "records/SaveRecord.h"

namespace {

using namespace quillmetra;

void OpenDatabase(benchmark::State& state) {
    const std::string& file = ManyRecordsFile();
    for ([[maybe_unused]] auto each : state) {
        RecordView view(file);
        benchmark::DoNotOptimize(view.Count() + view.Position());
    }
}
BENCHMARK(OpenDatabase)->Unit(benchmark::kMillisecond);

void ListTags(benchmark::State& state) {
    const std::unique_ptr<Database> database = OpenRecords(ManyRecordsFile());
    Recordset heads(*database, HeadTable().Shape);
    for ([[maybe_unused]] auto each : state) benchmark::DoNotOptimize(heads.Keys().size());
}
BENCHMARK(ListTags)->Unit(benchmark::kMillisecond);

void NextRecord(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    for ([[maybe_unused]] auto each : state) {
        view.Next();
        benchmark::DoNotOptimize(view.Position());
    }
}
BENCHMARK(NextRecord)->Unit(benchmark::kMicrosecond);

void PreviousRecord(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    view.Last();
    for ([[maybe_unused]] auto each : state) {
        view.Previous();
        benchmark::DoNotOptimize(view.Position());
    }
}
BENCHMARK(PreviousRecord)->Unit(benchmark::kMicrosecond);

void FindTag(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    int i = 0;
    for ([[maybe_unused]] auto each : state) {
        view.Find(TagOf(i = (i + 4241) % ManyRecords));
        benchmark::DoNotOptimize(view.Position());
    }
}
BENCHMARK(FindTag)->Unit(benchmark::kMicrosecond);

void TypeAhead(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    for ([[maybe_unused]] auto each : state) benchmark::DoNotOptimize(view.StartingWith("ft-12"));
}
BENCHMARK(TypeAhead)->Unit(benchmark::kMicrosecond);

void SearchOutdated(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    for ([[maybe_unused]] auto each : state) {
        for (bool start = true; view.NextOutdated(start);) start = false;
    }
}
BENCHMARK(SearchOutdated)->Unit(benchmark::kMillisecond);

void DisplayRecord(benchmark::State& state) {
    ManyRecordsFile();
    int i = 0;
    for ([[maybe_unused]] auto each : state) {
        ResetRecord();
        Calc.FluidType = words::Liquid;
        Calc.Tag = TagOf(i = (i + 4241) % ManyRecords);
        GetTRCalc();
    }
}
BENCHMARK(DisplayRecord)->Unit(benchmark::kMicrosecond);

// The time on the clock: the write waits for the disk.
void SaveRecord(benchmark::State& state) {
    ManyRecordsFile();
    int i = ManyRecords;
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        TakeRecord(++i);
        state.ResumeTiming();
        SaveTRCalc();
    }
}
BENCHMARK(SaveRecord)->Unit(benchmark::kMillisecond)->UseRealTime();

// --- The layer beside the bare engine ----------------------------------------------------------------------

constexpr int Batch = 10000;

std::vector<RowValues> HeadRows() {
    std::vector<RowValues> rows;
    for (int i = 0; i < Batch; ++i) {
        TakeRecord(i);
        rows.push_back(RowOfRecord(HeadTable()));
    }
    return rows;
}

void InsertByLayer(benchmark::State& state) {
    const std::vector<RowValues> rows = HeadRows();
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        const EmptyHeads empty;
        Database database(empty.File(), EmptyHeads::Kind);
        state.ResumeTiming();
        Transaction all(database);
        Recordset heads(database, HeadTable().Shape);
        for (const RowValues& values : rows) {
            heads.AddNew();
            for (std::size_t f = 0; f < values.size(); ++f) {
                if (values[f]) heads.Set(f, *values[f]);
            }
            heads.Update();
        }
        all.Commit();
    }
}
BENCHMARK(InsertByLayer)->Unit(benchmark::kMillisecond);

void InsertPlain(benchmark::State& state) {
    const std::vector<RowValues> rows = HeadRows();
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        const TemporaryFolder folder;
        PlainHeads plain((folder.Path() / "plain.db").string());
        state.ResumeTiming();
        plain.Execute("BEGIN");
        for (const RowValues& values : rows) plain.Insert(values);
        plain.Execute("COMMIT");
    }
}
BENCHMARK(InsertPlain)->Unit(benchmark::kMillisecond);

void LookUpByLayer(benchmark::State& state) {
    const std::unique_ptr<Database> database = OpenRecords(ManyRecordsFile());
    Recordset heads(*database, HeadTable().Shape);
    heads.Index("Tag_Number");
    int i = 0;
    for ([[maybe_unused]] auto each : state) {
        heads.Seek(TagOf(i = (i + 4241) % ManyRecords));
        heads.MoveNext();
        benchmark::DoNotOptimize(heads.Value(0));
    }
}
BENCHMARK(LookUpByLayer)->Unit(benchmark::kMicrosecond);

void LookUpPlain(benchmark::State& state) {
    const TemporaryFolder folder;
    PlainHeads plain((folder.Path() / "plain.db").string());
    plain.Execute("BEGIN");
    for (int i = 0; i < ManyRecords; ++i) {
        TakeRecord(i);
        plain.Insert(RowOfRecord(HeadTable()));
    }
    plain.Execute("COMMIT");
    int i = 0;
    for ([[maybe_unused]] auto each : state) {
        const std::string tag = TagOf(i = (i + 4241) % ManyRecords);
        benchmark::DoNotOptimize(plain.Seek(tag).size());
        benchmark::DoNotOptimize(plain.Next(tag).size());
    }
}
BENCHMARK(LookUpPlain)->Unit(benchmark::kMicrosecond);

void ExportAll(benchmark::State& state) {
    const TemporaryFolder folder;
    const std::string& file = ManyRecordsFile();
    for ([[maybe_unused]] auto each : state) {
        ExportRecords(file, SuitePath(folder.Path() / "all.csv"));
    }
}
BENCHMARK(ExportAll)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace
