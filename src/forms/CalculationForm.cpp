// See CalculationForm.h.
#include "forms/CalculationForm.h"

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "forms/frmCompare.h"
#include "forms/frmObxPrintCalc.h"
#include "forms/WinSeek.h"
#include "lineloss/PipeMaterials.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/NumberText.h"
#include "platform/Plot.h"
#include "platform/TextFiles.h"
#include "platform/UserActs.h"
#include "records/Backups.h"
#include "records/ChangeDetection.h"
#include "records/RecordFiles.h"
#include "records/Recovery.h"
#include "records/SaveRecord.h"
#include "records/TextLengths.h"
#include "reports/FormRefresh.h"
#include "reports/FormRows.h"
#include "reports/ResultsTable.h"
#include "tables/PipeSizes.h"
#include "units/NamedUnitSets.h"
#include "units/ProgramConversion.h"
#include "units/RecordUnits.h"

namespace quillmetra {

namespace {

constexpr const char* CaseCaptions[CaseCount] = {"&Maximum", "&Normal", "M&inimum"};
constexpr const char* DatePrompt = "Date";

std::string WithoutPrompt(const std::string& text, const char* prompt) { return text == prompt ? "" : text; }

// The user has changed something that a save would keep.
void NoteChange() {
    if (!IsYes(Calc.FormLoading)) Calc.ChangedFlag = words::No;
}

// A number goes into its field only when it differs from what the box was last filled with.
void TakeNumber(double& field, const std::string& text) {
    const double typed = Val(text);
    if (typed != Val(Str(field))) field = typed;
}

}  // namespace

CalculationForm::CalculationForm(const Names& names)
    : SuiteForm(names.Form),
      mnuFluiProp(*this, names.FluidMenu, "Fl&uid properties"),
      mnuCase(mnuFluiProp, "mnuCase", names.Cases, ""),
      Fluids(*this, names.ListFrame, names.ListCaption, program::IsOfGas(names.Program)),
      Mixture(*this),
      program_(names.Program) {
    EnterMovesOn = true;
    txtTagNum.MaxLength = longest::Tag;
    txtFluid.MaxLength = longest::Fluid;
    txtBy.MaxLength = txtApprov.MaxLength = longest::Name;
    txtComments.Each([this](TextBox& box, int i) {
        box.MaxLength = longest::Note;
        box.Change = NoteChange;
        box.Describe(&lblComments, nullptr, std::to_string(i + 1));
    });
    txtTagNum.Describe(&lblTagNum);
    txtFluid.Describe(&lblFluid);
    txtBy.Describe(&lblBy);
    txtApprov.Describe(&lblApprov);
    cmdDate.Describe(&lblDate);
    mnuCase.Each([](MenuItem& entry, int i) { entry.SetCaption(CaseCaptions[i]); });
    mnuExit.SeparatorBefore = true;
    mnuProgram.SeparatorBefore = true;
    mnuNew.Shortcut = "Ctrl+N";
    mnuUndo.Shortcut = keys::Undo;
    mnuRedo.Shortcut = keys::Redo;
    mnuUndo.SetEnabled(false);
    mnuRedo.SetEnabled(false);
    mnuCopyResults.SeparatorBefore = true;
    mnuUndo.Click = [this] { History.Undo(); };
    mnuRedo.Click = [this] { History.Redo(); };
    mnuSave.Shortcut = "Ctrl+S";
    mnuPrint.Shortcut = "Ctrl+P";
    mnuCopyResults.Shortcut = "Ctrl+Shift+C";
    mnuCalculateAll.Shortcut = keys::CalculateAll;
    mnuHelp.Shortcut = keys::Help;
    mnuHelp.StandsLast = true;
    mnuPrint.SetEnabled(false);  // a print waits for results

    mnuPrint.Click = [this] { mnuPrint_Click(); };
    mnuNew.Click = [this] { mnuNew_Click(); };
    mnuSave.Click = [this] { mnuSave_Click(); };
    mnuSaveAs.Click = [this] { mnuSaveAs_Click(); };
    mnuProgram.Click = [this] { mnuProgram_Click(); };
    mnuExit.Click = [this] { mnuExit_Click(); };
    mnuCopyResults.Click = [this] { mnuCopyResults_Click(); };
    // By its button, so that the box in hand is left first.
    mnuCalculateAll.Click = [this] { ClickControl(CalculateAllButton()); };
    mnuHelp.Click = [this] { mnuHelp_Click(); };
    mnuPathDataFile.Click = [] { FindDefaultPath(1); };
    mnuPathUserUnitFile.Click = [] { FindDefaultPath(2); };
    mnuPathPrintHdgs.Click = [] { FindDefaultPath(3); };
    cmdFormLayout.Click = [this] { OpenPanel("frmCalcOptions"); };
    cmdDate.Click = [this] { cmdDate_Click(); };
    cmdDate.KeyPress = [this](Key& key) {
        if (key.Name != keys::Escape) return;
        cmdDate.SetCaption(Calc.CaseText[text::CalcDate].empty() ? DatePrompt
                                                                 : Calc.CaseText[text::CalcDate]);
        key.Handled = true;
    };
    // A prompt gives way to the name that is typed over it.
    txtBy.GotFocus = [this] {
        if (txtBy.Text() == words::ByPrompt) txtBy.SelectAll();
    };
    txtApprov.GotFocus = [this] {
        if (txtApprov.Text() == words::ApprovedPrompt) txtApprov.SelectAll();
    };
    for (TextBox* box : {&txtTagNum, &txtBy, &txtApprov}) box->Change = NoteChange;
    txtFluid.Change = [this] {
        if (IsYes(Calc.FormLoading)) return;
        // A name typed by hand is no longer the table's fluid: neither its row nor its vapour pressure hold.
        Calc.FluidDataSource.clear();
        Calc.CaseInput[input::VaporPressure].fill(0);
        FluidTyped();
        ClearAllCases();
    };
}

void CalculationForm::DescribeRows() {
    for (const FormRow& row : FormRows(program_)) {
        for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i) {
            auto& box = static_cast<TextBox&>(RowControl(*this, row, i));
            Control* const unit = *row.Unit == '\0' ? nullptr : Find(row.Unit, row.UnitIndex);
            box.Describe(Find(row.Label), unit, row.PerCase ? words::Cases[static_cast<std::size_t>(i)] : "");
            box.IsNumber = true;
            box.Locked = row.IsResult();
            box.ColourGroup = box.Locked ? 4 : 2;
            if (box.Locked) box.TabStop = false;
            if (box.Locked || box.Change) continue;
            box.Change =
                row.PerCase ? Handler([this, i] { ClearCase(i); }) : Handler([this] { ClearAllCases(); });
        }
    }
    for (Control* control : Controls()) {
        const ControlKind kind = control->Kind();
        if (control->ColourGroup != 0 || kind == ControlKind::MenuItem ||
            kind == ControlKind::CommandButton) {
            continue;
        }
        control->ColourGroup = kind == ControlKind::TextBox ? 2 : kind == ControlKind::ListBox ? 4 : 1;
    }
}

