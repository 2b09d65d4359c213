// See frmTRProg.h: the table of all records, and what is done with the rows that are selected in it.
#include <algorithm>

#include "core/Suite.h"
#include "forms/frmCompare.h"
#include "forms/frmRecalculate.h"
#include "forms/frmTRProg.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/KeyOrder.h"
#include "platform/Keys.h"
#include "platform/NumberText.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {
constexpr std::size_t LongestFilter = 60;
constexpr std::size_t NamedTags = 5;  // of those that are to be deleted
}  // namespace

void frmTRProg::HookTable() {
    grdRecords.FixedColumns = 0;
    grdRecords.IsList = true;
    grdRecords.PopUp = &mnuManage;
    grdRecords.ColourGroup = 4;
    grdRecords.Describe(&fraRecords);
    txtFilter.ColourGroup = 2;
    txtFilter.MaxLength = LongestFilter;
    txtFilter.Describe(&lblFilter);
    txtFilter.SetToolTip("Shows the records that have these words in one column or another");
    txtFilter.Change = [this] { txtFilter_Change(); };
    txtFilter.KeyPress = [this](Key& key) { txtFilter_KeyPress(key); };
    grdRecords.Click = [this] { grdRecords_Click(); };
    grdRecords.DoubleClick = [this] { cmdDisplayCalc_Click(); };
    grdRecords.KeyPress = [this](Key& key) { grdRecords_KeyPress(key); };
    mnuShowRecord.Click = [this] { cmdDisplayCalc_Click(); };
    mnuCopyRecord.Click = [this] { mnuCopyRecord_Click(); };
    mnuCompareRecords.Click = [this] { mnuCompareRecords_Click(); };
    mnuPrintRecords.Click = [this] { mnuPrintRecords_Click(); };
    mnuExportRecords.Click = [this] { mnuExportRecords_Click(); };
    mnuRecalculate.Click = [this] { mnuRecalculate_Click(); };
    mnuRecalculateAll.Click = [this] { mnuRecalculateAll_Click(); };
    mnuDeleteRecords.Click = [this] { cmdDelete_Click(); };
    mnuFindRecord.Click = [this] { txtFilter.SetFocus(); };
}

// --- What it shows -----------------------------------------------------------------------------------------

void frmTRProg::ShowTable() {
    heads_.clear();
    for (int column = 0; column < RecordLine::Columns; ++column) heads_.push_back(list_.Head(column));
    grdRecords.SetSource(
        list_.Rows() + 1, RecordLine::Columns, [this](int row, int column) -> const std::string& {
            return row == 0 ? heads_[static_cast<std::size_t>(column)] : list_.Cell(row - 1, column);
        });
    const std::string total = Counted(static_cast<std::size_t>(list_.Total()), "record");
    if (view_ == nullptr) return lblShown.SetCaption("");
    lblShown.SetCaption(list_.Rows() == list_.Total() ? total
                                                      : std::to_string(list_.Rows()) + " of " + total);
}

// A database that is damaged in part is walked as far as it goes, without its table.
void frmTRProg::RenewTable() {
    try {
        if (list_.Take(view_->Lines())) ShowTable();
    } catch (const RuntimeError& error) {
        list_.Clear();
        ShowTable();
        SetStatus(error.Description);
    }
}

void frmTRProg::MarkRow() {
    const int row = list_.RowOf(static_cast<std::size_t>(view_->Position() - 1)) + grdRecords.FixedRows;
    if (row < grdRecords.FixedRows) return grdRecords.Deselect();
    if (row != grdRecords.Selected()) grdRecords.Preselect(row, 0);
}

void frmTRProg::EnableTable(bool any) {
    for (Control* control : std::initializer_list<Control*>{
             &txtFilter, &grdRecords, &mnuShowRecord, &mnuCopyRecord, &mnuCompareRecords, &mnuPrintRecords,
             &mnuExportRecords, &mnuDeleteRecords, &mnuFindRecord, &mnuRecalculate, &mnuRecalculateAll}) {
        control->SetEnabled(any);
    }
}

void frmTRProg::txtFilter_Change() {
    list_.Filter(txtFilter.Text());
    if (view_ == nullptr) return;
    ShowTable();
    MarkRow();
}

// Down and Enter go on to the rows that were found.
void frmTRProg::txtFilter_KeyPress(Key& key) {
    if (key.Name == keys::Escape && !txtFilter.Text().empty()) {
        key.Handled = true;
        return txtFilter.SetText("");
    }
    if ((key.Name != keys::Down && key.Name != keys::Enter) || list_.Rows() == 0) return;
    key.Handled = true;
    if (grdRecords.Selected() < grdRecords.FixedRows) grdRecords.Select(grdRecords.FixedRows, 0);
    grdRecords.SetFocus();
}

