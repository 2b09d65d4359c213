// See UnitChange.h.
#include "forms/UnitChange.h"

#include <string>

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "reports/FormRefresh.h"
#include "units/RecordUnits.h"
#include "units/UserUnits.h"

namespace quillmetra {

CalculationForm* OpenCalculation() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    return program == nullptr ? nullptr : dynamic_cast<CalculationForm*>(LoadedForm(program->Form));
}

bool UnitsHaveChanged() {
    return Calc.UnitName != Calc.UnitNamePrevious || Calc.UnitFactor != Calc.UnitFactorPrevious ||
           Calc.Basis != Calc.BasisPrevious || Calc.LiquidBasis != Calc.LiquidBasisPrevious;
}

namespace {

// A factor that went through a database has seven digits: with all of its digits it is the same unit.
void TakeAllDigits() {
    for (std::size_t row = 0; row < Calc.UnitFactor.size(); ++row) {
        double& former = Calc.UnitFactorPrevious[row];
        const double now = Calc.UnitFactor[row];
        if (static_cast<float>(former) == static_cast<float>(now)) former = now;
    }
}

}  // namespace

void ConvertToNewUnits(ZeroTemperature zero) {
    TakeAllDigits();
    if (Calc.NoConversion == words::Yes) {
        BlankAllResults();
        RenewChosenUnitNames();
    } else if (UnitsHaveChanged()) {
        ConvertProgramData(zero);
        Calc.ChangedFlag = words::No;
    } else if (Calc.RoundedFlag == words::No) {
        RoundRecord();
        Calc.ChangedFlag = words::No;
    }
    MendUnitFactors();
    RememberUnits();
    Calc.UnitsConverted = words::Yes;  // the refresh shows all cases
    ComposeHeading();
}

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
