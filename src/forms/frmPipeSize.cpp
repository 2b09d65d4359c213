// See frmPipeSize.h.
#include "forms/frmPipeSize.h"

#include <algorithm>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "forms/ColourSchemes.h"
#include "forms/ListTables.h"
#include "forms/PipeFamilyList.h"
#include "platform/Dialogs.h"

namespace quillmetra {

namespace {
constexpr const char* FileTitle = "Pipe Size file";
}  // namespace

frmPipeSize::frmPipeSize() : SuiteForm("frmPipeSize") {
    SetCaption("Pipe sizes");
    Fixed = true;
    DefaultButton = &cmdOK;
    CancelButton = &cmdCancel;

    txtNomSize.IsNumber = true;
    cmdSearch.SetToolTip("Finds a size such as 6, 0.5, 1/2 or 1 1/2");
    txtNomSize.Describe(&lblNomSize, &lblPipeUnits);
    lstPipeSize.Describe(&lblPipeSize);
    lstFamily.Describe(&lblFamily);
    for (Label* label :
         {&lblNomSize, &lblPipeUnits, &lblPipeSize, &lblConvertUnits, &lblFamily, &lblFamilyNote}) {
        label->ColourGroup = 1;
    }
    txtNomSize.ColourGroup = 2;
    lstPipeSize.ColourGroup = 4;
    lstFamily.ColourGroup = 4;
    cmdSearch.SetEnabled(false);
    lstPipeSize.SetEnabled(false);
    cmdOK.SetEnabled(false);

    txtNomSize.Change = [this] { txtNomSize_Change(); };
    txtNomSize.DoubleClick = [this] { cmdSearch_Click(); };
    cmdSearch.Click = [this] { cmdSearch_Click(); };
    lstPipeSize.Click = [this] { lstPipeSize_Click(); };
    lstPipeSize.DoubleClick = [this] { cmdOK_Click(); };
    lstFamily.Click = [this] { lstFamily_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
}

void frmPipeSize::Load() {
    ApplyColours(*this);
    const std::string& unit = Calc.UnitName[pipeunit::PipeSizeRound];  // of the list
    ShowAsTable(lstPipeSize, table::Pipe, {}, unit.empty() ? "in" : unit);
    ListFamilies(lstFamily, families_);
}

// Enter searches while the size is being typed or a family chosen, and takes the selected row afterwards.
void frmPipeSize::ControlGotFocus(Control& control) {
    SuiteForm::ControlGotFocus(control);
    DefaultButton = &control == &txtNomSize || &control == &lstFamily ? &cmdSearch : &cmdOK;
}

// A fraction is a size too; the search tells of what is none.
void frmPipeSize::ControlLostFocus(Control& control) {
    SuiteForm::ControlLostFocus(control);
    SetStatus("");
}

void frmPipeSize::txtNomSize_Change() {
    cmdSearch.SetEnabled(true);
    lstPipeSize.Clear();
}

void frmPipeSize::cmdSearch_Click() {
    lstPipeSize.Clear();
    std::vector<std::string> lines;
    try {
        const BusyPointer busy;
        lines = FindPipeSizes(txtNomSize.Text());
    } catch (const RuntimeError&) {
        Tell("File " + PipeFamilyFile(), FileTitle);
        return;
    }
    if (lines.empty()) {
        Tell("Pipe size " + txtNomSize.Text() + " is not on File", FileTitle);
        txtNomSize.SetFocus();
        return;
    }
    const int middle = static_cast<int>(lines.size()) / 2;
    lstPipeSize.SetEnabled(true);
    lstPipeSize.SetRows(std::move(lines));
    lstPipeSize.Select(middle);
    lstPipeSize.SetFocus();
}

void frmPipeSize::lstPipeSize_Click() { cmdOK.SetEnabled(true); }

void frmPipeSize::lstFamily_Click() {
    const PipeFile& family = families_.at(static_cast<std::size_t>(std::max(0, lstFamily.Selected())));
    Suite.PipeFamily = family.File;
    lblFamilyNote.SetCaption(family.Note);
    lstPipeSize.Clear();
}

void frmPipeSize::cmdOK_Click() {
    if (lstPipeSize.Selected() < 0) {
        Tell("Please find and select an item", Caption());
        txtNomSize.SetFocus();
        return;
    }
    const std::string& row = lstPipeSize.Row(lstPipeSize.Selected());
    TakePipeRow(row);
    ReturnPipeSize(PipeNameOf(row));
}

void frmPipeSize::cmdCancel_Click() { CancelPipeSize(); }

}  // namespace quillmetra
