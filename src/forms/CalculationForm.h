// The life that the five calculation forms share: the common block of controls, loading, storing, blanking
// of results, new, back to the browser, exit.
#pragma once

#include <array>
#include <string>

#include "core/CalcRecord.h"
#include "forms/CaseMessages.h"
#include "forms/FluidPanels.h"
#include "forms/SuiteForm.h"
#include "forms/UndoHistory.h"
#include "platform/DropButton.h"
#include "units/CorrelationRange.h"

namespace quillmetra {

class CalculationForm : public SuiteForm {
public:
    // The names that differ from form to form.
    struct Names {
        int Program = 0;
        const char* Form = "";
        const char* FluidMenu = "";  // the menu head of the fluid properties
        const char* ListFrame = "";
        const char* ListCaption = "";
        std::initializer_list<int> Cases = EachCase;  // those with a menu of their own
    };
    static constexpr std::initializer_list<int> EachCase = {0, 1, 2};
    static constexpr std::initializer_list<int> OneCase = {};
    static constexpr const char* CalculateAllTip = "Calculates every case that has data (F5)";

    explicit CalculationForm(const Names& names);

    void Load() override;
    void CloseBox() override { mnuProgram_Click(); }
    void ControlLostFocus(Control& control) override;

    int ProgramNumber() const { return program_; }

    // Takes the texts of the form into the record. A number whose box still says what the refresh wrote
    // leaves its field alone, so that an untouched value keeps all its digits.
    void StoreForm();

    // Blanks the results of a case, or of all, after a change of input; does nothing while code fills the
    // form.
    void ClearCase(int caseIndex);
    void ClearAllCases();

    // Menus
    MenuItem mnuFile{*this, "mnuFile", "&File"};
    MenuItem mnuNew{mnuFile, "mnuNew", "&New"};
    MenuItem mnuSave{mnuFile, "mnuSave", "&Save"};
    MenuItem mnuSaveAs{mnuFile, "mnuSaveAs", "Save &As..."};
    MenuItem mnuPrint{mnuFile, "mnuPrint", "&Print..."};
    MenuItem mnuProgram{mnuFile, "mnuProgram", "Pro&gram"};
    MenuItem mnuExit{mnuFile, "mnuExit", "E&xit"};
    MenuItem mnuEdit{*this, "mnuEdit", "&Edit"};
    MenuItem mnuUndo{mnuEdit, "mnuUndo", "&Undo"};
    MenuItem mnuRedo{mnuEdit, "mnuRedo", "&Redo"};
    MenuItem mnuCopyResults{mnuEdit, "mnuCopyResults", "&Copy inputs and results"};
    MenuItem mnuCalculateAll{mnuEdit, "mnuCalculateAll", "Calculate &all"};
    MenuItem mnuFluiProp;
    ControlArray<MenuItem> mnuCase;
    MenuItem mnuDefPath{*this, "mnuDefPath", "Default pa&ths"};
    MenuItem mnuPathDataFile{mnuDefPath, "mnuPathDataFile", "&Data file default path"};
    MenuItem mnuPathUserUnitFile{mnuDefPath, "mnuPathUserUnitFile", "&User unit file default path"};
    MenuItem mnuPathPrintHdgs{mnuDefPath, "mnuPathPrintHdgs", "&Printout heading file default path"};

    MenuItem mnuHelp{*this, "mnuHelp", "&Help"};

    // The container of the inputs, switched off while a list of fluids is open over it.
    Frame Picture1{*this, "Picture1"};
    Label lblTagNum{Picture1, "lblTagNum", "Tag &number"};
    TextBox txtTagNum{Picture1, "txtTagNum"};
    Label lblFluid{Picture1, "lblFluid", "Fluid"};
    TextBox txtFluid{Picture1, "txtFluid"};
    CommandButton cmdFormLayout{Picture1, "cmdFormLayout", "Change &Setup"};
    Label lblBy{Picture1, "lblBy", "Calculated b&y"};
    TextBox txtBy{Picture1, "txtBy"};
    Label lblApprov{Picture1, "lblApprov", "Approved by"};
    TextBox txtApprov{Picture1, "txtApprov"};
    Label lblDate{Picture1, "lblDate", "&Date"};
    CommandButton cmdDate{Picture1, "cmdDate", "Date"};
    Label lblComments{Picture1, "lblComments", "Comments"};
    ControlArray<TextBox> txtComments{Picture1, "txtComments", {0, 1}};

