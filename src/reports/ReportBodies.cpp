// The bodies of the five reports. Each is a table of lines that one routine prints; what a line says is the
// text of controls of the calculation form, between words of the report's own.
#include <span>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "reports/ReportPage.h"

namespace quillmetra {

namespace {

constexpr int Single = Control::NoIndex;

// A control by its name, on the form of the program unless another is told.
struct Shown {
    const char* Control = nullptr;
    int Index = Single;
    const char* Form = nullptr;
};

// Words, the text of a control, its unit after two blanks, words that end it.
struct Cell {
    int Column = 0;
    const char* Words = "";
    Shown Value{};
    Shown Unit{};
    const char* After = "";
    std::string (*Say)() = nullptr;  // for what no control shows
};

enum class Look {
    Plain,
    Bold,        // as plain, in bold letters
    Heading,     // larger and bold, raised by 150 twips
    SubHeading,  // larger and bold, raised by 50 twips, at X instead of a column
};

enum class When { Always, PureFluid, Mixture };

struct Line {
    Look As = Look::Plain;
    std::array<Cell, 5> Cells{};
    int Advance = 1;  // rows
    When If = When::Always;
    int X = 0;  // twips, of a sub-heading
};

constexpr Shown Units(int row) { return {"cmdUnits", row}; }

constexpr Line Head(int column, const char* text) { return {Look::Heading, {{{column, text}}}}; }

constexpr Line SubHead(int x, const char* text, int advance) {
    return {Look::SubHeading, {{{0, text}}}, advance, When::Always, x};
}

// The columns of the tables of three cases: case by case, then the unit.
constexpr std::array<int, 4> Narrow = {35, 50, 65, 80};
constexpr std::array<int, 4> Wide = {40, 55, 70, 85};

constexpr Line ColumnHeads(const std::array<int, 4>& columns, const char* one, const char* two,
                           const char* three) {
    return {Look::Bold, {{{columns[0], one}, {columns[1], two}, {columns[2], three}, {columns[3], "Units"}}}};
}

constexpr Line Cases(const std::array<int, 4>& columns, const char* label, const char* values,
                     Shown unit = {}, int advance = 1) {
    return {Look::Plain,
            {{{6, "", {label}},
              {columns[0], "", {values, 0}},
              {columns[1], "", {values, 1}},
              {columns[2], "", {values, 2}},
              {columns[3], "", unit}}},
            advance};
}

// A row of one value with its unit behind it.
constexpr Line Value(Cell label, Shown value, Shown unit = {}, const char* after = "", int advance = 1) {
    label.Column = 10;
    return {Look::Plain, {{label, {40, "", value, unit, after}}}, advance};
}
constexpr Cell Labelled(const char* control) { return {0, "", {control}}; }
constexpr Cell Worded(const char* text) { return {0, text}; }

constexpr Line MixtureLine(const char* text) { return {Look::Plain, {{{10, text}}}, 1, When::Mixture}; }
constexpr Line NameLine(const char* text) {
    return {Look::Plain, {{{6, text, {"txtFluid"}}}}, 2, When::PureFluid};
}

// Tables that follow one another in a body.
template <std::size_t... Sizes>
constexpr auto Join(const std::array<Line, Sizes>&... tables) {
    std::array<Line, (Sizes + ...)> all{};
    std::size_t next = 0;
    const auto append = [&](const auto& table) {
        for (const Line& line : table) all[next++] = line;
    };
    (append(tables), ...);
    return all;
}

// --- What no control shows --------------------------------------------------------------------------------

// A number that is no material leaves the words of the last message in their place, as it always has.
std::string MaterialWord() {
    static constexpr const char* names[] = {"Steel",          "Tubing",   "Cast iron", "Galvanized iron",
                                            "Asphalted iron", "Concrete", "Wood"};
    const int number = Calc.PipeMaterialNumber;
    if (number >= 1 && number <= static_cast<int>(std::size(names))) Calc.MessageText = names[number - 1];
    return Calc.MessageText;
}

std::string Fouling() { return Str(Calc.PipeFouling); }

bool IsTicked(const char* box) {
    const Control& control = ControlOf(FindProgram(Calc.CurrentProgram)->Form, box);
    return static_cast<const Tickable&>(control).Checked();
}

std::string PipeEnds() {
    return std::string(IsTicked("chkEntrance") ? "Sudden large inlet contraction" : "Uniform inlet") +
           (IsTicked("chkExit") ? ".  Sudden large outlet expansion" : ".  Uniform outlet");
}

std::string Version() { return Suite.VersionText; }

// --- The tables -------------------------------------------------------------------------------------------

constexpr auto PipeLines(const char* conditionWords) {
    return std::array{
        Head(25, "Common Input Data"),
        Head(6, "Piping"),
        Line{Look::Plain,
             {{{6, "Pipe  sizes :"},
               {32, "Length : ", {"txtInletPipeLen"}, Units(25)},
               {60, "I.D. : ", {"txtInletPipeID"}, Units(18)}}}},
        Line{Look::Plain,
             {{{6, "Pipe  elevations :"},
               {32, "Start : ", {"txtInletPipeElev"}, Units(25)},
               {60, "End : ", {"txtOutletPipeElev"}, Units(25)}}}},
        Line{Look::Plain,
             {{{6, "Pipe material  : ", {}, {}, "", MaterialWord},
               {50, conditionWords, {}, {}, "%", Fouling}}}},
        Line{Look::Bold, {{{6, "Number of Valves"}, {30, "Gate"}, {42, "Globe"}, {54, "Check"}}}},
        Line{Look::Plain,
             {{{30, "", {"txtInletGate"}}, {42, "", {"txtInletGlobe"}}, {54, "", {"txtInletCheck"}}}}},
        Line{Look::Bold,
             {{{6, "Number of fittings"},
               {30, "90 deg ell"},
               {42, "45 deg ell"},
               {54, "Thru tee"},
               {66, "Branch tee"}}}},
        Line{Look::Plain,
             {{{30, "", {"txtInlet90Deg"}},
               {42, "", {"txtInlet45Deg"}},
               {54, "", {"txtInletThru"}},
               {66, "", {"txtInletBranch"}}}}},
        Line{Look::Plain, {{{6, "Pipe ends"}, {30, "", {}, {}, "", PipeEnds}}}, 2},
    };
}

// The last lines: units and options, source of the method, program. The liquid data form has no labels for
// the first two; its report has always read those of the gas line, and the refresh writes them there.
constexpr auto ClosingLines(const char* form = nullptr) {
    return std::array{Line{Look::Plain, {{{6, "", {"lblSetupSelections", Single, form}}}}},
                      Line{Look::Plain, {{{6, "Source - ", {"lblCalcSource", Single, form}}}}},
                      Line{Look::Plain, {{{6, "Quillmetra ", {}, {}, "", Version}}}}};
}

// The heads stand one column right of the values, whose leading blank lines the digits up with them.
constexpr std::array HeadColumns = {36, 51, 66, 80};
constexpr Line LossColumns = ColumnHeads(HeadColumns, words::Cases[0], words::Cases[1], words::Cases[2]);

constexpr std::array LossOutput = {Line{Look::Plain, {{{6, ""}}}, 2}, Head(25, "Output Data"),
                                   Cases(Narrow, "lblDropP100", "txtDropP100", {"unDropP100"}),
                                   Cases(Narrow, "lblDestPress", "txtDestPress", {"unDestPress"}),
                                   Cases(Narrow, "lblVelocity", "txtVelocity", {"unVelocity"})};

constexpr auto LiquidLossLines =
    Join(PipeLines("Pipe fouling  : "),
         std::array{
             Head(6, "Fluid Data"),
             MixtureLine("Liquid mixture components"),
             NameLine("Name   : "),
             Head(25, "Variable Input Data"),
             LossColumns,
             Cases(Narrow, "lblFlow", "txtFlow", Units(1)),
             Cases(Narrow, "lblTemp", "txtTemp", Units(2)),
             Cases(Narrow, "lblPressure", "txtPressure", Units(3)),
             Cases(Narrow, "lblSGFlow", "txtSGFlow"),
             Cases(Narrow, "lblViscosity", "txtViscosity", Units(7)),
             Cases(Narrow, "lblEquip", "txtEquip", Units(4)),
         },
         LossOutput, std::array{Cases(Narrow, "lblReynoldsNum", "txtReynoldsNum", {}, 2)}, ClosingLines());

constexpr auto GasLossLines = Join(
    PipeLines("Pipe condition  : "),
    std::array{
        Head(6, "Fluid Data"),
        MixtureLine("Gas mixture components"),
        NameLine("Name   : "),
        Head(25, "Variable Input Data"),
        LossColumns,
        Cases(Narrow, "lblFlow", "txtFlow", Units(0)),
        Cases(Narrow, "lblTemp", "txtTemp", Units(2)),
        Cases(Narrow, "lblPressure", "txtPressure", Units(3)),
        Cases(Narrow, "lblMW", "txtMW"),
        Cases(Narrow, "lblRatioSH", "txtRatioSH"),
        Cases(Narrow, "lblViscosity", "txtViscosity", Units(13)),
        Cases(Narrow, "lblCritTemp", "txtCritTemp", Units(12)),
        Cases(Narrow, "lblCritPressure", "txtCritPressure", Units(11)),
        Cases(Narrow, "lblEquip", "txtEquip", Units(4)),
    },
    LossOutput, std::array{Cases(Narrow, "lblSonicVelocity", "txtSonicVelocity", {"unSonicVelocity"}, 2)},
    ClosingLines());

constexpr auto WaterHammerLines = Join(
    std::array{
        Head(25, "Input Data"),
        MixtureLine("Liquid mixture components"),
        Line{Look::Plain, {{{10, "", {"lblFluid"}}, {40, "", {"txtFluid"}}}}, 1, When::PureFluid},
        Value(Labelled("lblMaxLiqFlow"), {"txtMaxLiqFlow"}, Units(1)),
        Value(Labelled("lblFlowTemp"), {"txtFlowTemp"}, Units(2)),
        Value(Labelled("lblOperPressure"), {"txtOperPressure"}, Units(3)),
        Value(Labelled("lblSGFlow"), {"txtSGFlow"}),
        Value(Labelled("lblBulkModulus"), {"txtBulkModulus"}, Units(27)),
        Value(Labelled("lblLineLength"), {"txtLineLength"}, Units(25)),
        Value(Worded("Pipe inside diameter"), {"txtPipeID"}, Units(18)),
        Value(Labelled("lblPipeWall"), {"txtPipeWall"}, {"UnpipeWall"}),
        Value(Labelled("lblPipeMatl"), {"txtPipeMatl"}),
        Value(Labelled("lblLineModulus"), {"txtLineModulus"}, {"unLineModulus"}),
        Value(Labelled("lblMaxAllowPressure"), {"txtMaxAllowPressure"}, {"unMaxAllowPressure"}),
        Value(Worded("Selected closing time"), {"txtSelectedTime"}, {}, "  secs", 2),
        SubHead(3000, "Output data", 2),
        SubHead(1200, "Critical closing time conditons", 1),  // the word as it has always been printed
        Value(Worded("Critical closing time"), {"txtCriticalTime"}, {}, "  secs"),
        Value(Labelled("lblWaveVelocity"), {"txtWaveVelocity"}, {"unWaveVelocity"}),
        Value(Labelled("lblPressureWave"), {"txtPressureWave"}, {"unPressureWave"}),
        Value(Labelled("lblSupportForce"), {"txtSupportForce"}, {"unSupportForce"}, "", 2),
        SubHead(1200, "Closing time for allowable pressure", 1),
        Value(Worded("Minimum closing time"), {"txtCloseTime"}, {}, "  secs", 2),
        SubHead(1200, "Selected closing time conditions", 1),
        Value(Labelled("lblSelectedWave"), {"txtSelectedWave"}, {"unSelectedWave"}),
        Value(Labelled("lblSelectedForce"), {"txtSelectedForce"}, {"unSelectedForce"}, "", 2),
    },
    ClosingLines());

constexpr auto LiquidDataLines = Join(
    std::array{
        Head(6, "Fluid data"),
        MixtureLine("Liquid mixture components"),
        NameLine("Name  : "),
        Head(25, "Process data"),
        ColumnHeads(Wide, "Case 1", "Case 2", "Case 3"),
        Cases(Wide, "lblTemp", "txtTemp", Units(2)),
        Cases(Wide, "lblPressure", "txtPressure", Units(3)),
        Cases(Wide, "lblMW", "txtMW"),
        Cases(Wide, "lblSGFTP", "txtSGFTP"),
        Cases(Wide, "lblSGBase", "txtSGBase"),
        Cases(Wide, "lblCritPressure", "txtCritPressure", {"unCritPressure"}),
        Cases(Wide, "lblCritTemp", "txtCritTemp", {"unCritTemp"}),
        Cases(Wide, "lblDensity", "txtDensity", {"unDensity"}),
        Cases(Wide, "lblNormalBP", "txtNormalBP", {"unNormalBP"}),
        Cases(Wide, "lblViscosity", "txtViscosity", {"unViscosity"}),
        Cases(Wide, "lblVapPressure", "txtVapPressure", {"unVapPressure"}),
        Cases(Wide, "lblFlashpoint", "txtFlashpoint", {"unFlashPoint"}),
        Cases(Wide, "lblBulkMod", "txtBulkModulus", {"unBulkMod"}),
    },
    ClosingLines("frmGasLineLoss"));

constexpr auto GasDataLines = Join(
    std::array{
        Head(6, "Fluid Data"),
        MixtureLine("Gas mixture components"),
        NameLine("Name   : "),
        Head(25, "Process data"),
        ColumnHeads(HeadColumns, "Case 1", "Case 2", "Case 3"),
        Cases(Narrow, "lblTemp", "txtTemp", Units(2)),
        Cases(Narrow, "lblPressure", "txtPressure", Units(3)),
        Cases(Narrow, "lblMW", "txtMW"),
        Cases(Narrow, "lblRatioSH", "txtRatioSH"),
        Cases(Narrow, "lblNormalBP", "txtNormalBP", {"unNormalBP"}),
        Cases(Narrow, "lblCritPressure", "txtCritPressure", {"unCritPressure"}),
        Cases(Narrow, "lblCritTemp", "txtCritTemp", {"unCritTemp"}),
        Cases(Narrow, "lblDensity", "txtDensity", {"unDensity"}),
        Cases(Narrow, "lblCompFactor", "txtCompFactor"),
        Cases(Narrow, "lblViscosity", "txtViscosity", {"unViscosity"}),
        Cases(Narrow, "lblVapPressure", "txtVapPressure", {"unVapPressure"}),
        Cases(Narrow, "lblReqdLatentHeat", "txtReqdLatentHeat", {"unReqdLatentHeat"}),
    },
    ClosingLines());

struct Body {
    std::span<const Line> Lines;
    const char* ProblemTitle;
};

// By program number, from 1.
constexpr std::array Bodies = {
    Body{LiquidLossLines, "Print Liquid Problem"},  Body{GasLossLines, "Print Gas Loss Problem"},
    Body{WaterHammerLines, "Print WatHam Problem"}, Body{LiquidDataLines, "Print Liquid Problem"},
    Body{GasDataLines, "Print Gas Problem"},
};

// --- The engine -------------------------------------------------------------------------------------------

std::string TextOf(const Shown& shown) {
    if (shown.Control == nullptr) return {};
    const char* const form = shown.Form != nullptr ? shown.Form : FindProgram(Calc.CurrentProgram)->Form;
    return ControlOf(form, shown.Control, shown.Index).Text();
}

std::string TextOf(const Cell& cell) {
    std::string text = cell.Words + (cell.Say != nullptr ? cell.Say() : TextOf(cell.Value));
    if (cell.Unit.Control != nullptr) text += "  " + std::string(Trim(TextOf(cell.Unit)));
    return text + cell.After;
}

void PrintLine(ReportPage& page, const Line& line) {
    std::vector<PrintCell> cells;
    for (const Cell& cell : line.Cells) {
        if (cell.Column > 0 || cells.empty()) cells.push_back({cell.Column, TextOf(cell)});
    }
    const bool large = line.As == Look::Heading || line.As == Look::SubHeading;
    const int raise = line.As == Look::Heading ? 150 : line.As == Look::SubHeading ? 50 : 0;
    page.Letters(large ? 1.2 : 1, line.As != Look::Plain);
    if (line.As == Look::SubHeading) Printer.CurrentX = line.X;
    Printer.CurrentY = page.RowTop(raise);
    Printer.Print(std::move(cells));
    page.ReportRow += line.Advance;
}

void PrintLines(ReportPage& page, std::span<const Line> lines) {
    const bool mixture = IsYes(Calc.MixtureFlag);
    for (const Line& line : lines) {
        if (line.If != When::Always && (line.If == When::Mixture) != mixture) continue;
        PrintLine(page, line);
        if (line.If == When::Mixture) MixturePrint(page);
        if (page.DocumentEnded) return;
    }
}

}  // namespace

void PrintReportBody(ReportPage& page) {
    const int program = Calc.CurrentProgram;
    if (FindProgram(program) == nullptr) return;
    const Body& body = Bodies.at(static_cast<std::size_t>(program - 1));
    try {
        PrintLines(page, body.Lines);
    } catch (const RuntimeError& error) {
        Tell(error.Description + " (Error " + std::to_string(error.Number) + ")", body.ProblemTitle,
             Icon::Stop);
    }
}

}  // namespace quillmetra
