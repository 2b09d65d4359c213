// The editor of the data tables: a table in a grid, a strip of boxes for the row in hand, and the notes of
// the column whose box has the focus. It edits the table of Suite.TableKind; what it reads and writes is in
// tables/TableSheet.h.
//
// The row in hand is the one that a pending edit goes to. Before a row is clicked or recalled it is the next
// free one, so that what is typed into the empty boxes becomes a new row.
//
// The cells are edited in the grid too, one by one or in ranges: TableCells.cpp.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/SuiteForm.h"
#include "forms/TableHistory.h"
#include "tables/TableSheet.h"

namespace quillmetra {

// Shows the editor with a table, by its key word, until the user leaves it. A table that cannot be read is
// told and not shown.
void EditTable(std::string_view keyWord, const TableVariant& variant = {});

class frmTables : public SuiteForm {
public:
    frmTables();

    void Load() override;
    void CloseBox() override { cmdCancelGrid_Click(); }

    MenuItem mnuEdit{*this, "mnuEdit", "Edi&t"};
    MenuItem mnuUndo{mnuEdit, "mnuUndo", "&Undo"};
    MenuItem mnuRedo{mnuEdit, "mnuRedo", "&Redo"};
    MenuItem mnuCut{mnuEdit, "mnuCut", "Cu&t"};
    MenuItem mnuCopy{mnuEdit, "mnuCopy", "&Copy"};
    MenuItem mnuPaste{mnuEdit, "mnuPaste", "&Paste"};
    MenuItem mnuEmpty{mnuEdit, "mnuEmpty", "&Empty cells"};
    MenuItem mnuPasteRows{mnuEdit, "mnuPasteRows", "Paste as &new rows"};
    MenuItem mnuInsertRows{mnuEdit, "mnuInsertRows", "&Insert empty rows"};
    MenuItem mnuDeleteRows{mnuEdit, "mnuDeleteRows", "&Delete rows"};
    MenuItem mnuFilter{mnuEdit, "mnuFilter", "&Filter"};

    Label lblHeading{*this, "lblHeading"};
    Label lblFilter{*this, "lblFilter", "&Quick filter"};
    TextBox txtFilter{*this, "txtFilter"};
    Label lblShown{*this, "lblShown"};
    Grid grdTable{*this, "grdTable"};

    // One box a column of the table; those that it does not have are hidden.
    ControlArray<Label> lblColumn{
        *this, "lblColumn", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17}, ""};
    ControlArray<TextBox> txtHole{
        *this, "txtHole", {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17}};

    Frame picValveNotes{*this, "picValveNotes"};
    Label lblNote1{picValveNotes, "lblNote1"};
    Label lblNote2{picValveNotes, "lblNote2"};
    Label lblNote3{picValveNotes, "lblNote3"};
    CommandButton cmdCancel{picValveNotes, "cmdCancel", "Cancel"};

    Label lblRecall{*this, "lblRecall", "Row &number"};
    TextBox txtRecall{*this, "txtRecall"};
    CommandButton cmdRecall{*this, "cmdRecall", "&Recall row"};
    CommandButton cmdLoadRow{*this, "cmdLoadRow", "&Load row"};
    CommandButton cmdInsertRow{*this, "cmdInsertRow", "&Insert row"};
    CommandButton cmdDeleteRow{*this, "cmdDeleteRow", "&Delete row"};
    Label lblRow{*this, "lblRow", "Row in the boxes:"};
    Label lblRowNum{*this, "lblRowNum"};
    CommandButton cmdClear{*this, "cmdClear", "&Clear"};
    CommandButton cmdSaveGrid{*this, "cmdSaveGrid", "&Save file"};
    CommandButton cmdReloadGrid{*this, "cmdReloadGrid", "R&eload file"};
    CommandButton cmdCancelGrid{*this, "cmdCancelGrid", "E&xit"};