void CalculationForm::Load() {
    if (Calc.CurrentProgram != program_) return;
    {
        const Filling filling;
        ApplyColours(*this);
        if (IsYes(Calc.InCalculation)) {
            ReopenRecord();
        } else {
            ApplyUnits();
            BeginNew();
        }
        ComposeHeading();
        if (Calc.PipeMaterialNumber <= 0) Calc.PipeMaterialNumber = 1;
        for (std::size_t i = 0; i < PipeMaterials.size(); ++i)
            Calc.PipeMaterialName[i + 1] = PipeMaterials[i].Name;
    }
    Calc.FormLoading = words::No;
    const Filling filling;  // ticking an option below is no change of the record
    const bool mixture = IsYes(Calc.MixtureFlag);
    Calc.FluidOk = mixture ? "" : words::FluidLoaded;
    ShowChoices();
    DrawResults();
    if (!IsYes(Calc.InCalculation)) TakeAsNew();
    mnuPrint.SetEnabled(IsYes(Calc.InCalculation));  // a saved record has what it was saved with
}

void CalculationForm::ApplyUnits() {
    int& set = Calc.FluidType == words::Gas ? Calc.GasUnitSet : Calc.LiquidUnitSet;
    if (set == 0) set = 1;
    if (!ApplyNamedUnitSet(set)) {
        Tell("File is empty, please make and save\nusing Change Setup to the Calc Options Form",
             "Boot up File");
        set = 1;
        ApplyNamedUnitSet(set);
    }
    RememberUnits();  // nothing is entered yet that would have to be converted
}

