// See frmTables.h: what is done in the grid itself, to a cell, a range or many rows; the filter; undo.
#include <algorithm>
#include <utility>

#include "core/Words.h"
#include "forms/frmTables.h"
#include "platform/Dialogs.h"
#include "platform/Keys.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

constexpr std::size_t LongestFilter = 60;
constexpr const char* RowsTitle = "Data is filed under Row Number";

std::string CountedRows(std::size_t count) { return std::to_string(count) + (count == 1 ? " row" : " rows"); }

// A field of a spreadsheet in quotes; a line break within it would end the row.
std::string Unquoted(std::string field) {
    if (field.size() > 1 && field.front() == '"' && field.back() == '"') {
        field = field.substr(1, field.size() - 2);
        for (std::size_t i = field.find("\"\""); i != std::string::npos; i = field.find("\"\"", i + 1)) {
            field.erase(i, 1);
        }
    }
    return field;
}

Grid::Cells FieldsOf(std::string_view line) {
    Grid::Cells fields;
    for (;;) {
        const std::size_t tab = line.find('\t');
        fields.push_back(Unquoted(std::string(line.substr(0, tab))));
        if (tab == std::string_view::npos) return fields;
        line.remove_prefix(tab + 1);
    }
}

// The rows of a spreadsheet: lines of fields that tabs part.
std::vector<Grid::Cells> RowsOf(std::string_view text) {
    std::vector<Grid::Cells> rows;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        rows.push_back(FieldsOf(line));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return rows;
}

// A row with copied cells in it, or with one all over the columns of the range.
Grid::Cells PastedInto(Grid::Cells row, const Grid::Cells& copied, const CellRange& range, bool fills) {
    const auto place = row.begin() + range.Left;
    const auto room = static_cast<std::size_t>(row.end() - place);
    if (fills) {
        std::fill(place, row.begin() + range.Right + 1, copied.front());
    } else {
        std::copy_n(copied.begin(), std::min(copied.size(), room), place);
    }
    return row;
}

bool HasWords(const Grid::Cells& cells, std::string_view words) {
    if (words.empty()) return true;
    std::string row;
    for (std::size_t i = 1; i < cells.size(); ++i) row += LowerCase(cells[i]) + '\t';
    const std::string wanted = LowerCase(std::string(words));
    for (std::size_t at = 0; at < wanted.size();) {
        const std::size_t end = std::min(wanted.find(' ', at), wanted.size());
        if (row.find(wanted.substr(at, end - at)) == std::string::npos) return false;
        at = end + 1;
    }
    return true;
}

}  // namespace

void frmTables::HookCells() {
    grdTable.PopUp = &mnuEdit;
    grdTable.CellTyped = [this](int row, int column, const std::string& text) {
        TypeCell(row, column, text);
    };
    grdTable.KeyPress = [this](Key& key) { grdTable_KeyPress(key); };
    grdTable.LostFocus = [this] { grdTable.TakeDraft(); };
    lblFilter.ColourGroup = lblShown.ColourGroup = 1;
    txtFilter.ColourGroup = 2;
    txtFilter.MaxLength = LongestFilter;
    txtFilter.Describe(&lblFilter);
    txtFilter.SetToolTip("Shows the rows that have these words in one column or another");
    txtFilter.Change = [this] { ApplyFilter(); };
    txtFilter.KeyPress = [this](Key& key) { txtFilter_KeyPress(key); };
    mnuUndo.Shortcut = keys::Undo;
    mnuRedo.Shortcut = keys::Redo;
    mnuCut.Shortcut = keys::Cut;
    mnuCopy.Shortcut = keys::Copy;
    mnuPaste.Shortcut = keys::Paste;
    mnuPasteRows.Shortcut = "Ctrl+Shift+V";
    mnuInsertRows.Shortcut = "Ctrl+I";
    mnuFilter.Shortcut = "Ctrl+F";
    mnuCut.SeparatorBefore = mnuPasteRows.SeparatorBefore = mnuFilter.SeparatorBefore = true;
    mnuUndo.Click = [this] { mnuUndo_Click(); };
    mnuRedo.Click = [this] { mnuRedo_Click(); };
    mnuCopy.Click = [this] { mnuCopy_Click(); };
    mnuCut.Click = [this] {
        mnuCopy_Click();
        mnuEmpty_Click();
        TakeStep();
    };
    mnuPaste.Click = Step(&frmTables::mnuPaste_Click);
    mnuEmpty.Click = Step(&frmTables::mnuEmpty_Click);
    mnuPasteRows.Click = Step(&frmTables::mnuPasteRows_Click);
    mnuInsertRows.Click = Step(&frmTables::mnuInsertRows_Click);
    mnuDeleteRows.Click = Step(&frmTables::mnuDeleteRows_Click);
    mnuFilter.Click = [this] { txtFilter.SetFocus(); };
}

