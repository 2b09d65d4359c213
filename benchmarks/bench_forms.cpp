// What a user waits for on a form, on the host without a display: the refresh of a calculation, a case typed
// and calculated, all cases of a gas line at once, a line in every pipe of the table, the list of a large
// fluid table, the unit window, a row into a large table, and a script that calculates.
#include <fstream>

#include "benchmarks/FilledForm.h"
#include "benchmarks/Measure.h"
#include "benchmarks/PlainGasLine.h"
#include "benchmarks/PlainLiquidLine.h"
#include "benchmarks/TableScene.h"
#include "core/Programs.h"
#include "forms/frmTables.h"
#include "lineloss/LineTrial.h"
#include "platform/NumberText.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"
#include "script/ScriptPlayer.h"
#include "tables/PipeSizes.h"

namespace {

using namespace quillmetra;

// Numbers of the results change from round to round, as after a calculation.
void Change(double factor) {
    for (auto& row : Calc.CaseResult)
        for (double& value : row) value *= factor;
}

void Refresh(benchmark::State& state) {
    const FilledForm filled;
    double factor = 1.25;
    Measure(state, [&factor] {
        Change(factor = 1 / factor);
        Calc.UnitsConverted = words::Yes;
        ShowCalculation();
    });
}

// The texts of the same numbers, units and names in an array of strings, written where they differ.
void PlainTexts(benchmark::State& state) {
    const FilledForm filled;
    const auto rows = FormRows(1);
    std::vector<std::string> texts(rows.size() * CaseCount + Calc.UnitName.size() + Calc.HeadingText.size());
    double factor = 1.25;
    Measure(state, [&] {
        Change(factor = 1 / factor);
        auto text = texts.begin();
        const auto show = [&text](const std::string& shown) {
            if (*text != shown) *text = shown;
            ++text;
        };
        for (const FormRow& row : rows) {
            for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i) show(Str(LiveValue(row, i)));
        }
        for (const std::string& unit : Calc.UnitName) show(unit);
        for (const std::string& heading : Calc.HeadingText) show(heading);
    });
}

BENCHMARK(Refresh)->Name("form/refresh");
BENCHMARK(PlainTexts)->Name("form/refresh/plain");

// Methane in 10 in pipe.
void TypeGasCases(const char* length) {
    const auto type = [](const char* box, int i, const char* text) {
        TypeText(ControlOf("frmGasLineLoss", box, i), text);
    };
    type("txtInletPipeLen", Control::NoIndex, length);
    type("txtInletPipeID", Control::NoIndex, "10.02");
    for (int i = 0; i < CaseCount; ++i) {
        for (const auto& [box, text] : {std::pair{"txtFlow", "50000"},
                                        {"txtTemp", "60"},
                                        {"txtPressure", "100"},
                                        {"txtMW", "16.04"},
                                        {"txtRatioSH", "1.3"},
                                        {"txtCritTemp", "343"},
                                        {"txtCritPressure", "667"},
                                        {"txtViscosity", "0.011"}}) {
            type(box, i, text);
        }
    }
}

void AllGasCases(benchmark::State& state) {
    FilledForm filled(2);
    TypeGasCases("10000");
    Measure(state, [&filled] {
        filled.NextCommand();
        ClickControl(ControlOf("frmGasLineLoss", "cmdCalculateAll"));
    });
    if (StandingResult(result::Velocity, 2) == 0) state.SkipWithError("the last case has no results");
}

BENCHMARK(AllGasCases)->Name("form/three gas cases of 10,000 ft at once");

// --- A line in every pipe of the table ---------------------------------------------------------------------

std::vector<double> PipeDiameters() {
    SeedShippedData(Suite.DefaultPaths[path::Program]);
    SetPipeUnits();
    std::vector<double> diameters;
    for (const std::string& line : AllPipeSizes()) diameters.push_back(PipeDiameterOf(line));
    return diameters;
}

void AllSizes(benchmark::State& state, int program) {
    const FilledForm filled(program);
    if (program == program::GasLine) TypeGasCases("1000");
    auto& line = dynamic_cast<LineLossForm&>(*LoadedForm(FindProgram(program)->Form));
    const std::vector<double> diameters = PipeDiameters();
    if (!line.TakeCase(0)) return state.SkipWithError("the case is refused");
    Measure(state, [&] {
        LineTrials trials;
        double sum = 0;
        for (const double diameter : diameters) sum += trials.WithDiameter(diameter).Results.Velocity;
        return sum;
    });
}

// endOf: what a plain line of a diameter ends at.
template <typename EndOf>
void PlainSizes(benchmark::State& state, EndOf endOf) {
    const FilledForm filled;
    const std::vector<double> diameters = PipeDiameters();
    Measure(state, [&] {
        double sum = 0;
        for (const double diameter : diameters) sum += endOf(diameter);
        return sum;
    });
}

void PlainLiquidSizes(benchmark::State& state) {
    PlainSizes(state,
               [](double diameter) { return PlainFinalPressure({.Flow = 100000, .PipeId = diameter}); });
}

