// Records saved and loaded, the browser's acts on 100,000 of them, and rows in bulk; each beside the bare
// engine on the same file.
#include <algorithm>
#include <charconv>
#include <fstream>

#include "benchmarks/ManyRecords.h"
#include "benchmarks/Measure.h"
#include "benchmarks/PlainRecords.h"
#include "platform/KeyOrder.h"
#include "platform/WorkbookWriter.h"
#include "records/LoadRecord.h"
#include "records/RecordExport.h"
#include "records/RecordList.h"
#include "records/RecordView.h"
#include "records/SaveRecord.h"

namespace {

using namespace quillmetra;

const std::vector<const RecordTable*> RowsOfALine = {&HeadTable(), &UnitsTable(), &PressureDropTable(),
                                                     &SettingsTable()};

// The records in an order in which no two neighbours follow each other.
std::string NextTag() {
    static int i = 0;
    return TagOf(i = (i + 4241) % ManyRecords);
}

// --- One record --------------------------------------------------------------------------------------------

// No two saves of a run meet the same tag.
int NextNew() {
    static int i = ManyRecords;
    return ++i;
}

// The time on the clock: the write waits for the disk.
void Save(benchmark::State& state) {
    ManyRecordsFile();
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        TakeRecord(NextNew());
        state.ResumeTiming();
        SaveTRCalc();
    }
}

void PlainSave(benchmark::State& state) {
    const std::string& file = ManyRecordsFile();
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        TakeRecord(NextNew());
        state.ResumeTiming();
        PlainRecords plain(file);
        plain.Execute("BEGIN IMMEDIATE");
        for (const RecordTable* table : RowsOfALine) plain.Insert(*table, RowOfRecord(*table));
        plain.Execute("COMMIT");
    }
}

void Load(benchmark::State& state) {
    ManyRecordsFile();
    Measure(state, [] {
        ResetRecord();
        Calc.FluidType = words::Liquid;
        Calc.Tag = NextTag();
        GetTRCalc();
    });
}

void PlainLoad(benchmark::State& state) {
    const std::string& file = ManyRecordsFile();
    Measure(state, [&file] {
        PlainRecords plain(file);
        const std::string tag = NextTag();
        for (const RecordTable* table : RowsOfALine) benchmark::DoNotOptimize(plain.Seek(*table, tag));
    });
}

BENCHMARK(Save)->Name("record/save")->UseRealTime();
BENCHMARK(PlainSave)->Name("record/save/plain")->UseRealTime();
BENCHMARK(Load)->Name("record/load");
BENCHMARK(PlainLoad)->Name("record/load/plain");

// --- The browser -------------------------------------------------------------------------------------------

void Open(benchmark::State& state) {
    const std::string& file = ManyRecordsFile();
    Measure(state, [&file] {
        RecordView view(file);
        return view.Count() + view.Position();
    });
}

void PlainOpen(benchmark::State& state) {
    const std::string& file = ManyRecordsFile();
    Measure(state, [&file] {
        PlainRecords plain(file);
        benchmark::DoNotOptimize(plain.Next(HeadTable(), " "));
        return plain.Tags();
    });
}

void List(benchmark::State& state) {
    const std::unique_ptr<Database> database = OpenRecords(ManyRecordsFile());
    Recordset heads(*database, HeadTable().Shape);
    Measure(state, [&heads] { return heads.Keys(); });
}

void PlainList(benchmark::State& state) {
    PlainRecords plain(ManyRecordsFile());
    Measure(state, [&plain] { return plain.Tags(); });
}

void Next(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    Measure(state, [&view] {
        view.Next();
        return view.Position();
    });
}

void Previous(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    view.Last();
    Measure(state, [&view] {
        view.Previous();
        return view.Position();
    });
}

void Find(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    Measure(state, [&view] {
        view.Find(NextTag());
        return view.Position();
    });
}

// A look-up by the bare engine, and the place of its tag among all tags.
void PlainLookUp(benchmark::State& state,
                 const PlainRecords::Row& (PlainRecords::*act)(const RecordTable&, std::string_view)) {
    PlainRecords plain(ManyRecordsFile());
    const std::vector<std::string> tags = plain.Tags();
    const auto isBefore = [](std::string_view a, std::string_view b) { return CompareKeys(a, b) < 0; };
    Measure(state, [&] {
        const PlainRecords::Row& row = (plain.*act)(HeadTable(), NextTag());
        if (row.empty()) return tags.end();
        return std::lower_bound(tags.begin(), tags.end(), std::get<std::string>(row[0]), isBefore);
    });
}

