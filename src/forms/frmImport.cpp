// See frmImport.h.
#include "forms/frmImport.h"

#include <utility>

#include "core/Suite.h"
#include "forms/ColourSchemes.h"
#include "forms/GridText.h"
#include "forms/RecordsRun.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/PathText.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

constexpr const char* FormName = "frmImport";

bool IsProblem(const ImportLine& line) {
    return line.State == ImportState::Refused || line.State == ImportState::Told;
}

}  // namespace

frmImport::frmImport() : SuiteForm(FormName) {
    SetCaption("Import records");
    DefaultButton = &cmdRead;
    CancelButton = &cmdCancel;
    grdRows.IsList = true;
    grdRows.FixedColumns = 0;
    grdRows.Describe(&lblRows);
    grdRows.ColourGroup = 4;
    for (Control* control :
         std::initializer_list<Control*>{&lblFile, &lblRows, &lblSummary, &chkProblems, &chkReplace})
        control->ColourGroup = 1;
    barProgress.Describe(&lblFile);
    barProgress.SetVisible(false);
    cmdFile.SetToolTip(
        "Chooses another list: comma separated values or a workbook, as an export writes them");
    cmdRead.SetToolTip("Checks and calculates each row as its form does; nothing is written");
    cmdSave.SetToolTip("Writes what is new, and what has changed where it may be replaced, all or none");
    chkProblems.SetToolTip("Shows the rows that are refused, and what a calculation told");
    cmdFile.Click = [this] { cmdFile_Click(); };
    cmdRead.Click = [this] { cmdRead_Click(); };
    chkProblems.Click = [this] { ShowList(); };
    chkReplace.Click = [this] { chkReplace_Click(); };
    cmdCopy.Click = [this] { cmdCopy_Click(); };
    cmdSave.Click = [this] { cmdSave_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    TabOrder = {&cmdFile, &cmdRead, &chkProblems, &grdRows, &chkReplace, &cmdCopy, &cmdSave, &cmdCancel};
    ShowList();
}

void frmImport::Load() { ApplyColours(*this); }

void frmImport::TakeFile(const std::string& file) {
    file_ = file;
    lblFile.SetCaption(CaptionOfFile(file));
    import_.reset();
    ShowList();
}

void frmImport::cmdFile_Click() {
    const std::string file = AskListFile();
    if (!file.empty()) TakeFile(file);
}

void frmImport::ShowRunning(bool running) {
    barProgress.SetVisible(running);
    for (Control* control : std::initializer_list<Control*>{&cmdFile, &cmdRead, &chkProblems, &chkReplace})
        control->SetEnabled(!running);
    for (CommandButton* button : {&cmdCopy, &cmdSave}) button->SetEnabled(false);
}

void frmImport::cmdRead_Click() {
    import_.reset();
    const bool isWhole = RunWhole(
        *this, "Reading", [this](bool running) { ShowRunning(running); }, [this] { return Run(); });
    if (!isWhole) import_.reset();
    ShowList();
}

bool frmImport::Run() {
    import_ = std::make_unique<Import>(file_);
    return import_->Run([this](int done, int all) {
        barProgress.SetProgress(done, all);
        return !UserWantsToStop();
    });
}

int frmImport::ToSave() const {
    if (import_ == nullptr) return 0;
    return import_->Count(ImportState::New) +
           (chkReplace.Checked() ? import_->Count(ImportState::Changed) : 0);
}

void frmImport::ShowList() {
    std::vector<Grid::Cells> rows = {{"Row", "Tag", "State", "Column", "What"}};
    if (import_ != nullptr) {
        for (const ImportLine& line : import_->Lines()) {
            if (chkProblems.Checked() && !IsProblem(line)) continue;
            rows.push_back({line.Row > 0 ? std::to_string(line.Row) : "", line.Tag, Word(line.State),
                            line.Column, line.Text});
        }
    }
    lblSummary.SetCaption(import_ == nullptr ? "" : import_->Summary());
    cmdCopy.SetEnabled(rows.size() > 1);
    grdRows.SetRows(std::move(rows), 5);
    chkReplace.SetEnabled(import_ != nullptr && import_->Count(ImportState::Changed) > 0);
    chkReplace_Click();
}

void frmImport::chkReplace_Click() { cmdSave.SetEnabled(ToSave() > 0); }

void frmImport::cmdCopy_Click() {
    CopyText(TabSeparated(grdRows));
    SetStatus("The table is on the clipboard");
}

void frmImport::cmdSave_Click() {
    if (ToSave() == 0) return;
    const auto added = static_cast<std::size_t>(import_->Count(ImportState::New));
    const bool replaces = chkReplace.Checked() && import_->Count(ImportState::Changed) > 0;
    std::string question = "Save " + Counted(added, "new record");
    if (replaces) question += " and replace " + std::to_string(import_->Count(ImportState::Changed));
    int count = 0;
    const auto save = [&] { count = import_->Save(replaces); };
    if (!SaveOnConsent(*this, question + "?", save)) return;
    if (Saved) Saved();
    import_.reset();
    cmdSave.SetEnabled(false);
    chkReplace.SetEnabled(false);
    SetStatus(Counted(static_cast<std::size_t>(count), "record") + " saved");
}

void frmImport::cmdCancel_Click() { UnloadForm(Name()); }

std::string AskListFile() {
    return AskFile({.Title = "Import records",
                    .Filter = ReadsWorkbooks() ? "Lists(*.csv;*.xlsx;*.txt)|*.csv;*.xlsx;*.txt"
                                               : "Lists(*.csv;*.txt)|*.csv;*.txt",
                    .Folder = Suite.DatabasePath})
        .value_or("");
}

bool ImportRecords(const std::string& file) {
    bool saved = false;
    auto& form = dynamic_cast<frmImport&>(LoadForm(FormName));
    form.TakeFile(file);
    form.Saved = [&saved] { saved = true; };
    ShowForm(FormName, Modal::Yes);
    return saved;
}

}  // namespace quillmetra
