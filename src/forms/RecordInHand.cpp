// See RecordInHand.h.
#include "forms/RecordInHand.h"

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "platform/Forms.h"
#include "records/LoadRecord.h"
#include "records/RecordRows.h"
#include "reports/FormRefresh.h"

namespace quillmetra {

namespace {
void BeginRecord() {
    ResetRecord();
    Calc.LoadedDatabaseFile = Suite.DatabaseFile;
}

void BeginWith(const RecordHead& head) {
    BeginRecord();
    LoadHeadings();
    Calc.Tag = head.Tag;
    TakeFluidType(head.FluidType, head.ProgramNumber);
}

bool Loaded(bool isWhole) {
    if (isWhole) Calc.BrowserOpen = words::Yes;
    return isWhole;
}

}  // namespace

// Without the headings of a print, of which a run of many records has no use.
bool TakeRecordRows(const RecordRows& rows) {
    BeginRecord();
    TakeFluidType(rows.FluidType(), rows.Program());
    return Loaded(TakeRows(rows));
}

bool TakeRecord(const RecordHead& head) {
    BeginWith(head);
    return Loaded(GetTRCalc());
}

bool TakeRecord(const RecordHead& head, Database& database) {
    BeginWith(head);
    return Loaded(GetTRCalc(database));
}

const char* FillCalculationForm() {
    const Program* const program = FindProgram(Calc.CurrentProgram);
    if (program == nullptr) return nullptr;
    Calc.InCalculation = words::Yes;
    UnloadForm(program->Form);
    LoadForm(program->Form);
    Calc.DataOk = words::Yes;
    Calc.FormLoading = words::Yes;
    ShowCalculation();
    return program->Form;
}

FormsOfRecord::~FormsOfRecord() {
    DiscardForm("frmObxPrintCalc");
    for (const Program& program : Programs) DiscardForm(program.Form);
}

void ShowLoadedRecord() {
    const char* const form = FillCalculationForm();
    if (form == nullptr) return;
    ShowForm(form);
    HideForm("frmTRProg");
}

}  // namespace quillmetra