void TypeAhead(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    Measure(state, [&view] { return view.StartingWith("ft-12"); });
}

void FindOutdated(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    Measure(state, [&view] {
        for (bool start = true; view.NextOutdated(start);) start = false;
    });
}

void PlainOutdated(benchmark::State& state) {
    PlainRecords plain(ManyRecordsFile());
    Measure(state, [&plain] {
        int outdated = 0;
        plain.EachRow(
            "SELECT \"Data Date\", \"Calc Date\" FROM \"" + HeadTable().Shape.Name + "\" ORDER BY \"Tag\"",
            {}, [&outdated](const PlainRecords::Row& row) { outdated += row[0] > row[1] ? 1 : 0; });
        return outdated;
    });
}

// What the browser does with all records as it opens a database.
void Table(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    Measure(state, [&view] {
        view.ForgetLines();
        RecordList list;
        list.Take(view.Lines());
        return list.Rows();
    });
}

void PlainTable(benchmark::State& state) {
    PlainRecords plain(ManyRecordsFile());
    Measure(state, [&plain] {
        std::vector<PlainRecords::Row> rows;
        plain.EachRow(
            "SELECT \"Tag\", \"Program Number\", \"Fluid Name\", \"Calc By\", \"Calc Date\", \"Data Date\" "
            "FROM \"" +
                HeadTable().Shape.Name + "\"",
            {}, [&rows](const PlainRecords::Row& row) { rows.push_back(row); });
        return rows.size();
    });
}

// One key after the other, as they come.
void TableFilter(benchmark::State& state) {
    RecordView view(ManyRecordsFile());
    RecordList list;
    list.Take(view.Lines());
    Measure(state, [&list] {
        static int key = 0;
        constexpr std::array typed = {"w", "wa", "water", "water 1", "water 12", ""};
        list.Filter(typed[static_cast<std::size_t>(++key) % typed.size()]);
        return list.Rows();
    });
}

BENCHMARK(Table)->Name("browser/table of all records");
BENCHMARK(PlainTable)->Name("browser/table of all records/plain");
BENCHMARK(TableFilter)->Name("browser/table filtered by a key");
BENCHMARK(Open)->Name("browser/open");
BENCHMARK(PlainOpen)->Name("browser/open/plain");
BENCHMARK(List)->Name("browser/list of all tags");
BENCHMARK(PlainList)->Name("browser/list of all tags/plain");
BENCHMARK(Next)->Name("browser/next");
BENCHMARK_CAPTURE(PlainLookUp, next, &PlainRecords::Next)->Name("browser/next/plain");
BENCHMARK(Previous)->Name("browser/previous");
BENCHMARK_CAPTURE(PlainLookUp, previous, &PlainRecords::Previous)->Name("browser/previous/plain");
BENCHMARK(Find)->Name("browser/find");
BENCHMARK_CAPTURE(PlainLookUp, find, &PlainRecords::Seek)->Name("browser/find/plain");
BENCHMARK(TypeAhead)->Name("browser/search while typing");
BENCHMARK(FindOutdated)->Name("browser/search by date");
BENCHMARK(PlainOutdated)->Name("browser/search by date/plain");

// --- Rows in bulk ------------------------------------------------------------------------------------------

constexpr int Batch = 10000;

std::vector<RowValues> HeadRows() {
    std::vector<RowValues> rows;
    for (int i = 0; i < Batch; ++i) {
        TakeRecord(i);
        rows.push_back(RowOfRecord(HeadTable()));
    }
    return rows;
}

void Insert(benchmark::State& state) {
    const std::vector<RowValues> rows = HeadRows();
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        const EmptyHeads empty;
        state.ResumeTiming();
        Database database(empty.File(), EmptyHeads::Kind);
        Transaction all(database);
        Recordset heads(database, HeadTable().Shape);
        for (const RowValues& values : rows) AddRow(heads, values);
        all.Commit();
    }
}