void CalculationForm::StoreForm() {
    const Filling filling;  // the tag is written back
    Calc.Tag = std::string(Trim(txtTagNum.Text()));
    txtTagNum.SetText(Calc.Tag);
    Calc.FluidName = txtFluid.Text();
    for (const FormRow& row : FormRows(program_)) {
        if (row.IsResult()) continue;
        for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i) {
            TakeNumber(LiveValue(row, i), RowControl(*this, row, i).Text());
        }
    }
    StoreOwn();
    Calc.CaseText[text::CalcBy] = WithoutPrompt(txtBy.Text(), words::ByPrompt);
    Calc.CaseText[text::ApprovedBy] = WithoutPrompt(txtApprov.Text(), words::ApprovedPrompt);
    Calc.CaseText[text::CalcDate] = WithoutPrompt(cmdDate.Caption(), DatePrompt);
    Calc.ChosenUnitRowNames = {"", Calc.UnitName[unit::Temperature], Calc.UnitName[unit::CritTemperature],
                               Calc.UnitName[unit::Viscosity]};
    Calc.HeadingText[heading::Note1] = txtComments(0).Text();
    Calc.HeadingText[heading::Note2] = txtComments(1).Text();
}

void CalculationForm::BlankResults(int caseIndex) {
    for (const FormRow& row : FormRows(program_)) {
        if (row.IsResult() && row.PerCase) {
            static_cast<TextBox&>(RowControl(*this, row, caseIndex)).SetText("");
        }
    }
}

// Results that are one number for all cases.
void CalculationForm::BlankLineResults() {
    for (const FormRow& row : FormRows(program_)) {
        if (row.IsResult() && !row.PerCase) {
            static_cast<TextBox&>(RowControl(*this, row, 0)).SetText("");
        }
    }
}

void CalculationForm::ClearCase(int caseIndex) {
    if (IsYes(Calc.FormLoading)) return;
    Calc.ChangedFlag = words::No;
    std::string& clearable = Calc.ResultsClearable[static_cast<std::size_t>(caseIndex)];
    if (clearable == words::No) return;
    mnuPrint.SetEnabled(false);
    if (Control* button = CalculateButton(caseIndex)) button->SetEnabled(true);
    BlankResults(caseIndex);
    ResultsBlanked(caseIndex);
    if (caseIndex == hintedCase_ || hintedCase_ == EveryCase) ShowHint("");
    clearable = words::No;
    if (!LineResultStands()) BlankLineResults();
}

void CalculationForm::ClearAllCases() {
    if (IsYes(Calc.FormLoading)) return;
    for (int i = 0; i < CaseCount; ++i) ClearCase(i);
    BlankLineResults();
}

int CalculationForm::InputSlot(const Control& box) const {
    if (&box == &txtFluid) return TextSlot(txtFluid.Text(), Calc.FluidNameSaved);
    const FormRow* const row = RowOf(program_, box);
    if (row == nullptr) return slot::InputText;
    const int caseIndex = row->PerCase ? box.Index() : 0;
    double value = LiveValue(*row, caseIndex);
    TakeNumber(value, box.Text());
    return ValueSlot(value, ShownValue(*row, caseIndex));
}