// The line of TypeGasCases.
void PlainGasSizes(benchmark::State& state) {
    const PlainGas line{.Flow = 50000,
                        .Length = 1000,
                        .Viscosity = 0.011,
                        .Source = 114.7,
                        .End = 0,
                        .EquipLoss = 0,
                        .EntranceK = 0,
                        .ExitK = 0,
                        .CritPressure = 667,
                        .CritTemperature = 343,
                        .Temperature = 60};
    PlainSizes(state, [gas = line](double diameter) mutable {
        gas.PipeId = diameter;
        const double reynolds = 6.31533 * gas.Flow / diameter / gas.Viscosity;
        return PlainGasFinalPressure(gas, PlainFrictionFactor(reynolds, diameter, PipeMaterials[0]));
    });
}

BENCHMARK_CAPTURE(AllSizes, liquid, program::LiquidLine)->Name("sizes/422 pipes of a liquid");
BENCHMARK(PlainLiquidSizes)->Name("sizes/422 pipes of a liquid/plain");
BENCHMARK_CAPTURE(AllSizes, gas, program::GasLine)->Name("sizes/422 pipes of a gas line of 1,000 ft");
BENCHMARK(PlainGasSizes)->Name("sizes/422 pipes of a gas line of 1,000 ft/plain");

// A flow that differs from round to round.
std::string NextFlow() {
    static int flow = 90000;
    return std::to_string(flow = 90000 + (flow + 1) % 9000);
}

void TypeAndCalculate() {
    TypeText(FilledForm::Form().txtFlow(0), NextFlow());
    ClickControl(FilledForm::Form().cmdCalculate(0));
}

void OneCase(benchmark::State& state) {
    const FilledForm filled;
    Measure(state, TypeAndCalculate);
}

BENCHMARK(OneCase)->Name("form/case typed and calculated");

// --- The list of a large table -----------------------------------------------------------------------------

void OpenList(benchmark::State& state) {
    const FilledForm filled;
    SaveTable(table::Liquid, ManyLiquids(10000));
    Calc.FluidName = "Liquid 9000";
    Measure(state, [] {
        FilledForm::Form().Fluids.Open(words::Liquid);
        FilledForm::Form().Fluids.Close();
    });
}

void PlainLines(benchmark::State& state) {
    const FilledForm filled;
    SaveTable(table::Liquid, ManyLiquids(10000));
    const std::filesystem::path path = MachinePath(TablePath(table::Liquid));
    Measure(state, [&path] {
        std::ifstream file(path, std::ios::binary);
        std::vector<std::string> lines;
        for (std::string line; std::getline(file, line);) lines.push_back(line);
        return lines;
    });
}

BENCHMARK(OpenList)->Name("form/list of 10,000 fluids");
BENCHMARK(PlainLines)->Name("form/list of 10,000 fluids/plain");

// --- The unit window and the table editor ------------------------------------------------------------------

void OpenUnits(benchmark::State& state) {
    const FilledForm filled;
    Measure(state, [&state] {
        ClickControl(FilledForm::Form().cmdUnits(2));
        if (!IsFormLoaded("frmUnits")) state.SkipWithError("the window is not open");
        ClickControl(ControlOf("frmUnits", "cmdCancelUn"));
    });
}

// Near the beginning, and out again.
void InsertRow(benchmark::State& state) {
    FilledForm filled;
    SaveTable(table::Liquid, ManyLiquids(10000));
    EditTable("Liquid");
    auto& grid = static_cast<Grid&>(ControlOf("frmTables", "grdTable"));
    const int rows = grid.RowCount();
    TypeText(ControlOf("frmTables", "txtRecall"), "10");
    Measure(state, [&] {
        filled.NextCommand();
        ClickControl(ControlOf("frmTables", "cmdInsertRow"));
        if (grid.RowCount() != rows + 1) state.SkipWithError("no row was inserted");
        ClickControl(ControlOf("frmTables", "cmdDeleteRow"));
    });
}

BENCHMARK(OpenUnits)->Name("form/unit window opened");
BENCHMARK(InsertRow)->Name("form/row into a table of 10,000");

// --- Scripts -----------------------------------------------------------------------------------------------

constexpr int Calculations = 1000;

std::string Script() {
    std::string script = "start\nnew 1\n";
    for (const auto& [box, text] : FilledBoxes) script.append("type " + box + " " + text + "\n");
    script += "click cmdCalculate(0)\n";
    for (int i = 0; i < Calculations; ++i) {
        script += "type txtFlow(0) " + NextFlow() + "\nclick cmdCalculate(0)\n";
    }
    return script;
}

void PlayScript(benchmark::State& state) {
    RegisterForms();
    const std::string script = Script();
    Measure(state, [&] {
        std::istringstream lines(script);
        std::ostringstream out;
        if (ScriptPlayer(out, out).Play("bench", lines) != 0) state.SkipWithError("the script fails");
    });
}

// The same acts, called one after the other.
void PlainActs(benchmark::State& state) {
    Measure(state, [] {
        const FilledForm filled;
        for (int i = 0; i < Calculations; ++i) TypeAndCalculate();
    });
}

BENCHMARK(PlayScript)->Name("script/1,000 cases");
BENCHMARK(PlainActs)->Name("script/1,000 cases/plain");

}  // namespace