void PlainInsert(benchmark::State& state) {
    const std::vector<RowValues> rows = HeadRows();
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        const EmptyHeads empty;
        state.ResumeTiming();
        PlainRecords plain(SuitePath(empty.File()));
        plain.Execute("BEGIN IMMEDIATE");
        for (const RowValues& values : rows) plain.Insert(HeadTable(), values);
        plain.Execute("COMMIT");
    }
}

void LookUp(benchmark::State& state) {
    const std::unique_ptr<Database> database = OpenRecords(ManyRecordsFile());
    Recordset heads(*database, HeadTable().Shape);
    heads.Index("Tag_Number");
    Measure(state, [&heads] { return heads.Seek(NextTag()); });
}

void PlainSeek(benchmark::State& state) {
    PlainRecords plain(ManyRecordsFile());
    Measure(state, [&plain] { return plain.Seek(HeadTable(), NextTag()).size(); });
}

void Export(benchmark::State& state) {
    const TemporaryFolder folder;
    const std::string& file = ManyRecordsFile();
    for ([[maybe_unused]] auto each : state) ExportRecords(file, SuitePath(folder.Path() / "all.csv"));
}

// The rows of each record read tag by tag, and every value written as it is.
void PlainExport(benchmark::State& state) {
    const TemporaryFolder folder;
    const std::string& file = ManyRecordsFile();
    const auto write = [](std::ofstream& out, const FieldValue& value) {
        if (const auto* text = std::get_if<std::string>(&value)) out << *text;
        if (const auto* number = std::get_if<double>(&value)) {
            std::array<char, 40> digits{};
            out.write(
                digits.data(),
                std::to_chars(digits.begin(), digits.end(), static_cast<float>(*number)).ptr - digits.data());
        }
        out << ',';
    };
    for ([[maybe_unused]] auto each : state) {
        PlainRecords plain(file);
        std::ofstream out(folder.Path() / "plain.csv", std::ios::binary);
        for (const std::string& tag : plain.Tags()) {
            for (const RecordTable* table : RowsOfALine) {
                for (const FieldValue& value : plain.Seek(*table, tag)) write(out, value);
            }
            out << "\r\n";
        }
    }
}

// 10,000 of them as a workbook.
std::vector<std::string> SomeTags() {
    std::vector<std::string> tags;
    for (int i = 0; i < 10000; ++i) tags.push_back(TagOf(i));
    return tags;
}

void ExportWorkbook(benchmark::State& state) {
    const TemporaryFolder folder;
    const std::string& file = ManyRecordsFile();
    const std::vector<std::string> tags = SomeTags();
    for ([[maybe_unused]] auto each : state)
        ExportRecords(file, SuitePath(folder.Path() / "some.xlsx"), tags);
}

// The rows read tag by tag and handed on to the library as they are.
void PlainWorkbook(benchmark::State& state) {
    const TemporaryFolder folder;
    const std::string& file = ManyRecordsFile();
    const auto cellOf = [](const FieldValue& value) -> WorkbookCell {
        if (const auto* text = std::get_if<std::string>(&value)) return *text;
        if (const auto* number = std::get_if<double>(&value)) return *number;
        return {};
    };
    for ([[maybe_unused]] auto each : state) {
        PlainRecords plain(file);
        WorkbookWriter book(SuitePath(folder.Path() / "plain.xlsx"));
        book.Sheet("Plain", 0);
        for (const std::string& tag : SomeTags()) {
            std::vector<WorkbookCell> row;
            for (const RecordTable* table : RowsOfALine)
                std::ranges::transform(plain.Seek(*table, tag), std::back_inserter(row), cellOf);
            book.Row(row);
        }
        book.Commit();
    }
}

BENCHMARK(Insert)->Name("database/10,000 rows added");
BENCHMARK(PlainInsert)->Name("database/10,000 rows added/plain");
BENCHMARK(LookUp)->Name("database/row sought");
BENCHMARK(PlainSeek)->Name("database/row sought/plain");
BENCHMARK(Export)->Name("database/export of 100,000 records")->Iterations(1)->Repetitions(3);
BENCHMARK(PlainExport)->Name("database/export of 100,000 records/plain")->Iterations(1)->Repetitions(3);
BENCHMARK(ExportWorkbook)->Name("database/workbook of 10,000 records")->Iterations(1)->Repetitions(3);
BENCHMARK(PlainWorkbook)->Name("database/workbook of 10,000 records/plain")->Iterations(1)->Repetitions(3);

}  // namespace
