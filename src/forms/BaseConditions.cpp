// See BaseConditions.h.
#include "forms/BaseConditions.h"

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/CorrelationRange.h"
#include "units/NamedUnitSets.h"
#include "units/Rounding.h"
#include "units/StandardRange.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {

constexpr const char* Title = "Base conditions";

bool IsSI() { return Calc.UnitSystem == words::SI; }

void ApplySystem(bool si) { si ? STPSI() : STPEnglish(); }

bool Refuse(const char* text, TextBox& box) {
    Tell(text, Title, Icon::Stop);
    box.SetFocus();
    return false;
}

// What a box says in the record's own unit, psia or degF; a box as it was filled says nothing new.
double Typed(const TextBox& box, const std::string& shown, double former, double (*fromSI)(double)) {
    if (box.Text() == shown) return former;
    const double typed = Val(box.Text());
    return IsSI() ? RoundedFour(fromSI(typed)) : typed;
}

double FromKilopascal(double value) { return value * PsiPerKPa; }
double ToKilopascal(double value) { return value / PsiPerKPa; }

}  // namespace

BaseConditions::BaseConditions(CalculationForm& form)
    : mnuSTP(form, "mnuSTP", "&Base conditions"),
      fraSTP(form, "fraSTP", Title),
      lblSTPPressure(fraSTP, "lblSTPPressure", "Base pressure"),
      txtSTPPressure(fraSTP, "txtSTPPressure"),
      unSTPPressure(fraSTP, "unSTPPressure"),
      lblSTPTemp(fraSTP, "lblSTPTemp", "Base temperature"),
      txtSTPTemp(fraSTP, "txtSTPTemp"),
      unSTPTemp(fraSTP, "unSTPTemp"),
      lblSTPBaro(fraSTP, "lblSTPBaro", "Barometric pressure"),
      txtSTPBaro(fraSTP, "txtSTPBaro"),
      unSTPBaro(fraSTP, "unSTPBaro"),
      lblSTPNote(
          fraSTP, "lblSTPNote",
          "Base pressure and temperature change no flow: a pound mole counts as 378.751445 ft3 whatever "
          "they are. The barometric pressure turns gauge into absolute."),
      cmdSTPEnglish(fraSTP, "cmdSTPEnglish", "En&glish units"),
      cmdSTPSI(fraSTP, "cmdSTPSI", "S&I units"),
      cmdOKSTP(fraSTP, "cmdOKSTP", "OK"),
      cmdSaveSTP(fraSTP, "cmdSaveSTP", "Sa&ve"),
      cmdCancelSTP(fraSTP, "cmdCancelSTP", "Cancel"),
      form_(form) {
    fraSTP.SetVisible(false);
    txtSTPPressure.Describe(&lblSTPPressure, &unSTPPressure);
    txtSTPTemp.Describe(&lblSTPTemp, &unSTPTemp);
    txtSTPBaro.Describe(&lblSTPBaro, &unSTPBaro);
    for (TextBox* box : {&txtSTPPressure, &txtSTPTemp, &txtSTPBaro}) {
        box->IsNumber = true;
        box->ColourGroup = 2;
    }
    mnuSTP.Click = [this] { Open(); };
    cmdSTPEnglish.Click = [this] { SwitchTo(false); };
    cmdSTPSI.Click = [this] { SwitchTo(true); };
    cmdOKSTP.Click = [this] { cmdOKSTP_Click(); };
    cmdSaveSTP.Click = [this] { cmdSaveSTP_Click(); };
    cmdCancelSTP.Click = [this] { cmdCancelSTP_Click(); };
}

void BaseConditions::AppendTabs() {
    for (Control* control :
         std::initializer_list<Control*>{&txtSTPPressure, &txtSTPTemp, &txtSTPBaro, &cmdSTPEnglish, &cmdSTPSI,
                                         &cmdOKSTP, &cmdSaveSTP, &cmdCancelSTP}) {
        form_.TabOrder.push_back(control);
    }
}

void BaseConditions::Open() {
    if (fraSTP.Visible()) return;
    form_.CloseOverlays();
    RestoreStandardConditions();
    systemBefore_ = Calc.UnitSystem;
    ApplySystem(IsSI());
    Show();
    cameFrom_ = form_.Focus.Current();
    form_.Picture1.SetEnabled(false);
    form_.mnuFluiProp.SetEnabled(false);
    fraSTP.SetVisible(true);
    form_.DefaultButton = &cmdOKSTP;
    form_.CancelButton = &cmdCancelSTP;
    txtSTPPressure.SetFocus();
}