    void grdTable_Click();
    void txtHole_Change();
    void txtHole_KeyPress(int index, Key& key);
    void txtHole_GotFocus(int index);
    void txtHole_LostFocus();
    void cmdRecall_Click();
    void cmdLoadRow_Click();
    void cmdClear_Click();
    void cmdInsertRow_Click();
    void cmdDeleteRow_Click();
    void cmdSaveGrid_Click();
    void cmdReloadGrid_Click();
    void cmdCancelGrid_Click();
    void cmdCancel_Click();
    void mnuUndo_Click();
    void mnuRedo_Click();
    void mnuCopy_Click() const;
    void mnuPaste_Click();
    void mnuEmpty_Click();
    void mnuPasteRows_Click();
    void mnuInsertRows_Click();
    void mnuDeleteRows_Click();
    void txtFilter_KeyPress(Key& key);
    void grdTable_KeyPress(Key& key);

    // False before a table has been read.
    bool HasTable() const { return !TableFile.empty(); }

    std::string TableFile;  // the full path, in the suite's words
    int CurrentRow = 0;     // the row in hand, which may be the one behind the last
    int NoteColumn = 0;     // of the box that had the focus last, from 1
    std::string RowEdited;  // "Yes" from a change of a box until the boxes are stored or replaced
    // "Yes" from a change of a box until the next save. A recall takes that back, but not what was stored in
    // the grid: this GridChanged tells.
    std::string FileEdited, GridChanged;

private:
    TableVariant Variant() const;
    bool ReadTableFile();
    void ShowTable(const TableSheet& sheet);
    void ShowHeadings();
    void EnableWork(bool works);
    void HookCells();
    std::vector<Grid::Head> Heads() const;
    // An act that may change the grid, as a step that can be undone.
    Handler Step(void (frmTables::*act)());
    void TakeStep();
    void ShowStep(const CellRange& rows, const char* what);
    void TakeBackBoxes();

    // The range of the grid, without its heading; nothing selected is the first row that shows.
    CellRange CellsInHand() const;
    std::vector<int> ShownRows(int first, int last) const;
    void TypeCell(int row, int column, const std::string& text);
    // Where as many rows may be put in: before a row, in the table of materials after all, on Yes.
    std::optional<int> PlaceForRows(int row);
    void PutIn(int row, std::vector<Grid::Cells> rows);
    void PasteOver(const std::vector<Grid::Cells>& copied);
    bool AddPasted(const std::vector<Grid::Cells>& copied, const CellRange& range);
    // What the grid has there now goes to the boxes too, unless they hold an edit of their own.
    void RenewBoxes(int row);
    // The state of the table, after a change of these rows.
    void TellRows(int first, int count, const std::string& done);
    void ApplyFilter();

    int RowCount() const { return grdTable.RowCount(); }
    // The typed row number: text and negative numbers are 0, a fraction goes to the even neighbour.
    int TypedRow() const;
    // The typed row when the grid has it; nothing, with a message, when it has not.
    std::optional<int> RowOfGrid() const;
    void TakeInHand(int row);
    void ShowRow(int row);
    void ClearBoxes();
    Grid::Cells CellsOfBoxes() const;
    void StoreRow();
    // Asks whether the boxes, when they were changed, go to the row in hand. The answer No lets the act go
    // on.
    void StorePending(const std::string& row, const char* ending);
    void AddRow(int row);
    // Tells what a save would leave out for good.
    void TellLostLines() const;
    // "; 2 rows without a name were left out", of the save just done; empty for none.
    std::string RowsLeftOut() const;
    std::vector<TableFields> FieldsOfGrid() const;
    std::string WarningOfRow(const TableFields& fields) const;
    std::string WarningOfGrid() const;
    // False when the file could not be written; a save that the user declines is none.
    bool Save(Answer preset);

    const TableDescription* table_ = nullptr;
    std::vector<LostLine> lost_;
    bool copying_ = false;  // boxes are filled by the form and not by the user
    TableHistory history_{grdTable};
};

}  // namespace quillmetra
