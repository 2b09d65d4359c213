// See frmTables.h.
#include "forms/frmTables.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "core/Suite.h"
#include "core/Words.h"
#include "forms/ColourSchemes.h"
#include "platform/Dialogs.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {

constexpr int FewestRows = 5;
constexpr std::size_t ToldLines = 10;
constexpr std::size_t ToldCharacters = 40;
constexpr double MostRows = 1e9;  // more than any grid has; keeps a typed number in the range of a row

constexpr const char* ChangedTitle = "Data Changed";
constexpr const char* SizeTitle = "File Size";
constexpr const char* SaveTitle = "Save a New File";
// Records of calculations name a pipe material by its row.
constexpr const char* FiledTitle = "Data is filed under Row Number";

constexpr const char* StoreQuestion = "Load Input Data in row ";

// Sets a flag for its life.
class ScopedTrue {
public:
    explicit ScopedTrue(bool& flag) : flag_(flag) { flag_ = true; }
    ~ScopedTrue() { flag_ = false; }
    ScopedTrue(const ScopedTrue&) = delete;
    ScopedTrue& operator=(const ScopedTrue&) = delete;

private:
    bool& flag_;
};

// The fields of a row of the grid, whose first cell is the row's number.
TableFields FieldsOf(const Grid::Cells& cells) {
    TableFields fields;
    for (std::size_t i = 1; i < cells.size() && i <= fields.size(); ++i) fields[i - 1] = cells[i];
    return fields;
}

}  // namespace

void EditTable(std::string_view keyWord, const TableVariant& variant) {
    Suite.TableKind = keyWord;
    Suite.TableFileName = variant.FileName;
    Suite.TableModel = variant.Model;
    const auto& editor = static_cast<const frmTables&>(LoadForm("frmTables"));
    if (editor.HasTable()) {
        ShowForm("frmTables", Modal::Yes);
    } else {
        UnloadForm("frmTables");
    }
}

frmTables::frmTables() : SuiteForm("frmTables") {
    SetCaption("Data tables");
    DefaultButton = &cmdRecall;
    CancelButton = &cmdCancelGrid;
    cmdCancel.TabStop = false;  // a press of it must not take the focus, which would hide it under the mouse
    picValveNotes.SetVisible(false);
    grdTable.NumbersRows = true;
    grdTable.Describe(&lblHeading);
    txtRecall.Describe(&lblRecall);
    for (Label* label : {&lblHeading, &lblNote1, &lblNote2, &lblNote3, &lblRecall, &lblRow, &lblRowNum}) {
        label->ColourGroup = 1;
    }
    txtRecall.ColourGroup = 2;
    grdTable.ColourGroup = 4;
    grdTable.Click = [this] { grdTable_Click(); };
    txtHole.Each([this](TextBox& box, int index) {
        lblColumn(index).ColourGroup = 1;
        box.ColourGroup = 2;
        box.Describe(&lblColumn(index));
        box.Change = [this] { txtHole_Change(); };
        box.KeyPress = [this, index](Key& key) {
            txtHole_KeyPress(index, key);
            TakeStep();
        };
        box.GotFocus = [this, index] { txtHole_GotFocus(index); };
        box.LostFocus = [this] { txtHole_LostFocus(); };
    });
    cmdRecall.SetToolTip("From the table into the boxes: the row of that number");
    cmdLoadRow.SetToolTip("From the boxes into the table: over the row of that number");
    cmdRecall.Click = Step(&frmTables::cmdRecall_Click);
    cmdLoadRow.Click = Step(&frmTables::cmdLoadRow_Click);
    cmdClear.Click = Step(&frmTables::cmdClear_Click);
    cmdInsertRow.Click = Step(&frmTables::cmdInsertRow_Click);
    cmdDeleteRow.Click = Step(&frmTables::cmdDeleteRow_Click);
    cmdSaveGrid.Click = Step(&frmTables::cmdSaveGrid_Click);
    cmdReloadGrid.Click = [this] { cmdReloadGrid_Click(); };
    cmdCancelGrid.Click = [this] { cmdCancelGrid_Click(); };
    cmdCancel.Click = [this] { cmdCancel_Click(); };
    HookCells();
}

void frmTables::Load() {
    ApplyColours(*this);
    table_ = FindTable(Suite.TableKind);
    ShowHeadings();
    EnableWork(table_ != nullptr && ReadTableFile());
    txtRecall.SetFocus();
}

