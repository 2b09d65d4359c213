// See RegisterForms.h.
#include "forms/RegisterForms.h"

#include "core/CalcRecord.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "forms/FindDialog.h"
#include "forms/frmBackups.h"
#include "forms/frmCalcOptions.h"
#include "forms/frmCompare.h"
#include "forms/frmCopyAll.h"
#include "forms/frmFluid.h"
#include "forms/frmGasData.h"
#include "forms/frmGasLineLoss.h"
#include "forms/frmImport.h"
#include "forms/frmLineFlow.h"
#include "forms/frmLiqData.h"
#include "forms/frmLiqLineLoss.h"
#include "forms/frmObxPrintCalc.h"
#include "forms/frmObxProg.h"
#include "forms/frmPipeSize.h"
#include "forms/frmPrintControl.h"
#include "forms/frmRecalculate.h"
#include "forms/frmServer.h"
#include "forms/frmShippedRows.h"
#include "forms/frmSizes.h"
#include "forms/frmTables.h"
#include "forms/frmTRProg.h"
#include "forms/frmUnits.h"
#include "forms/frmWaterHammer.h"
#include "forms/PanelReturn.h"
#include "forms/WinSeek.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/TextCase.h"
#include "platform/UserActs.h"

namespace quillmetra {

namespace {

template <typename T>
std::unique_ptr<Form> MakeForm() {
    return std::make_unique<T>();
}

struct FormEntry {
    const char* Name;
    FormFactory Make;
    int HelpTopic;
};

constexpr FormEntry FormTable[] = {
    {"frmTRProg", MakeForm<frmTRProg>, 400},
    {"frmObxProg", MakeForm<frmObxProg>, 410},
    {"frmLiqLineLoss", MakeForm<frmLiqLineLoss>, 401},
    {"frmGasLineLoss", MakeForm<frmGasLineLoss>, 402},
    {"frmFluid", MakeForm<frmFluid>, 408},
    {"frmLiqData", MakeForm<frmLiqData>, 404},
    {"frmGasData", MakeForm<frmGasData>, 405},
    {"frmObxPrintCalc", MakeForm<frmObxPrintCalc>, 417},
    {"FindDialog", MakeForm<FindDialog>, 400},
    {"frmBackups", MakeForm<frmBackups>, 409},
    {"frmCompare", MakeForm<frmCompare>, 409},
    {"frmServer", MakeForm<frmServer>, 430},
    {"frmCopyAll", MakeForm<frmCopyAll>, 430},
    {"frmPipeSize", MakeForm<frmPipeSize>, 411},
    {"frmPrintControl", MakeForm<frmPrintControl>, 417},
    {"frmTables", MakeForm<frmTables>, 415},
    {"frmShippedRows", MakeForm<frmShippedRows>, 416},
    {"frmSizes", MakeForm<frmSizes>, 406},
    {"frmRecalculate", MakeForm<frmRecalculate>, 407},
    {"frmImport", MakeForm<frmImport>, 428},
    {"frmLineFlow", MakeForm<frmLineFlow>, 406},
    {"frmWaterHammer", MakeForm<frmWaterHammer>, 403},
    {"frmUnits", MakeForm<frmUnits>, 412},
    {"frmCalcOptions", MakeForm<frmCalcOptions>, 413},
    {"WinSeek", MakeForm<WinSeek>, 414},
};

// Routines that fill a form leave FormLoading at "Yes"; the end of the user's act puts it back, so that the
// next edit blanks results. The panels of units and options clear it themselves when they close.
void AfterAct() {
    if (!IsFormLoaded("frmUnits") && !IsFormLoaded("frmCalcOptions")) Calc.FormLoading = words::No;
    if (CalculationForm* form = OpenCalculation()) form->History.Take();
}

void ShowHelpOf(const Form& form) {
    for (const FormEntry& entry : FormTable) {
        if (SameName(entry.Name, form.Name())) return ShowHelpTopic(entry.HelpTopic);
    }
}

}  // namespace

void RegisterForms() {
    for (const FormEntry& entry : FormTable) RegisterForm(entry.Name, entry.Make);
    SetAfterAct(AfterAct);
    SetHelpKey(ShowHelpOf);
}

std::vector<std::string_view> FormNames() {
    std::vector<std::string_view> names;
    for (const FormEntry& entry : FormTable) names.emplace_back(entry.Name);
    return names;
}

bool IsFormKnown(std::string_view name) {
    for (const FormEntry& entry : FormTable) {
        if (SameName(entry.Name, name)) return true;
    }
    return false;
}

}  // namespace quillmetra