std::vector<Grid::Head> frmTables::Heads() const {
    std::vector<Grid::Head> heads(1);
    for (int column = 1; table_ != nullptr && column <= table_->ColumnCount(); ++column) {
        const std::string name(TableHead(*table_, column));
        const std::size_t comma = name.find(", ");
        Grid::Head head{name.substr(0, comma), comma == std::string::npos ? "" : name.substr(comma + 2), {}};
        for (const std::string& line : TableNotes(*table_, column, Variant())) {
            if (!line.empty()) head.Tip += (head.Tip.empty() ? "" : "\n") + line;
        }
        txtHole(column).SetToolTip(name);
        lblColumn(column).SetToolTip(name);
        heads.push_back(std::move(head));
    }
    return heads;
}

// --- Undo
// ------------------------------------------------------------------------------------------------------

Handler frmTables::Step(void (frmTables::*act)()) {
    return [this, act] {
        grdTable.TakeDraft();
        (this->*act)();
        TakeStep();
    };
}

void frmTables::TakeStep() {
    history_.Take();
    mnuUndo.SetEnabled(history_.CanUndo() || IsYes(RowEdited));
    mnuRedo.SetEnabled(history_.CanRedo());
}

// What was typed into the boxes and is in no row yet goes first.
void frmTables::mnuUndo_Click() {
    grdTable.TakeDraft();
    if (IsYes(RowEdited)) return TakeBackBoxes();
    if (history_.CanUndo()) ShowStep(history_.Undo(), "Undone: ");
}

void frmTables::mnuRedo_Click() {
    if (history_.CanRedo()) ShowStep(history_.Redo(), "Done again: ");
}

void frmTables::TakeBackBoxes() {
    CurrentRow < RowCount() ? ShowRow(CurrentRow) : ClearBoxes();
    RowEdited.clear();
    if (!IsYes(GridChanged)) FileEdited.clear();
    TakeStep();
    SetStatus("Undone: what was typed into the boxes");
}

void frmTables::ShowStep(const CellRange& rows, const char* what) {
    FileEdited = GridChanged = history_.IsSaved() ? "" : words::Yes;
    const int row = std::min(rows.Top, RowCount() - 1);
    if (rows.Bottom < rows.Top) {
        ClearBoxes();
        CurrentRow = RowCount();
    } else {
        ShowRow(row);
    }
    if (row >= grdTable.FixedRows) grdTable.Preselect(row, std::max(1, grdTable.SelectedColumn()));
    TakeStep();
    SetStatus(what + ("row " + std::to_string(row)) +
              (rows.Bottom > rows.Top ? " to " + std::to_string(rows.Bottom) : ""));
}

// --- Cells
// -----------------------------------------------------------------------------------------------------

CellRange frmTables::CellsInHand() const {
    CellRange range = grdTable.Range();
    if (range.Top < 0) {
        const std::vector<int> rows = ShownRows(1, RowCount() - 1);
        const int first = rows.empty() ? 1 : rows.front();
        return {.Top = first, .Left = 1, .Bottom = first, .Right = 1};
    }
    range.Top = std::max(range.Top, grdTable.FixedRows);
    range.Left = std::max(range.Left, grdTable.FixedColumns);
    range.Bottom = std::max(range.Bottom, range.Top);
    range.Right = std::max(range.Right, range.Left);
    return range;
}

std::vector<int> frmTables::ShownRows(int first, int last) const {
    std::vector<int> rows;
    for (int row = first; row <= std::min(last, RowCount() - 1); ++row) {
        if (!grdTable.IsHidden(row)) rows.push_back(row);
    }
    return rows;
}

void frmTables::RenewBoxes(int row) {
    if (!IsYes(RowEdited)) ShowRow(row);
}

// A box with an edit of its own keeps it, unless it is that of the cell.
void frmTables::TypeCell(int row, int column, const std::string& text) {
    if (Trim(grdTable.Cell(row, column)) == Trim(text)) return;
    grdTable.SetCell(row, column, text);
    GridChanged = words::Yes;
    if (row == CurrentRow) {
        const bool copying = std::exchange(copying_, true);
        txtHole(column).SetText(text);
        copying_ = copying;
    }
    RenewBoxes(row);
    TellRows(row, 1, "");
    TakeStep();
}

