// Lists of 500 lines from a spreadsheet, and their records calculated anew, beside a loop that gives each
// line to its form and the bare engine.
#include <fstream>

#include "benchmarks/FilledForm.h"
#include "benchmarks/Measure.h"
#include "benchmarks/PlainRecords.h"
#include "forms/Import.h"
#include "forms/PanelReturn.h"
#include "forms/Recalculation.h"
#include "forms/RecordInHand.h"
#include "platform/Dialogs.h"
#include "records/RecordFiles.h"
#include "records/RecordView.h"
#include "records/SaveRecord.h"

namespace {

using namespace quillmetra;

constexpr int Lines = 500;

class List {
public:
    List() {
        std::ofstream file(folder_.Path() / "list.csv");
        file << "Tag,Program Number,Pipe Size,Pipe Length,Normal Flow,Normal Temperature,Normal Flow Source "
                "Pressure,"
                "Normal MW/SG,Normal Viscosity\n";
        for (int i = 0; i < Lines; ++i)
            file << "L-" << i << ",1,4.026,1000," << 100000 + i << ",60,100,1,1\n";
        Suite.DatabaseFile = DatabaseFileOf(SuitePath(folder_.Path()));
    }
    // An empty database for the next round.
    static void Renew() { MakeEmptyDatabase(Suite.DatabaseFile); }
    std::string File() const { return SuitePath(folder_.Path() / "list.csv"); }

private:
    FilledForm form_;
    TemporaryFolder folder_;
};

bool GoOn(int, int) { return true; }

void ImportLines(benchmark::State& state) {
    const List list;
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        List::Renew();
        state.ResumeTiming();
        Import import(list.File());
        import.Run(GoOn);
        if (import.Save(false) != Lines) state.SkipWithError("not all lines are new");
    }
}

// The values of a line set field by field in a record that is there, calculated by its form, its rows bound
// to the engine.
void PlainLines(benchmark::State& state) {
    const List list;
    const HeldMessages held(Questions::Answered);
    const CalcRecord fresh = Calc;
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        List::Renew();
        state.ResumeTiming();
        PlainRecords plain(Suite.DatabaseFile);
        plain.Execute("BEGIN IMMEDIATE");
        std::ifstream file(MachinePath(list.File()));
        std::string line;
        std::getline(file, line);
        while (std::getline(file, line, ',')) {
            Calc = fresh;
            Calc.Tag = line;
            std::getline(file, line, ',');
            double value = 0;
            char comma = 0;
            const auto next = [&] {
                file >> value >> comma;
                return value;
            };
            Calc.PipeData[pipe::InsideDiameter] = next();
            Calc.PipeData[pipe::Length] = next();
            for (const int row : {input::LiquidFlow, input::Temperature, input::Pressure, input::FlowGravity})
                Calc.CaseInput[At(row)] = {0, next(), 0};
            file >> value;
            file.ignore();
            Calc.CaseInput[input::Viscosity] = {0, value, 0};
            Calc.TemperatureBlank = {1, 0, 1};
            FillCalculationForm();
            OpenCalculation()->CalculateAll();
            const RecordRows rows = RowsOfRecord();
            for (std::size_t i = 0; i < rows.Tables.size(); ++i) {
                if (rows.Tables.at(i).empty()) continue;
                plain.Insert(*RecordTables()[i],
                             RowValues(rows.Tables.at(i).begin(), rows.Tables.at(i).end()));
            }
        }
        plain.Execute("COMMIT");
    }
}

void Fill(const List& list) {
    List::Renew();
    Import import(list.File());
    import.Run(GoOn);
    import.Save(false);
}

// From record to record, as a run over a database goes.
void EachRecord(const std::function<void(const RecordHead&)>& act) {
    RecordView view(Suite.DatabaseFile);
    for (int i = 0; i < Lines; ++i) {
        if (view.Find("L-" + std::to_string(i))) act(view.Head());
    }
}

void RecalculateLines(benchmark::State& state) {
    const List list;
    Fill(list);
    for ([[maybe_unused]] auto each : state) {
        Recalculation run(false);
        EachRecord([&run](const RecordHead& head) { run.Take(head); });
        if (run.Records() != Lines) state.SkipWithError("not all lines were calculated");
    }
}

// Each record into hand and into its form, calculated there.
void PlainRecalculation(benchmark::State& state) {
    const List list;
    Fill(list);
    const HeldMessages held(Questions::Answered);
    for ([[maybe_unused]] auto each : state) {
        EachRecord([](const RecordHead& head) {
            TakeRecord(head);
            FillCalculationForm();
            OpenCalculation()->CalculateAll();
        });
    }
}

BENCHMARK(RecalculateLines)->Name("list/500 lines recalculated")->Unit(benchmark::kMillisecond);
BENCHMARK(PlainRecalculation)->Name("list/500 lines recalculated/plain")->Unit(benchmark::kMillisecond);
BENCHMARK(ImportLines)->Name("list/500 lines imported")->Unit(benchmark::kMillisecond);
BENCHMARK(PlainLines)->Name("list/500 lines imported/plain")->Unit(benchmark::kMillisecond);

}  // namespace