void BaseConditions::Close() {
    if (!fraSTP.Visible()) return;
    fraSTP.SetVisible(false);
    form_.Picture1.SetEnabled(true);
    form_.mnuFluiProp.SetEnabled(true);
    form_.DefaultButton = nullptr;
    form_.CancelButton = nullptr;
    if (cameFrom_ != nullptr) cameFrom_->SetFocus();
}

void BaseConditions::Show() {
    shown_ = {TrimmedStr(Calc.CaseInput[input::StdPressure][0]),
              TrimmedStr(Calc.CaseInput[input::StdTemperature][0]),
              TrimmedStr(Calc.CaseInput[input::Barometer][0])};
    txtSTPPressure.SetText(shown_[0]);
    txtSTPTemp.SetText(shown_[1]);
    txtSTPBaro.SetText(shown_[2]);
    unSTPPressure.SetCaption(Calc.UnitName[unit::StdPressure]);
    unSTPTemp.SetCaption(Calc.UnitName[unit::StdTemperature]);
    unSTPBaro.SetCaption(Calc.UnitName[unit::Barometer]);
    cmdSTPEnglish.SetEnabled(IsSI());
    cmdSTPSI.SetEnabled(!IsSI());
}

// The values in force in the other system, and so what was typed and is not taken yet; a text that is no
// number stays as it is.
void BaseConditions::SwitchTo(bool si) {
    struct Edit {
        TextBox& Box;
        const std::string& Shown;
        double (*FromSI)(double);
        double (*ToSI)(double);
        std::string Text = {};
    };
    Edit edits[] = {{txtSTPPressure, shown_[0], FromKilopascal, ToKilopascal},
                    {txtSTPTemp, shown_[1], FahrenheitOf, CelsiusOf},
                    {txtSTPBaro, shown_[2], FromKilopascal, ToKilopascal}};
    for (Edit& edit : edits) {
        if (edit.Box.Text() == edit.Shown) continue;
        edit.Text = edit.Box.Text();
        if (!ValReadsAll(edit.Text) || si == IsSI()) continue;
        edit.Text = TrimmedStr(RoundedFour((si ? edit.ToSI : edit.FromSI)(Val(edit.Text))));
    }
    ApplySystem(si);
    Show();
    for (const Edit& edit : edits) {
        if (!edit.Text.empty()) edit.Box.SetText(edit.Text);
    }
    txtSTPPressure.SetFocus();
}

bool BaseConditions::Take() {
    const double pressure = Typed(txtSTPPressure, shown_[0], Calc.StdPressure, FromKilopascal);
    const double temperature = Typed(txtSTPTemp, shown_[1], Calc.StdTemperature, FahrenheitOf);
    const double barometer = Typed(txtSTPBaro, shown_[2], Calc.BaroPressure, FromKilopascal);
    if (!(pressure > 0)) return Refuse("Base pressure must be greater than zero", txtSTPPressure);
    if (!IsAboveAbsoluteZero(temperature)) {
        return Refuse("Base temperature must be greater than absolute zero", txtSTPTemp);
    }
    if (!(barometer > 0)) return Refuse("Barometric pressure must be greater than zero", txtSTPBaro);
    const bool changed =
        pressure != Calc.StdPressure || temperature != Calc.StdTemperature || barometer != Calc.BaroPressure;
    Calc.StdPressure = pressure;
    Calc.StdTemperature = temperature;
    Calc.BaroPressure = barometer;
    ApplySystem(IsSI());
    if (changed && Changed) Changed();
    return true;
}

std::string BaseConditions::ReadDifferently() const {
    const std::array<const TextBox*, 3> boxes = {&txtSTPPressure, &txtSTPTemp, &txtSTPBaro};
    std::string notes;
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        if (boxes[i]->Text() == shown_[i]) continue;
        std::string note = ReadAs(boxes[i]->Text());
        if (note.empty()) continue;
        note += ".";
        notes = Sentences(notes, note);
    }
    return notes;
}

void BaseConditions::CloseWith(const std::string& note) {
    const std::string notes = Sentences(ReadDifferently(), note);
    Close();
    if (!notes.empty()) form_.SetStatus(notes);
}

void BaseConditions::cmdOKSTP_Click() {
    if (Take()) CloseWith("");
}

void BaseConditions::cmdSaveSTP_Click() {
    if (!Take()) return;
    SaveStandardConditions();
    CloseWith(FileConditionsNote());
}

void BaseConditions::cmdCancelSTP_Click() {
    ApplySystem(systemBefore_ == words::SI);
    Close();
}

}  // namespace quillmetra