// --- What is done in it ------------------------------------------------------------------------------------

void frmTRProg::grdRecords_Click() {
    const int row = grdRecords.Selected() - grdRecords.FixedRows;
    if (row < 0) {
        list_.SortBy(grdRecords.SelectedColumn());
        ShowTable();
        return MarkRow();
    }
    if (!view_->Find(list_.Cell(row, RecordLine::Tag))) Tell("Not found", Suite.DatabaseFile);
    ShowRecord();
}

void frmTRProg::grdRecords_KeyPress(Key& key) {
    key.Handled = key.Name == keys::Enter || key.Name == keys::Delete;
    if (key.Name == keys::Enter) cmdDisplayCalc_Click();
    if (key.Name == keys::Delete) cmdDelete_Click();
}

std::vector<std::string> frmTRProg::PickedTags() const {
    std::vector<std::string> tags;
    for (const int row : grdRecords.Picked()) {
        tags.push_back(list_.Cell(row - grdRecords.FixedRows, RecordLine::Tag));
    }
    if (tags.empty() && view_->HasRecord()) tags.push_back(view_->Head().Tag);
    return tags;
}

// Those that are still shown; a single one is marked already.
void frmTRProg::PickAgain(const std::vector<std::string>& tags) {
    if (tags.size() < 2 || grdRecords.Selected() < grdRecords.FixedRows) return;
    const std::vector<std::string>& all = view_->Tags();
    std::vector<int> rows;
    for (const std::string& tag : tags) {
        const auto isBefore = [](const std::string& a, const std::string& b) {
            return CompareKeys(a, b) < 0;
        };
        const auto found = std::ranges::lower_bound(all, tag, isBefore);
        if (found == all.end() || CompareKeys(*found, tag) != 0) continue;
        const int row = list_.RowOf(static_cast<std::size_t>(found - all.begin()));
        if (row >= 0) rows.push_back(row + grdRecords.FixedRows);
    }
    if (rows.size() > 1) grdRecords.PickRows(std::move(rows), grdRecords.Selected());
}

bool frmTRProg::AskDelete(const std::vector<std::string>& tags) {
    std::string what = "Delete Tag Number:  " + tags.front();
    if (tags.size() > 1) {
        what = "Delete " + Counted(tags.size(), "record") + ":  " + tags.front();
        for (std::size_t i = 1; i < std::min(tags.size(), NamedTags); ++i) what += ", " + tags[i];
        if (tags.size() > NamedTags) what += ", ...";
    }
    return AskYesNo(what + "\n\nAre you sure?", "Confirm Record Delete", Icon::None, Answer::No);
}

void frmTRProg::mnuRecalculate_Click() { RecalculateTags(PickedTags()); }
void frmTRProg::mnuRecalculateAll_Click() { RecalculateTags(view_->Tags()); }

void frmTRProg::RecalculateTags(const std::vector<std::string>& tags) {
    if (tags.empty() || !RecalculateRecords(tags)) return;
    RenewTable();
    ShowRecord();
}

void frmTRProg::mnuCopyRecord_Click() {
    const std::string title = "Copy " + view_->Head().Tag;
    const std::string tag(Trim(AskText("Tag number of the copy", title)));
    if (tag.empty()) return;
    try {
        CopyRecord(Suite.DatabaseFile, view_->Head().Tag, tag);
    } catch (const RuntimeError& error) {
        return Tell(error.Description, title, Icon::Stop);
    }
    view_->Find(tag);
    ShowRecord();
    TellBackupTrouble();
}

void frmTRProg::mnuCompareRecords_Click() {
    const std::vector<std::string> tags = PickedTags();
    if (tags.size() != 2)
        return Tell("Select two records in the table first: Ctrl with a click, or Shift with an arrow",
                    "Compare");
    UnloadForm("frmCompare");
    if (static_cast<frmCompare&>(LoadForm("frmCompare")).Take(tags[0], tags[1]))
        ShowForm("frmCompare", Modal::Yes);
    else
        UnloadForm("frmCompare");
}

void frmTRProg::mnuPrintRecords_Click() { PrintTags(PickedTags()); }

void frmTRProg::mnuExportRecords_Click() { ExportTags(PickedTags()); }

}  // namespace quillmetra
