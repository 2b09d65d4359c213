// Reports: the page of one calculation, and a run over 1,000 records to one PDF.
#include <cstdlib>

#include "benchmarks/Measure.h"
#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/frmPrintControl.h"
#include "forms/RecordInHand.h"
#include "forms/RegisterForms.h"
#include "paper/PdfPaper.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/Printer.h"
#include "platform/TemporaryFolder.h"
#include "platform/TextFiles.h"
#include "platform/UserActs.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"
#include "records/RecordTransfer.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"
#include "reports/ReportPage.h"
#include "script/ScriptHost.h"
#include "units/NamedUnitSets.h"

namespace {

using namespace quillmetra;

constexpr int Records = 1000;

// A record of one of the five programs with numbers in all its places.
void MakeRecord(int i) {
    const int program = i % 5 + 1;
    Calc = CalcRecord();
    Calc.CurrentProgram = program;
    Calc.FluidType = FindProgram(program)->FluidType;
    Calc.BaroPressure = 14.7;
    ApplyNamedUnitSet(1 + i % 4);
    Calc.Tag = "T-" + std::to_string(i);
    Calc.FluidName = "Water";
    Calc.ProgramTitle = FindProgram(program)->Title;
    Calc.CaseText[8] = "by";
    Calc.CaseText[10] = "11/24/2026";
    Calc.OtherCalcs = words::NoCodes;
    Calc.CalcOption = "SGGANXXX";
    double next = 1.25;
    for (auto& row : Calc.CaseInput) row = {next += 1.5, next + 0.25, next + 0.5};
    for (std::size_t row = 0; row < 6; ++row) Calc.CaseResult[row] = {next += 1.5, next + 0.25, next + 0.5};
    for (std::size_t i6 = 1; i6 < 6; ++i6) Calc.PipeData[i6] = next += 1.5;
    for (double& value : Calc.HammerResult) value = next += 1.5;
}

// Does nothing with a page, or keeps it.
class IdlePaper : public Paper {
public:
    explicit IdlePaper(PrintedPage* kept) : kept_(kept) {}
    void Print(const PrintedPage& page) override {
        if (kept_ != nullptr) *kept_ = page;
    }
    void Finish() override {}

private:
    PrintedPage* kept_;
};

class PrintingHost : public ScriptHost {
public:
    explicit PrintingHost(std::ostream& out) : ScriptHost(out) {}
    std::unique_ptr<Paper> OpenPaper(const PrintJob& job) override {
        if (job.To == PrintJob::Target::Pdf) return OpenPdf(job);
        return std::make_unique<IdlePaper>(Keep);
    }
    PrintedPage* Keep = nullptr;  // where the next page goes
};

// The suite with the records in its database.
class Office {
public:
    Office() : Host(out_) {
        ResetForms();
        InstallHost(&Host);
        Calc = CalcRecord();
        Suite = SuiteState();
        Printer = RecordingPrinter();
        RegisterForms();
        StartUp(SuitePath(folder_.Path()));
        Suite.DatabasePath = SuitePath(folder_.Path());
        CreateDB(true);
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Transaction all(*database);
        for (int i = 0; i < Records; ++i) {
            MakeRecord(i);
            for (const RecordTable* table :
                 {&HeadTable(), &UnitsTable(), ProgramTable(Calc.CurrentProgram), &SettingsTable()}) {
                AddRow(*database, *table);
            }
        }
        all.Commit();
    }
    ~Office() {
        ResetForms();
        InstallHost(nullptr);
    }
    Office(const Office&) = delete;
    Office& operator=(const Office&) = delete;

    std::string PdfFile() const { return SuitePath(folder_.Path() / "run.pdf"); }

    // Loads a record and fills its form.
    static void Take(int i) {
        RecordView view(Suite.DatabaseFile);
        view.Find("T-" + std::to_string(i));
        TakeRecord(view.Head());
        FillCalculationForm();
    }

private:
    static void AddRow(Database& database, const RecordTable& table) {
        Recordset rows(database, table.Shape);
        const RowValues values = RowOfRecord(table);
        rows.AddNew();
        for (std::size_t field = 0; field < values.size(); ++field) {
            if (values[field]) rows.Set(field, *values[field]);
        }
        rows.Update();
    }

    std::ostringstream out_;
    TemporaryFolder folder_;

public:
    PrintingHost Host;
};

// --- One page ----------------------------------------------------------------------------------------------

void PrintPage() {
    Printer.Open({});
    PrintReportPage({.Title = "Title"}, Printer.Font.Size);
    Printer.EndDoc();
    Printer.Close();
}

void OnePage(benchmark::State& state) {
    const Office office;
    Office::Take(0);
    Measure(state, PrintPage);
}

// The texts of the page put at their places again, and the numbers among them as texts.
void PlainPage(benchmark::State& state) {
    Office office;
    Office::Take(0);
    PrintedPage page;
    office.Host.Keep = &page;
    PrintPage();
    Measure(state, [&page] {
        PrintedPage copy;
        for (const PrintOp& op : page.Ops) copy.Ops.push_back(op);
        for (const FormRow& row : FormRows(1)) {
            for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i) {
                benchmark::DoNotOptimize(Str(LiveValue(row, i)));
            }
        }
        return copy;
    });
}

BENCHMARK(OnePage)->Name("report/page of one calculation");
BENCHMARK(PlainPage)->Name("report/page of one calculation/plain");

// --- A run -------------------------------------------------------------------------------------------------

void Run(benchmark::State& state) {
    Office office;
    for ([[maybe_unused]] auto each : state) {
        state.PauseTiming();
        ShowForm("frmTRProg");
        ShowForm("frmPrintControl");
        auto& control = dynamic_cast<frmPrintControl&>(LoadForm("frmPrintControl"));
        ClickControl(control.cmdAll);
        office.Host.Dialogs.emplace_back(ScriptHost::FileAnswer{.Path = office.PdfFile(), .ForSaving = true});
        state.ResumeTiming();
        ClickControl(control.cmdPdf);
    }
    if (ReadBytes(office.PdfFile()).find("/Count 1000") == std::string::npos) {
        state.SkipWithError("not 1,000 pages");
    }
}

// Each record loaded and its page put on the same paper, without the run around it.
void PlainRun(benchmark::State& state) {
    Office office;
    for ([[maybe_unused]] auto each : state) {
        RecordView view(Suite.DatabaseFile);
        Printer.Open({.To = PrintJob::Target::Pdf, .Path = office.PdfFile()});
        for (int i = 0; i < Records; ++i) {
            view.Find("T-" + std::to_string(i));
            TakeRecord(view.Head());
            FillCalculationForm();
            PrintReportPage({.Title = "Title"}, Printer.Font.Size);
            Printer.NewPage();
        }
        Printer.EndDoc();
        Printer.Close();
    }
}

BENCHMARK(Run)->Name("batch/1,000 records to one PDF")->UseRealTime()->Iterations(1)->Repetitions(3);
BENCHMARK(PlainRun)
    ->Name("batch/1,000 records to one PDF/plain")
    ->UseRealTime()
    ->Iterations(1)
    ->Repetitions(3);

}  // namespace