TableVariant frmTables::Variant() const {
    return {.FileName = Suite.TableFileName, .Model = Suite.TableModel};
}

void frmTables::ShowHeadings() {
    std::span<const TableColumn> columns;
    if (table_ != nullptr) {
        columns = table_->Columns;
        SetCaption(TableTitle(*table_, Variant()));
        lblHeading.SetCaption(TableHeading(*table_, Variant()));
    }
    txtHole.Each([&](TextBox& box, int index) {
        const auto column = static_cast<std::size_t>(index - 1);
        const bool exists = column < columns.size();
        box.SetVisible(exists);
        lblColumn(index).SetVisible(exists);
        if (exists) lblColumn(index).SetCaption(std::string(columns[column].Name));
    });
    grdTable.SetHeads(Heads());
}

// Without a table there is nothing to do but to try again or to leave.
void frmTables::EnableWork(bool works) {
    for (CommandButton* button :
         {&cmdRecall, &cmdLoadRow, &cmdClear, &cmdInsertRow, &cmdDeleteRow, &cmdSaveGrid}) {
        button->SetEnabled(works);
    }
    mnuEdit.SetEnabled(works);
}

// Reads the file into the grid; false, with a message and the grid as it was, when it cannot be read.
bool frmTables::ReadTableFile() {
    const std::string path = TablePath(*table_, Variant());
    try {
        const BusyPointer busy;
        ShowTable(LoadTable(*table_, Variant()));
    } catch (const RuntimeError& error) {
        Tell("File " + path.substr(path.rfind('\\') + 1) + "\n" + error.Description, Caption());
        return false;
    }
    TableFile = path;
    return true;
}

void frmTables::ShowTable(const TableSheet& sheet) {
    const auto columns = static_cast<std::size_t>(table_->ColumnCount());
    std::vector<Grid::Cells> rows(std::max<std::size_t>(FewestRows, sheet.Rows.size()));
    for (std::size_t i = 0; i < sheet.Rows.size(); ++i) {
        rows[i].resize(columns + 1);
        std::copy_n(sheet.Rows[i].begin(), columns, rows[i].begin() + 1);
    }
    grdTable.SetRows(std::move(rows), table_->ColumnCount() + 1);
    lost_ = sheet.Lost;
    ClearBoxes();
    CurrentRow = static_cast<int>(sheet.Rows.size());
    RowEdited.clear();
    FileEdited.clear();
    GridChanged.clear();
    history_.Forget();
    ApplyFilter();
    TakeStep();
}

int frmTables::TypedRow() const {
    return static_cast<int>(std::nearbyint(std::clamp(Val(txtRecall.Text()), 0.0, MostRows)));
}

std::optional<int> frmTables::RowOfGrid() const {
    const int row = TypedRow();
    if (row < RowCount()) return row;
    Tell("Maximum row number is " + Str(RowCount() - 1), SizeTitle);
    return std::nullopt;
}

void frmTables::TakeInHand(int row) {
    CurrentRow = row;
    lblRowNum.SetCaption(TrimmedStr(row));
}

void frmTables::ShowRow(int row) {
    TakeInHand(row);
    const ScopedTrue copying(copying_);
    txtHole.Each([&](TextBox& box, int index) {
        if (index < grdTable.ColumnCount()) box.SetText(grdTable.Cell(row, index));
    });
    SetStatus(WarningOfRow(FieldsOf(CellsOfBoxes())));
}

void frmTables::ClearBoxes() {
    const ScopedTrue copying(copying_);
    txtHole.Each([](TextBox& box, int) { box.SetText(""); });
    lblRowNum.SetCaption("");
    SetStatus("");
}

Grid::Cells frmTables::CellsOfBoxes() const {
    Grid::Cells cells(static_cast<std::size_t>(grdTable.ColumnCount()));
    for (int i = 1; i < grdTable.ColumnCount(); ++i) cells[static_cast<std::size_t>(i)] = txtHole(i).Text();
    return cells;
}

void frmTables::StoreRow() {
    if (CurrentRow < RowCount()) {
        grdTable.SetRow(CurrentRow, CellsOfBoxes());
    } else {
        grdTable.InsertRow(CurrentRow, CellsOfBoxes());
    }
    RowEdited.clear();
    GridChanged = words::Yes;
    SetStatus(WarningOfRow(FieldsOf(CellsOfBoxes())));
}

void frmTables::StorePending(const std::string& row, const char* ending) {
    if (!IsYes(RowEdited)) return;
    if (AskYesNo(StoreQuestion + row + ending, ChangedTitle)) StoreRow();
}

