// See UnitsInPlace.h, and CalculationForm.h for the buttons.
#include "forms/UnitsInPlace.h"

#include <utility>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "forms/CalculationForm.h"
#include "forms/PanelReturn.h"
#include "platform/Forms.h"
#include "platform/Utf8.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"
#include "units/UnitChange.h"
#include "units/UnitLibraryFile.h"
#include "units/UnitPicks.h"
#include "units/UnitSelection.h"

namespace quillmetra {

namespace {

constexpr const char* OtherFlowUnits = "Mass/volume, time...";

bool IsFlow(int row) { return row <= unit::LiquidFlow; }

// What stands behind each quantity of a flow.
std::string TimeBaseOf(int row) {
    return IsFlow(row) ? SplitFlowUnit(Calc.UnitName[At(row)]).second : std::string();
}

// What the unit window would refuse is not offered.
bool IsOffered(int row, const UnitLine& line, const std::string& time) {
    if (line.Name.empty() || CharacterCount(line.Name + time) > LongestUnitName) return false;
    const double timeFactor = IsFlow(row) ? FindUnitFactor(UnitListOf(OtherFlowPart(row)), time) : 1;
    return IsUsableFactor(line.Factor) && IsUsableFactor(line.Factor * timeFactor);
}

std::vector<UnitLine> LinesOffered(int row, const std::string& time) {
    PrepareUnitLibrary();
    const UnitList& all = Suite.UnitLibrary.at(At(UnitListOf(UnitWindowRow(row))));
    std::vector<UnitLine> lines;
    for (std::size_t line = 1; line < all.size(); ++line) {
        if (IsOffered(row, all[line], time)) lines.push_back(all[line]);
    }
    return lines;
}

}  // namespace

int UnitWindowRow(int row) { return row == unit::LiquidDensity ? unit::Density : row; }

DropLines UnitsOffered(int row) {
    const std::string time = TimeBaseOf(row);
    DropLines lines;
    for (const UnitLine& each : LinesOffered(row, time)) {
        const std::string name = each.Name + time;
        lines.push_back({.Text = name, .InForce = name == Calc.UnitName[At(row)]});
    }
    if (IsFlow(row)) lines.push_back({.Text = OtherFlowUnits, .StandsApart = true});
    return lines;
}

bool TakeOfferedUnit(int row, int line) {
    const std::vector<UnitLine> lines = LinesOffered(row, TimeBaseOf(row));
    if (At(line) >= lines.size()) return false;
    if (row == unit::Temperature)
        Calc.ChosenUnitRowNames[chosen::Temperature] = Calc.UnitName[unit::Temperature];
    UnitChange change;
    UnitPicks picks;
    picks.Begin();
    picks.Set(UnitWindowRow(row), lines[At(line)].Name, lines[At(line)].Factor);
    ConvertToPicks(picks, change);
    return true;
}

// --- The buttons of a form -------------------------------------------------------------------------------

void CalculationForm::HookUnits(const ControlArray<DropButton>& buttons) {
    buttons.Each([this](DropButton& button, int row) {
        button.Click = [this, row] { OpenUnits(row); };
        button.SetToolTip("The unit of this row; click to change units");
        if (!IsUnitTaken(program::IsOfGas(program_), UnitWindowRow(row))) return;
        button.SetToolTip("The unit of this row; click to change units, right click or Alt+Down for a list");
        button.Lines = [row] { return UnitsOffered(row); };
        button.Take = [this, row](int line) { TakeUnit(row, line); };
    });
}

// The unit window, with the family of the row in focus.
void CalculationForm::OpenUnits(int row) {
    OpenPanel("frmUnits");
    const Form* const window = LoadedForm("frmUnits");
    Control* const family = window == nullptr ? nullptr : window->Find("cmdUnit", UnitWindowRow(row));
    if (family != nullptr) family->SetFocus();
}

void CalculationForm::TakeUnit(int row, int line) {
    StoreForPanel();
    TakeOfferedUnit(row, line) ? ReturnToCalculation() : OpenUnits(row);
}

}  // namespace quillmetra
