// See frmPrintControl.h. The run over the records is in PrintRun.cpp.
#include "forms/frmPrintControl.h"

#include <algorithm>
#include <utility>

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "forms/RecordInHand.h"
#include "platform/Clock.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "records/Backups.h"
#include "records/RecordFiles.h"
#include "records/SaveRecord.h"
#include "records/TextLengths.h"

namespace quillmetra {

namespace {

constexpr std::size_t FirstTitle = 2;  // of the heading lines

using Headings = Row<std::string, 11>;

// How FieldData moves, by the word that it is given.
struct Move {
    const char* Word;
    void (RecordView::*Go)();
};
constexpr Move Moves[] = {{"First", &RecordView::First},
                          {"Previous", &RecordView::Previous},
                          {"Next", &RecordView::Next},
                          {"Last", &RecordView::Last}};

bool MoveBy(RecordView& view, const std::string& word) {
    if (word == words::Select) return view.Find(Calc.Tag);
    for (const Move& move : Moves) {
        if (word == move.Word) (view.*move.Go)();
    }
    return view.HasRecord();
}

}  // namespace

frmPrintControl::frmPrintControl() : SuiteForm("frmPrintControl") {
    SetCaption(Suite.VersionText + "Process Data Calculation printouts");
    DefaultButton = &cmdProceed;
    CancelButton = &cmdCancelPrint;
    lstTags.Multiple = true;
    lstTags.Describe(&fraTags);
    barProgress.Describe(&fraTags);
    txtPrintoutDate.Locked = true;  // what is printed goes by the tick beside it
    txtPrintoutDate.TabStop = false;
    barProgress.SetVisible(false);
    const struct {
        TextBox& Box;
        Label& Name;
    } fields[] = {{txtPrintoutDate, lblPrintoutDate},
                  {txtTitle, lblTitle},
                  {txtSubTitle, lblSubTitle},
                  {txtProjectName, lblProjectName},
                  {txtProjectNo, lblProjectNo}};
    for (const auto& field : fields) {
        field.Box.Describe(&field.Name);
        field.Box.ColourGroup = field.Box.Locked ? 4 : 2;
        field.Box.MaxLength = longest::Heading;
    }
    for (Control* control : std::initializer_list<Control*>{&chkPrintDate, &txtPrintoutDate}) {
        control->SetToolTip("Not ticked, each page has the date of its calculation");
    }
    lstTags.ColourGroup = 4;
    for (Control* control : Controls()) {
        const ControlKind kind = control->Kind();
        if (kind == ControlKind::Frame || kind == ControlKind::Label || kind == ControlKind::CheckBox) {
            control->ColourGroup = 1;
        }
    }

    cmdNone.Click = [this] { cmdNone_Click(); };
    cmdAll.Click = [this] { cmdAll_Click(); };
    lstTags.Click = [this] { lstTags_Click(); };
    chkPrintDate.Click = [this] { chkPrintDate_Click(); };
    chkUse.Click = [this] { chkUse_Click(); };
    cmdTitleDefault.Click = [this] { cmdTitleDefault_Click(); };
    cmdDefaultTitles.Click = [this] { cmdDefaultTitles_Click(); };
    cmdSaveInDb.Click = [this] { cmdSaveInDb_Click(); };
    cmdProceed.Click = [this] { cmdProceed_Click(); };
    cmdPdf.Click = [this] { cmdPdf_Click(); };
    cmdCancelPrint.Click = [this] { cmdCancelPrint_Click(); };
}

void frmPrintControl::Load() {
    ApplyColours(*this);
    cmdNone_Click();
}

// --- The records -------------------------------------------------------------------------------------------

// Lists the tags anew, with none of them picked.
void frmPrintControl::cmdNone_Click() {
    lstTags.Clear();
    ClearPrintData();
    view_.reset();
    try {
        if (!Suite.DatabaseFile.empty()) view_ = std::make_unique<RecordView>(Suite.DatabaseFile);
        if (view_ != nullptr) lstTags.SetRows(view_->Tags());
    } catch (const RuntimeError& error) {
        Tell(error.Description, Suite.DatabaseFile, Icon::Stop);
    }
    lblNumRecords.SetCaption(std::to_string(lstTags.RowCount()));
    lblCurrentRecord.SetCaption("");
}

void frmPrintControl::cmdAll_Click() {
    Calc.MessageText = words::Bypass;
    lstTags.PickAll();
}

void frmPrintControl::PickTags(const std::vector<std::string>& tags) {
    for (const std::string& tag : tags) {
        const int row = view_ == nullptr ? -1 : static_cast<int>(view_->IndexOf(tag));
        if (Trim(lstTags.Row(row)) != tag) continue;
        Calc.MessageText = words::Bypass;
        lstTags.Pick(row, true);
    }
}

// The titles are those of the run, so that they stay while records are picked.
void frmPrintControl::lstTags_Click() {
    if (std::exchange(Calc.MessageText, "") == words::Bypass) return;
    if (lstTags.Selected() < 0) return;
    const Titles titles = TitleTexts();
    ClearPrintData();
    ShowTitles(titles);
    Calc.Tag = lstTags.Row(lstTags.Selected());
    Calc.MessageText = words::Select;
    FieldData();
}

void frmPrintControl::FieldData() {
    const std::string word = std::exchange(Calc.MessageText, "");
    if (view_ == nullptr || !MoveBy(*view_, word)) {
        Tell("Not found", Suite.DatabaseFile);
        return;
    }
    if (!TakeRecord(view_->Head())) return;
    if (Calc.OtherCalcs.empty()) Calc.OtherCalcs = "XXXXXX";
    ShowHead();
    chkPrintDate_Click();
}

void frmPrintControl::ShowHead() {
    const RecordHead& head = view_->Head();
    lblCurrentRecord.SetCaption(std::to_string(view_->Position()));
    Record.Show(head);
}

void frmPrintControl::ClearPrintData() {
    for (Control* control : Controls()) {
        if (control->Kind() == ControlKind::TextBox) static_cast<TextBox*>(control)->SetText("");
    }
    Calc.HeadingText.fill("");
    chkPrintDate_Click();
}

// --- The headings ------------------------------------------------------------------------------------------

frmPrintControl::Titles frmPrintControl::TitleTexts() {
    Titles titles;
    std::ranges::transform(TitleBoxes(), titles.begin(), [](const TextBox* box) { return box->Text(); });
    return titles;
}

void frmPrintControl::ShowTitles(const Titles& titles) {
    for (std::size_t i = 0; i < titles.size(); ++i) TitleBoxes()[i]->SetText(titles[i]);
}

void frmPrintControl::chkPrintDate_Click() {
    txtPrintoutDate.SetText(chkPrintDate.Checked() ? Today() : Record.txtCalcDate.Text());
}

void frmPrintControl::chkUse_Click() {
    Titles titles;
    if (chkUse.Checked()) {
        std::copy_n(Suite.DefaultHeadings.begin() + FirstTitle, titles.size(), titles.begin());
    }
    ShowTitles(titles);
}

void frmPrintControl::cmdTitleDefault_Click() {
    ReadHeadingLines(Suite.DefaultHeadings);
    Titles titles;
    std::copy_n(Suite.DefaultHeadings.begin() + FirstTitle, titles.size(), titles.begin());
    ShowTitles(titles);
}

// The other lines of the file are not on this form: the record in hand fills those that it has, and the
// others stay.
void frmPrintControl::cmdDefaultTitles_Click() {
    std::ranges::copy(TitleTexts(), Calc.HeadingText.begin() + FirstTitle);
    Headings lines;
    ReadHeadingLines(lines);
    for (std::size_t i = 1; i < lines.size(); ++i) {
        const bool isTitle = i >= FirstTitle && i < FirstTitle + TitleBoxes().size();
        if (isTitle || !Calc.HeadingText[i].empty()) lines[i] = Calc.HeadingText[i];
    }
    try {
        SaveHeadings(lines);
    } catch (const RuntimeError& error) {
        Tell(error.Description, Caption(), Icon::Stop);
        return;
    }
    Suite.DefaultHeadings = lines;
    for (TextBox* box : TitleBoxes()) box->SetColours(box->BackColour(), SlotColour(slot::InputText));
    SetStatus("Saved as default titles");
}

void frmPrintControl::cmdSaveInDb_Click() {
    if (!MustHaveDataPath(Suite.DefaultPaths[path::Database])) return;
    if (Record.txtTagNum.Text().empty()) return;
    std::ranges::copy(TitleTexts(), Calc.HeadingText.begin() + FirstTitle);
    Calc.HeadingText[heading::PrintDate] = txtPrintoutDate.Text();
    const std::string cut = CutHeadings();
    if (SaveTRCalc()) SetStatus("Saved as " + Calc.Tag + cut + BackupTrouble());
}

void frmPrintControl::cmdCancelPrint_Click() { Leave(""); }

void frmPrintControl::Leave(const std::string& said) {
    ShowForm("frmTRProg");
    if (!said.empty()) LoadForm("frmTRProg").SetStatus(said);
    UnloadForm(Name());
}

}  // namespace quillmetra