void frmTables::grdTable_Click() {
    const int row = grdTable.Selected();
    const bool dropped = IsYes(RowEdited);
    ShowRow(row);
    txtRecall.SetText(TrimmedStr(row));
    if (dropped) SetStatus("What was typed into the boxes before is in no row");
    txtHole(std::max(1, grdTable.SelectedColumn())).SetFocus();
}

namespace {
// What the file will not give back as it was typed.
const char* WarningOf(const std::string& field) {
    if (field.find(',') != std::string::npos)
        return "A comma ends a field: what follows it is the next column when the file is read again";
    if (!IsIn1252(field))
        return "The file cannot hold one of these letters: other letters will be read again";
    return "";
}
}  // namespace

std::string frmTables::WarningOfRow(const TableFields& fields) const {
    for (const std::string& field : fields) {
        if (const char* warning = WarningOf(field); *warning != '\0') return warning;
    }
    return table_ == nullptr ? "" : RowWarning(*table_, fields);
}

// The first row that the file or a calculation will not keep.
std::string frmTables::WarningOfGrid() const {
    const std::vector<TableFields> rows = FieldsOfGrid();
    for (std::size_t i = 1; i < rows.size(); ++i) {
        const std::string warning = WarningOfRow(rows[i]);
        if (!warning.empty()) return "Row " + std::to_string(i) + ": " + warning;
    }
    return "";
}

void frmTables::txtHole_Change() {
    if (copying_) return;
    RowEdited = words::Yes;
    FileEdited = words::Yes;
    mnuUndo.SetEnabled(true);
    SetStatus(WarningOfRow(FieldsOf(CellsOfBoxes())));
}

// A click on a cell leads to its box: what is pasted there in several cells is meant for the table.
void frmTables::txtHole_KeyPress(int index, Key& key) {
    if (key.Name == keys::Paste && CopiedText().find('\t') != std::string::npos) {
        key.Handled = true;
        return mnuPaste_Click();
    }
    if (key.Name != keys::Enter) return;
    key.Handled = true;
    if (!HasTable()) return;
    if (CurrentRow == RowCount()) grdTable.InsertRow(CurrentRow, {});
    grdTable.SetCell(CurrentRow, index, txtHole(index).Text());
    GridChanged = words::Yes;
}

void frmTables::txtHole_GotFocus(int index) {
    NoteColumn = index;
    const NoteLines notes = table_ == nullptr ? NoteLines{} : TableNotes(*table_, NoteColumn, Variant());
    lblNote1.SetCaption(notes[0]);
    lblNote2.SetCaption(notes[1]);
    lblNote3.SetCaption(notes[2]);
    picValveNotes.SetVisible(true);
    CancelButton = &cmdCancel;
}

void frmTables::txtHole_LostFocus() {
    picValveNotes.SetVisible(false);
    CancelButton = &cmdCancelGrid;
}

void frmTables::cmdCancel_Click() {
    txtHole_LostFocus();
    txtRecall.SetFocus();
}

void frmTables::cmdRecall_Click() {
    StorePending(Str(CurrentRow), " OK?");
    const std::optional<int> row = RowOfGrid();
    if (!row) return;
    ShowRow(*row);
    grdTable.Preselect(*row, 1);
    RowEdited.clear();
    if (!IsYes(GridChanged)) FileEdited.clear();
}

void frmTables::cmdLoadRow_Click() {
    const std::optional<int> row = RowOfGrid();
    if (!row) return;
    TakeInHand(*row);
    StorePending(TrimmedStr(*row), " OK?");
}

void frmTables::cmdClear_Click() {
    StorePending(Str(CurrentRow), " OK?");
    ClearBoxes();
    RowEdited.clear();
}

void frmTables::AddRow(int row) {
    grdTable.InsertRow(row, CellsOfBoxes());
    grdTable.Preselect(row, 1);
    TakeInHand(row);
    RowEdited.clear();
    GridChanged = words::Yes;
}

void frmTables::cmdInsertRow_Click() {
    if (table_ == &table::Material) {
        if (AskYesNo("Rows can only be added at end.  OK?", FiledTitle)) AddRow(RowCount());
        return;
    }
    StorePending(Str(CurrentRow), ". OK?");
    const int typed = TypedRow();
    if (typed == 0) return;  // the heading stays the first line
    const int row = std::min(typed, RowCount());
    if (typed > row) Tell("Next row number to add is " + Str(row), SizeTitle);
    if (AskYesNo("Insert a new row" + Str(row) + ". OK?", "Insert Row")) AddRow(row);
}

