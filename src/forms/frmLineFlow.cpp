// See frmLineFlow.h.
#include "forms/frmLineFlow.h"

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "forms/DataCheck.h"
#include "lineloss/LineTrial.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "units/Border.h"

namespace quillmetra {

namespace {
int FlowUnit() { return Calc.CurrentProgram == program::GasLine ? unit::GasFlow : unit::LiquidFlow; }
}  // namespace

frmLineFlow::frmLineFlow() : SuiteForm("frmLineFlow") {
    SetCaption("Flow for these pressures");
    Fixed = true;
    DefaultButton = &cmdFind;
    CancelButton = &cmdCancel;
    txtGiven.Describe(&lblGiven, &unGiven);
    txtEnd.Describe(&lblEnd, &unEnd);
    txtFlow.Describe(&lblFlow, &unFlow);
    for (TextBox* box : {&txtGiven, &txtFlow}) {
        box->Locked = true;
        box->IsNumber = true;
        box->TabStop = false;
        box->ColourGroup = 4;
    }
    txtEnd.IsNumber = true;
    txtEnd.ColourGroup = 2;
    for (Label* label : {&lblCase, &lblGiven, &unGiven, &lblEnd, &unEnd, &lblFlow, &unFlow, &lblReason})
        label->ColourGroup = 1;
    optCase.Each([this](OptionButton& option, int i) {
        option.SetCaption(words::Cases[At(i)]);
        option.ColourGroup = 1;
        option.Click = [this, i] { optCase_Click(i); };
    });
    txtEnd.Change = [this] { txtEnd_Change(); };
    cmdFind.Click = [this] { cmdFind_Click(); };
    cmdOK.SetToolTip("Takes the flow into the form");
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmLineFlow::Load() {
    ApplyColours(*this);
    optCase(Calc.CaseIndex).SetChecked(true);
    optCase.Each([](OptionButton& option, int i) {
        option.SetEnabled(i == Calc.CaseIndex || (OpenLine() != nullptr && OpenLine()->HasState(i)));
    });
    ShowCase();
}

// The pressures of the case as the form shows them.
void frmLineFlow::ShowCase() {
    LineLossForm* const line = OpenLine();
    if (line == nullptr) return;
    lblGiven.SetCaption(line->lblPressure.Caption());
    txtGiven.SetText(line->txtPressure(Calc.CaseIndex).Text());
    lblEnd.SetCaption("&" + line->lblDestPress.Caption());
    txtEnd.SetText(line->txtDestPress(Calc.CaseIndex).Text());
    for (Label* label : {&unGiven, &unEnd}) label->SetCaption(Calc.UnitName[unit::Pressure]);
    unFlow.SetCaption(Calc.UnitName[At(FlowUnit())]);
    BlankAnswer();
}

void frmLineFlow::BlankAnswer() {
    txtFlow.SetText("");
    lblReason.SetCaption("");
    cmdOK.SetEnabled(false);
    DefaultButton = &cmdFind;
}

void frmLineFlow::txtEnd_Change() { BlankAnswer(); }

// A case that is refused leaves the one before.
void frmLineFlow::optCase_Click(int index) {
    if (index == Calc.CaseIndex || OpenLine() == nullptr) return;
    if (OpenLine()->TakeOtherCase(index, LineLossForm::Wanted::NoFlow)) return ShowCase();
    optCase(Calc.CaseIndex).SetChecked(true);
}

void frmLineFlow::cmdFind_Click() {
    BlankAnswer();
    const double end = Val(txtEnd.Text());
    if (Trim(txtEnd.Text()).empty() || !(PressureIn(end) > 0)) {
        RefuseData(SpokenCaption(lblEnd.Caption()) + " must be greater than absolute zero", txtEnd);
        return;
    }
    const BusyPointer busy;
    const FlowAnswer answer = FlowForPressure(end);
    lblReason.SetCaption(answer.Told);
    if (answer.Flow == 0) return txtEnd.SetFocus();
    txtFlow.SetText(Str(answer.Flow));
    cmdOK.SetEnabled(true);
    DefaultButton = &cmdOK;
    cmdOK.SetFocus();
}

void frmLineFlow::cmdOK_Click() {
    LineLossForm* const line = OpenLine();
    const std::string flow = txtFlow.Text();
    if (line == nullptr || flow.empty()) return;
    const int caseIndex = Calc.CaseIndex;
    UnloadForm(Name());
    line->txtFlow(caseIndex).SetText(flow);
    line->txtFlow(caseIndex).SetFocus();
}

void frmLineFlow::cmdCancel_Click() { UnloadForm(Name()); }

}  // namespace quillmetra