void frmTables::TellRows(int first, int count, const std::string& done) {
    for (int row = first; row < std::min(first + count, RowCount()); ++row) {
        TableFields fields;
        for (int i = 1; i < grdTable.ColumnCount(); ++i)
            fields[static_cast<std::size_t>(i - 1)] = grdTable.Cell(row, i);
        const std::string warning = WarningOfRow(fields);
        if (!warning.empty()) return SetStatus("Row " + std::to_string(row) + ": " + warning);
    }
    SetStatus(done);
}

void frmTables::mnuCopy_Click() const {
    const CellRange range = CellsInHand();
    std::string text;
    for (const int row : ShownRows(range.Top, range.Bottom)) {
        for (int column = range.Left; column <= range.Right; ++column) {
            if (column > range.Left) text += '\t';
            text += Trim(grdTable.Cell(row, column));
        }
        text += '\n';
    }
    if (!text.empty()) CopyText(text);
}

void frmTables::mnuEmpty_Click() {
    const CellRange range = CellsInHand();
    const std::vector<int> rows = ShownRows(range.Top, range.Bottom);
    if (rows.empty()) return;
    for (const int row : rows) {
        Grid::Cells cells = grdTable.Rows()[static_cast<std::size_t>(row)];
        std::fill(cells.begin() + range.Left, cells.begin() + range.Right + 1, "");
        grdTable.SetRow(row, std::move(cells));
    }
    GridChanged = words::Yes;
    RenewBoxes(rows.front());
    SetStatus("");
}

// --- Many at once
// ----------------------------------------------------------------------------------------------

void frmTables::mnuPaste_Click() {
    const std::vector<Grid::Cells> copied = RowsOf(CopiedText());
    if (copied.empty()) return SetStatus("Nothing was copied that could be pasted");
    PasteOver(copied);
}

// One cell fills the whole range. Rows beyond the end are added to the table.
void frmTables::PasteOver(const std::vector<Grid::Cells>& copied) {
    const CellRange range = CellsInHand();
    const bool fills = copied.size() == 1 && copied.front().size() == 1;
    const std::vector<int> rows = ShownRows(range.Top, fills ? range.Bottom : RowCount() - 1);
    const std::size_t over = fills ? rows.size() : std::min(copied.size(), rows.size());
    const std::size_t wanted = fills ? over : copied.size();
    if (wanted == 0) return;
    if (wanted > over &&
        !AddPasted({copied.begin() + static_cast<std::ptrdiff_t>(over), copied.end()}, range))
        return;
    for (std::size_t i = 0; i < over; ++i) {
        const Grid::Cells& cells = grdTable.Rows()[static_cast<std::size_t>(rows[i])];
        grdTable.SetRow(rows[i], PastedInto(cells, copied[fills ? 0 : i], range, fills));
    }
    GridChanged = words::Yes;
    RenewBoxes(range.Top);
    const auto room = static_cast<std::size_t>(grdTable.ColumnCount() - range.Left);
    const bool isCut = std::ranges::any_of(copied, [room](const auto& from) { return from.size() > room; });
    TellRows(
        range.Top, static_cast<int>(wanted),
        CountedRows(wanted) + " pasted" + (isCut ? "; what went beyond the last column is left out" : ""));
}

// Behind the last row; false when they may not go there.
bool frmTables::AddPasted(const std::vector<Grid::Cells>& copied, const CellRange& range) {
    if (!txtFilter.Text().empty()) {
        SetStatus("There are more rows to paste than the filter shows: nothing was pasted");
        return false;
    }
    const std::optional<int> place = PlaceForRows(RowCount());
    if (!place) return false;
    const Grid::Cells empty(static_cast<std::size_t>(grdTable.ColumnCount()));
    std::vector<Grid::Cells> rows;
    rows.reserve(copied.size());
    for (const Grid::Cells& from : copied) rows.push_back(PastedInto(empty, from, range, false));
    PutIn(*place, std::move(rows));
    return true;
}

std::optional<int> frmTables::PlaceForRows(int row) {
    if (table_ != &table::Material) return row;
    if (!AskYesNo("Rows can only be added at end.  OK?", RowsTitle)) return std::nullopt;
    return RowCount();
}