void CalculationForm::SaveChanges() {
    StoreForm();
    DetectChanges();
    Calc.SaveAnswer.clear();
    if (!IsYes(Calc.RecordChanged)) return;
    Calc.SavePrompt = "Save changes?";
    Calc.SaveAnswer = words::No;
    if (AskYesNo(Calc.SavePrompt, Calc.ProgramTitle)) Calc.SaveAnswer = Save() ? words::Yes : words::ExitSub;
}

bool CalculationForm::MayLeaveRecord() {
    CloseOverlays();
    SaveChanges();
    if (Calc.SaveAnswer == words::ExitSub || IsYes(Calc.SaveAnswer)) return false;
    DropRecovery();
    return true;
}

void CalculationForm::EmptyForm() {
    ShowHint("");
    for (Control* control : Controls()) {
        if (control->Kind() == ControlKind::TextBox) static_cast<TextBox&>(*control).SetText("");
        if (control->Kind() == ControlKind::Plot) static_cast<Plot&>(*control).Clear();
    }
}

void CalculationForm::ShowCalculated() {
    SnapshotRecord();
    ShowCalculation();
    mnuPrint.SetEnabled(true);
    DrawResults();
    ShowHint(Sentences(Hints()));
    if (Visible()) KeepRecovery();  // a recalculation of saved records shows none
}

void CalculationForm::ShowHint(const std::string& hint) {
    if (!hint.empty() || Status() == hint_) SetStatus(hint);
    hint_ = hint;
    hintedCase_ = Calc.CaseIndex;
}

// Figures that wait for their rounding are not printed. Who keeps them on purpose is offered to round them
// now.
bool CalculationForm::RoundNow() {
    constexpr const char* title = "Print Calculation";
    Tell("Please round before printing", title, Icon::Stop);
    if (Suite.ConvertedFigures != Figures::Keep || !AskYesNo("Round now?", title, Icon::Question))
        return false;
    RoundNumbers();
    Calc.UnitsConverted = words::Yes;
    Calc.ChangedFlag = words::No;
    ShowCalculation();
    DrawResults();
    return true;
}

void CalculationForm::mnuPrint_Click() {
    CloseOverlays();
    StoreForm();
    if (Calc.DataOk == words::No) return;
    if (Calc.RoundedFlag == words::No && !RoundNow()) return;
    Calc.CaseUnitsText[printed::Date] = WithoutPrompt(cmdDate.Caption(), DatePrompt);
    Calc.CaseUnitsText[printed::By] = txtBy.Text();
    Calc.CaseUnitsText[printed::Fluid] = txtFluid.Text();
    Calc.CaseUnitsText[printed::ApprovedBy] = txtApprov.Text();
    auto& printout = static_cast<frmObxPrintCalc&>(LoadForm("frmObxPrintCalc"));
    printout.FillFromRecord();
    printout.cmdOK.SetFocus();
    ShowForm(printout.Name(), Modal::Yes);
}

void CalculationForm::ShowPrintedTexts() {
    const Filling filling;
    txtComments.Each(
        [](TextBox& box, int i) { box.SetText(Calc.HeadingText[static_cast<std::size_t>(i) + 8]); });
    if (!Calc.CaseText[text::CalcDate].empty()) cmdDate.SetCaption(Calc.CaseText[text::CalcDate]);
}

void CalculationForm::mnuNew_Click() {
    if (!MayLeaveRecord()) return;
    History.Forget();
    const Filling filling;
    EmptyForm();
    ResetForNew();
    BeginNew();
    UnloadForm("frmUnits");
    UnloadForm("frmObxPrintCalc");
    mnuPrint.SetEnabled(false);
    Calc.ProgramChosen = words::Yes;
    ApplyColours(*this);
    ComposeHeading();
    ShowChoices();
    TakeAsNew();
    txtTagNum.SetFocus();
}

void CalculationForm::BeginNew() {
    Calc.PipeData[pipe::Entrance] = Calc.PipeData[pipe::Exit] = 1;
    Calc.PressureDirection = direction::Forwards;
    BeginRecord();
}

// What a fresh record begins with is no change of it, and it belongs to no database.
void CalculationForm::TakeAsNew() {
    TakeSaved();
    Calc.LoadedDatabaseFile.clear();
}