// The boxes keep what they hold, so that a row deleted here can be inserted elsewhere.
void frmTables::cmdDeleteRow_Click() {
    if (table_ == &table::Material) return Tell("Rows cannot be deleted", FiledTitle);
    StorePending(Str(CurrentRow), " OK?");
    const std::optional<int> row = RowOfGrid();
    if (!row || *row == 0) return;
    if (!AskYesNo("Delete row" + Str(*row) + " OK?", "Delete Row")) return;
    grdTable.RemoveRow(*row);
    GridChanged = words::Yes;
    if (CurrentRow == *row) {  // no other row may take what the boxes hold
        CurrentRow = RowCount();
        lblRowNum.SetCaption("");
    } else if (CurrentRow > *row) {
        --CurrentRow;
        if (!lblRowNum.Caption().empty()) TakeInHand(CurrentRow);
    }
}

std::vector<TableFields> frmTables::FieldsOfGrid() const {
    std::vector<TableFields> rows(static_cast<std::size_t>(RowCount()));
    for (int row = 0; row < RowCount(); ++row) {
        TableFields& fields = rows[static_cast<std::size_t>(row)];
        for (int i = 1; i < grdTable.ColumnCount(); ++i)
            fields[static_cast<std::size_t>(i - 1)] = grdTable.Cell(row, i);
    }
    return rows;
}

void frmTables::TellLostLines() const {
    if (lost_.empty()) return;
    std::string text =
        "These lines of the file are too short or too long for the table, or stand behind its end.\n"
        "What the grid does not show of them is lost when the file is saved:\n";
    for (std::size_t i = 0; i < std::min(lost_.size(), ToldLines); ++i) {
        text +=
            "\nline " + TrimmedStr(lost_[i].Number) + ":  " + FirstCharacters(lost_[i].Text, ToldCharacters);
    }
    if (lost_.size() > ToldLines)
        text += "\nand " + TrimmedStr(static_cast<double>(lost_.size() - ToldLines)) + " more";
    Tell(text, SaveTitle, Icon::Exclamation);
}

std::string frmTables::RowsLeftOut() const {
    const auto isEmpty = [](const std::string& field) { return Trim(field).empty(); };
    const auto isLeftOut = [&](const TableFields& row) {
        return !std::ranges::all_of(row, isEmpty) && !SavedTableLine(*table_, row);
    };
    std::vector<TableFields> rows = FieldsOfGrid();
    const auto count = std::count_if(rows.begin() + 1, rows.end(), isLeftOut);
    if (count == 0) return "";
    return "; " + std::to_string(count) +
           (count == 1 ? " row without a name was" : " rows without a name were") + " left out";
}

bool frmTables::Save(Answer preset) {
    StorePending(Str(CurrentRow), " OK?");
    TellLostLines();
    SetStatus(WarningOfGrid());
    if (!AskYesNo("Save the new file and destroy the old file?", SaveTitle, Icon::None, preset)) return true;
    try {
        const BusyPointer busy;
        SaveTable(*table_, FieldsOfGrid(), Variant());
    } catch (const RuntimeError& error) {
        Tell(error.Description, Caption());
        return false;
    }
    lost_.clear();
    FileEdited.clear();
    GridChanged.clear();
    TakeStep();
    history_.MarkSaved();
    SetStatus("Saved as " + TableFile + RowsLeftOut());
    return true;
}

void frmTables::cmdSaveGrid_Click() { Save(Answer::No); }

void frmTables::cmdReloadGrid_Click() {
    const bool changed = IsYes(FileEdited) || IsYes(GridChanged);
    if (table_ == nullptr || !ReadTableFile()) return;
    EnableWork(true);
    SetStatus(changed ? "Read again from the file; what was changed since the last save is gone" : "");
}

// A save that failed keeps the form with what it holds. Who has said here that the file is to be saved does
// not lose it by Enter at the next question.
void frmTables::cmdCancelGrid_Click() {
    const bool changed = IsYes(FileEdited) || IsYes(GridChanged);
    if (changed && HasTable() && AskYesNo("Save the new file?", ChangedTitle) && !Save(Answer::Yes)) return;
    FileEdited.clear();
    RowEdited.clear();
    GridChanged.clear();
    UnloadForm(Name());
}

}  // namespace quillmetra