// The row in hand goes with its row.
void frmTables::PutIn(int row, std::vector<Grid::Cells> rows) {
    const int count = static_cast<int>(rows.size());
    if (CurrentRow >= row) CurrentRow += count;
    if (!lblRowNum.Caption().empty()) TakeInHand(CurrentRow);
    grdTable.ReplaceRows(row, 0, std::move(rows));
    GridChanged = words::Yes;
}

void frmTables::mnuPasteRows_Click() {
    std::vector<Grid::Cells> rows = RowsOf(CopiedText());
    if (rows.empty()) return SetStatus("Nothing was copied that could be pasted");
    const int count = static_cast<int>(rows.size());
    const std::optional<int> place = PlaceForRows(CellsInHand().Top);
    if (!place) return;
    for (Grid::Cells& cells : rows) cells.insert(cells.begin(), "");
    PutIn(*place, std::move(rows));
    grdTable.PickRange(*place, 1, *place + count - 1, grdTable.ColumnCount() - 1);
    TellRows(*place, count, CountedRows(static_cast<std::size_t>(count)) + " inserted");
}

void frmTables::mnuInsertRows_Click() {
    const CellRange range = CellsInHand();
    const int count = static_cast<int>(ShownRows(range.Top, range.Bottom).size());
    const std::optional<int> place = PlaceForRows(range.Top);
    if (!place || count == 0) return;
    PutIn(*place, std::vector<Grid::Cells>(static_cast<std::size_t>(count)));
    grdTable.PickRange(*place, 1, *place + count - 1, grdTable.ColumnCount() - 1);
    SetStatus(CountedRows(static_cast<std::size_t>(count)) + " inserted");
}

void frmTables::mnuDeleteRows_Click() {
    if (table_ == &table::Material) return Tell("Rows cannot be deleted", RowsTitle);
    const CellRange range = CellsInHand();
    const std::vector<int> rows = ShownRows(range.Top, range.Bottom);
    if (rows.empty()) return;
    const std::string what =
        rows.size() == 1 ? "row" + Str(rows.front()) : "rows" + Str(rows.front()) + " to" + Str(rows.back());
    if (!AskYesNo("Delete " + what + " OK?", "Delete Row")) return;
    for (std::size_t i = rows.size(); i > 0; --i) grdTable.RemoveRow(rows[i - 1]);
    GridChanged = words::Yes;
    const bool isGone = std::ranges::find(rows, CurrentRow) != rows.end();
    const auto before = std::ranges::count_if(rows, [this](int row) { return row < CurrentRow; });
    CurrentRow = isGone ? RowCount() : CurrentRow - static_cast<int>(before);
    if (isGone) lblRowNum.SetCaption("");
    if (!lblRowNum.Caption().empty()) TakeInHand(CurrentRow);
    SetStatus(CountedRows(rows.size()) + " deleted");
}

void frmTables::grdTable_KeyPress(Key& key) {
    key.Handled = key.Name == keys::Delete || (grdTable.Draft && key.Name == keys::Escape);
    if (key.Name == keys::Escape) grdTable.Draft.reset();
    if (key.Name == keys::Delete) mnuEmpty.Click();
}

// --- Filter
// ----------------------------------------------------------------------------------------------------

// The heading has its place over all rows. What is edited stays in sight until the filter changes.
void frmTables::ApplyFilter() {
    std::vector<bool> hidden(static_cast<std::size_t>(RowCount()));
    for (int row = 1; row < RowCount(); ++row) {
        const auto place = static_cast<std::size_t>(row);
        hidden[place] = !HasWords(grdTable.Rows()[place], txtFilter.Text());
    }
    grdTable.Hide(std::move(hidden));
    const std::size_t all = static_cast<std::size_t>(std::max(0, RowCount() - 1));
    const std::size_t shown = ShownRows(1, RowCount() - 1).size();
    lblShown.SetCaption(shown == all ? CountedRows(all) : std::to_string(shown) + " of " + CountedRows(all));
}

// Down and Enter go on to the rows that were found.
void frmTables::txtFilter_KeyPress(Key& key) {
    if (key.Name == keys::Escape && !txtFilter.Text().empty()) {
        key.Handled = true;
        return txtFilter.SetText("");
    }
    const std::vector<int> rows = ShownRows(1, RowCount() - 1);
    if ((key.Name != keys::Down && key.Name != keys::Enter) || rows.empty()) return;
    key.Handled = true;
    grdTable.Preselect(rows.front(), 1);
    grdTable.SetFocus();
}

}  // namespace quillmetra