// --- Saving ----------------------------------------------------------------------------------------------

bool CalculationForm::SaveTo(const std::string& databaseFile) {
    Suite.DatabaseFile = databaseFile;
    Suite.DatabasePath = FolderOf(databaseFile);
    Calc.TagChanged = words::Yes;
    if (!Calc.Tag.empty() && !FileExists(databaseFile) && !OfferDatabase(DatabaseTitle)) return false;
    const std::string cut = CutHeadings();
    if (!SaveTRCalc()) {
        SetStatus("Not saved");  // no "Saved as" of an earlier save stands on
        if (ComparisonWanted()) ShowComparison(*this);
        if (Calc.Tag.empty()) txtTagNum.SetFocus();
        return false;
    }
    DropRecovery();
    ShowCalculation();
    SetStatus("Saved as " + Calc.Tag + cut + BackupTrouble());
    return true;
}

bool CalculationForm::Save() {
    if (!MustHaveDataPath(Suite.DefaultPaths[path::Database])) return false;
    return SaveTo(DatabaseFileOf(Suite.DefaultPaths[path::Database]));
}

void CalculationForm::mnuSave_Click() {
    CloseOverlays();
    StoreForm();
    Save();
}

void CalculationForm::mnuSaveAs_Click() {
    CloseOverlays();
    StoreForm();
    const std::string file = AskDatabaseFile(true);
    if (!file.empty()) SaveTo(file);
}

void CalculationForm::mnuProgram_Click() {
    if (!MayLeaveRecord()) return;
    Calc.ProgramTitle.clear();  // the next program brings its own
    ShowForm("frmTRProg");
    for (const char* form : {"frmUnits", "frmObxPrintCalc", "frmCalcOptions"}) UnloadForm(form);
    UnloadForm(Name());
}

void CalculationForm::mnuExit_Click() {
    if (MayLeaveRecord()) EndProcess();
}

void CalculationForm::StoreForPanel() {
    StoreForm();
    if (const Program* program = FindProgram(program_)) Calc.CalcOptionCaller = program->OptionsWord;
}

void CalculationForm::OpenPanel(const char* panel) {
    StoreForPanel();
    SetCalculateButtons(false);
    SetEnabled(false);
    ShowForm(panel);
}

void CalculationForm::OpenPipeSizes() {
    StoreForm();
    if (const Program* program = FindProgram(program_)) Calc.MessageText = program->PipeWord;
    PreparePipeUnits();
}

void CalculationForm::HookPipe(TextBox& name, Control& diameter, std::initializer_list<TextBox*> sizes) {
    name.Locked = true;
    name.TabStop = false;
    name.ColourGroup = 4;  // as the results
    name.Describe(&diameter, nullptr, "pipe");
    name.Change = [&name] { name.SetToolTip(name.Text()); };
    for (TextBox* box : sizes) {
        box->Change = [this, &name] {
            if (IsYes(Calc.FormLoading)) return;
            Calc.PipeName.clear();
            name.SetText("");
            ClearAllCases();
        };
    }
}

void CalculationForm::ReturnFromPanel() {
    SetEnabled(true);
    SetCalculateButtons(true);
    Calc.FormLoading = words::No;
    DrawResults();
    ShowForm(Name());
}

void CalculationForm::SetCalculateButtons(bool enabled) {
    for (int i = 0; i < CaseCount; ++i) {
        if (Control* button = CalculateButton(i)) button->SetEnabled(enabled);
    }
}

void CalculationForm::mnuCopyResults_Click() {
    CopyText(ResultsTable(*this, program_));
    SetStatus("Inputs and results can be pasted into a spreadsheet");
}

void CalculationForm::mnuHelp_Click() {
    if (const Program* program = FindProgram(program_)) ShowHelpTopic(program->HelpTopic);
}

void CalculationForm::cmdDate_Click() {
    cmdDate.SetCaption(Today());
    NoteChange();
}

}  // namespace quillmetra
