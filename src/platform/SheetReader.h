// Tables as spreadsheets keep them, row by row: values separated by commas, semicolons or tabs in whatever
// coding, and workbooks (XLSX) of any number of sheets. A file that is damaged, too large or no table is a
// RuntimeError with words for the user, which name the row where there is one.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

struct SheetCell {
    // An Error is one of the spreadsheet's own, as #DIV/0!, or a formula whose value was not saved.
    enum class Kind { Text, Number, Truth, Error, Date };
    int Column = 0;  // from 0 on
    Kind Of = Kind::Text;
    std::string Text;              // as it reads; a date as 2026-11-26
    std::optional<double> Number;  // also of a text that is one in the file's own way of writing
};

struct SheetRow {
    int Number = 0;                // from 1 on, as a spreadsheet counts
    std::vector<SheetCell> Cells;  // those that hold something
};

// "A", "Z", "AA"
std::string ColumnLetters(int column);

// The first row of a sheet has its heads in it, or whatever it has: rows without any cell are left out.
class SheetTaker {
public:
    virtual ~SheetTaker() = default;
    // A sheet follows; false leaves it out. A file of separated values is one sheet without a name.
    virtual bool TakeSheet(const std::string& name, bool decimalCommas) = 0;
    // False ends the reading.
    virtual bool TakeRow(const SheetRow& row) = 0;
    // Cells that the sheet shows as one, "B4:C6", told behind its rows: the value stands in the first.
    virtual void TakeMerged(const std::string&) {}
};

// Whether this build reads workbooks.
bool ReadsWorkbooks();

void ReadSheets(std::string_view suitePath, SheetTaker& taker);

}  // namespace quillmetra
