// See PanelReturn.h.
#include "forms/PanelReturn.h"

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
#include "units/UnitChange.h"
#include "units/UserUnits.h"

namespace quillmetra {

CalculationForm* OpenCalculation() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    return program == nullptr ? nullptr : dynamic_cast<CalculationForm*>(LoadedForm(program->Form));
}

void ConvertToNewUnits(UnitChange& change) {
    if (IsYes(Calc.NoConversion)) BlankAllResults();
    change.Commit(ZeroTemperature::IsConverted, [] {
        Calc.UnitsConverted = words::Yes;
        ComposeHeading();
    });
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