    FluidList Fluids;
    MixturePanel Mixture;

    // Opens the panel of units or of options over this form, which takes no input until the panel calls
    // ReturnFromPanel.
    void OpenPanel(const char* panel);
    void ReturnFromPanel();
    // Notes 1 and 2 and the date, which the printout form may have changed.
    void ShowPrintedTexts();

    void mnuPrint_Click();
    void mnuNew_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuProgram_Click();
    void mnuExit_Click();
    void mnuCopyResults_Click();
    void mnuHelp_Click();
    void cmdDate_Click();

    // Calculates each case that has data, as its button does, from the first on. What there is only to be
    // told is told at the end, in one box; a question is asked at its case.
    void CalculateAll();

    // Gives up what is open over the inputs, before an act that takes the record as it is.
    virtual void CloseOverlays() {}

    UndoHistory History{*this};
    // Nothing is open over the form or its inputs: record and boxes are those of one calculation.
    bool IsAtRest() const;
    // Whether the history keeps what a control shows; not what follows from the record, nor a mere view.
    virtual bool Remembers(const Control& control) const;
    // What puts back what the form now keeps beside record and controls.
    virtual Handler KeepBeside();
    // Record and controls are those of another step: what follows from them.
    void ShowRestored();

protected:
    // Before the first refresh of a saved record.
    virtual void ReopenRecord() {}
    // What a fresh record of the form begins with, beside what all have.
    virtual void BeginRecord() {}
    // The buttons that show the units of the rows, open the unit window and drop the units of their family;
    // in UnitsInPlace.cpp.
    void HookUnits(const ControlArray<DropButton>& buttons);
    void OpenUnits(int row);
    void TakeUnit(int row, int line);
    // Opens the pipe size dialog for this form.
    void OpenPipeSizes();
    // The box that names the pipe which was picked, and those that make it another one when they are typed
    // over.
    void HookPipe(TextBox& name, Control& diameter, std::initializer_list<TextBox*> sizes);
    // The units routine of the form: applies the unit set in force to the record.
    void ApplyUnits();
    // The numbers and texts that a form has beside the common ones.
    virtual void StoreOwn() {}
    // What a load and a new calculation set on the form's own controls.
    virtual void ShowChoices() {}
    // The calculate button of a case, null when there is none.
    virtual Control* CalculateButton(int) { return nullptr; }
    // The button that calculates all there is to calculate.
    virtual CommandButton& CalculateAllButton() = 0;
    // Whether a case has what its calculation begins with.
    virtual bool HasData(int) { return true; }
    // As the heads of the columns have it.
    virtual std::string CaseName(int caseIndex) const;
    int InputSlot(const Control& box) const override;
    std::string StandingStatus() const override { return hint_; }
    // What a user should know about the case in hand as it is calculated: where it lies outside the range of
    // a correlation. Refuses nothing.
    virtual HintList Hints() const { return {}; }
    // Shows a hint in the status line until it no longer holds; an empty one takes the former away.
    void ShowHint(const std::string& hint);
    // The same for hints of several cases.
    void ShowHints(const std::vector<TextOfCase>& hints);
    // The fluid's name was typed over.
    virtual void FluidTyped() {}
    // The results of a case no longer stand: what the form has drawn of them goes.
    virtual void ResultsBlanked(int) {}
    // Draws the results that stand, in the units shown.
    virtual void DrawResults() {}

    // Ends a calculation whose results stand in the record: they are marked and shown, and can be printed.
    void ShowCalculated();
    // Asks whether to save what has changed, and does so on Yes. Sets SaveAnswer: "Yes" when it is saved,
    // "Exit Sub" when the save was refused.
    void SaveChanges();
    // The same for an act that gives the record up; false when it must stop.
    bool MayLeaveRecord();
    // Names, colours and tab order of the boxes of the program's table of rows.
    void DescribeRows();
    void EmptyForm();

private:
    void BeginNew();
    void TakeAsNew();
    // Saves to the database on the default path; false, after a message, when it was refused.
    bool Save();
    bool SaveTo(const std::string& databaseFile);
    bool RoundNow();
    void StoreForPanel();
    void BlankResults(int caseIndex);
    void BlankLineResults();
    void SetCalculateButtons(bool enabled);

    int program_;
    std::string hint_;
    static constexpr int EveryCase = -1;
    int hintedCase_ = 0;
};

}  // namespace quillmetra
