// Two small forms that have one of everything that a script can act on. The first takes the place of the
// record browser, so that "start" shows it; the second is shown over it.
#pragma once

#include <memory>

#include "platform/Controls.h"
#include "platform/Dialogs.h"
#include "platform/Form.h"
#include "platform/Forms.h"

namespace quillmetra {

class ProvingDialog : public Form {
public:
    ProvingDialog() : Form("frmDialog") {
        cmdOK.Click = [this] {
            ControlOf("frmTRProg", "lblResult").SetCaption(txtName.Text());
            UnloadForm("frmDialog");
        };
        DefaultButton = &cmdOK;
    }
    void Load() override { txtName.SetFocus(); }
    void CloseBox() override { HideForm("frmDialog"); }

    TextBox txtFirst{*this, "txtFirst"};
    TextBox txtName{*this, "txtName"};
    CommandButton cmdOK{*this, "cmdOK", "OK"};
};

class ProvingForm : public Form {
public:
    ProvingForm() : Form("frmTRProg") {
        SetCaption("Proving form");
        txtA.LostFocus = [this] {
            if (txtA.Text() != "bad") return;
            Tell("That is bad", "Check", Icon::Stop);
            txtA.SetFocus();
        };
        txtLocked.Locked = true;
        cmdOff.SetEnabled(false);
        fraHidden.SetVisible(false);
        lstFluid.SetRows({"Acetone", "Toluene", "Water"});
        lstMany.Multiple = true;
        lstMany.SetRows({"a", "b", "c"});
        grdTable.SetSize(3, 3);
        grdTable.SetCell(1, 1, "first");
        grdTable.Click = [this] { lblResult.SetCaption(grdTable.Text()); };
        cmdDialog.Click = [this] {
            ShowForm("frmDialog", Modal::Yes);
            lblAfter.SetCaption("closed");
        };
        cmdAsk.Click = [this] {
            Tell("Two\nlines", "Note");
            lblResult.SetCaption(AskYesNo("Go on? ", "Question", Icon::Question, Answer::No) ? "went"
                                                                                             : "stayed");
        };
        cmdEndless.Click = [] {
            while (AskText("Gravity", "Ask").empty()) {
            }
        };
        cmdFails.Click = [] { throw failure::DivisionByZero(); };
        cmdFile.Click = [this] { lblResult.SetCaption(CurrentHost()->FileDialog({}).value_or("no file")); };
        cmdSave.Click = [this] {
            lblResult.SetCaption(CurrentHost()->FileDialog({.ForSaving = true}).value_or("no file"));
        };
        cmdFont.Click = [this] {
            lblResult.SetCaption(CurrentHost()->FontDialog({}).value_or(FontChoice{}).Name);
        };
        cmdColour.Click = [this] {
            lblResult.SetCaption(std::to_string(CurrentHost()->ColourDialog(0, "Colour").value_or(0)));
        };
        cmdPrinter.Click = [this] {
            lblResult.SetCaption(
                std::to_string(CurrentHost()->PrinterDialog({}).value_or(PrinterChoice{}).Copies));
        };
        mnuHead.Click = [this] { mnuEntry.SetEnabled(chkEntry.Checked()); };
        mnuEntry.SetEnabled(false);
        mnuEntry.Click = [this] { lblResult.SetCaption("entry"); };
        mnuExit.Click = [] { EndProcess(); };
        lblResult.SetToolTip("What came of it");
    }
    void CloseBox() override { EndProcess(); }

    MenuItem mnuHead{*this, "mnuHead", "&Head"};
    MenuItem mnuEntry{mnuHead, "mnuEntry", "&Entry"};
    MenuItem mnuExit{*this, "mnuExit", "E&xit"};
    TextBox txtA{*this, "txtA"};
    TextBox txtB{*this, "txtB"};
    ControlArray<TextBox> txtFlow{*this, "txtFlow", {0, 2}};
    TextBox txtLocked{*this, "txtLocked"};
    CheckBox chkEntry{*this, "chkEntry", "With entry"};
    ControlArray<OptionButton> optKind{*this, "optKind", {1, 2}, ""};
    ListBox lstFluid{*this, "lstFluid"};
    ListBox lstMany{*this, "lstMany"};
    Grid grdTable{*this, "grdTable"};
    Frame fraHidden{*this, "fraHidden"};
    TextBox txtHidden{fraHidden, "txtHidden"};
    CommandButton cmdOff{*this, "cmdOff", "Off"};
    CommandButton cmdDialog{*this, "cmdDialog", "Dialog"};
    CommandButton cmdAsk{*this, "cmdAsk", "Ask"};
    CommandButton cmdEndless{*this, "cmdEndless", "Endless"};
    CommandButton cmdFails{*this, "cmdFails", "Fails"};
    CommandButton cmdFile{*this, "cmdFile", "File"};
    CommandButton cmdSave{*this, "cmdSave", "Save"};
    CommandButton cmdFont{*this, "cmdFont", "Font"};
    CommandButton cmdColour{*this, "cmdColour", "Colour"};
    CommandButton cmdPrinter{*this, "cmdPrinter", "Printer"};
    Label lblResult{*this, "lblResult"};
    Label lblAfter{*this, "lblAfter"};
};

inline void RegisterProvingForms() {
    RegisterForm("frmTRProg", [] { return std::unique_ptr<Form>(std::make_unique<ProvingForm>()); });
    RegisterForm("frmDialog", [] { return std::unique_ptr<Form>(std::make_unique<ProvingDialog>()); });
}

}  // namespace quillmetra
