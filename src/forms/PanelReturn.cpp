// See PanelReturn.h.
#include "forms/PanelReturn.h"

#include <string>
#include <utility>

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "reports/FormRefresh.h"
#include "units/UnitChange.h"
#include "units/UnitPicks.h"
#include "units/UserUnits.h"

namespace quillmetra {

namespace {
std::function<void(Figures)> KeepFigures;
}  // namespace

CalculationForm* OpenCalculation() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    return program == nullptr ? nullptr : dynamic_cast<CalculationForm*>(LoadedForm(program->Form));
}

void ConvertToNewUnits(UnitChange& change) {
    const bool gravityMisleads = change.GravityMisleads();
    if (IsYes(Calc.NoConversion)) BlankAllResults();
    change.Commit(ZeroTemperature::IsConverted, [] {
        Calc.UnitsConverted = words::Yes;
        ComposeHeading();
    });
    ComposeHeading();
    CalculationForm* const form = OpenCalculation();
    if (gravityMisleads && form != nullptr)
        form->SetStatus(
            "All cases were converted by the gravity of Maximum; those of Normal and Minimum differ: check "
            "flow and viscosity.");
}

bool PutPicks(const UnitPicks& picks) {
    const int missing = picks.PutIntoRecord();
    if (missing == UnitPicks::NoRow) return true;
    Tell("Multiplier must be greater than zero", "Unit " + picks.Of(missing).Name);
    return false;
}

bool ConvertToPicks(const UnitPicks& picks, UnitChange& change) {
    if (!PutPicks(picks)) return false;
    const Filling filling;
    if (change.HasNewUnits()) {
        // Units picked one by one belong to no named set.
        (program::IsOfGas(Calc.CurrentProgram) ? Calc.GasUnitSet : Calc.LiquidUnitSet) = 0;
        Calc.UnitSetName = SelectedUnitsName;
    }
    ConvertToNewUnits(change);
    return true;
}

void ChooseFigures(Figures choice) {
    if (choice == Suite.ConvertedFigures) return;
    Suite.ConvertedFigures = choice;
    if (KeepFigures) KeepFigures(choice);
}

void SetFiguresKeeper(std::function<void(Figures)> keep) { KeepFigures = std::move(keep); }

void BlankAllResults() {
    const Setting asByTheUser(Calc.FormLoading, words::No);
    if (CalculationForm* form = OpenCalculation()) form->ClearAllCases();
}

void ReturnToCalculation() {
    Calc.FormLoading = words::No;
    Calc.OptionsLoaded.clear();
    Calc.NoConversion.clear();  // it holds for one selection
    if (CalculationForm* form = OpenCalculation()) form->ReturnFromPanel();
}

void SaveUserUnits(SuiteForm& form) {
    if (WriteUserUnits()) {
        form.SetStatus("The user units are saved");
    } else {
        Tell("Path for units not found", "Units default path");
    }
}

}  // namespace quillmetra
