// The data tables of the suite as data: what a table is called, how its lines are split, and what the editor
// says about each column. The one table editor serves the whole suite, so tables that no calculation of this
// program reads are described as well.
//
// Layout on disk, common to all: a heading line, then one line a row; fields end at commas and may be padded
// with blanks; the first field names the row.
#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

namespace quillmetra {

using NoteLines = std::array<std::string, 3>;

struct TableColumn {
    std::string_view Name;
    std::array<std::string_view, 3> Notes{};  // what the editor shows while the column's box has the focus
    std::string_view Head{};  // the name in full, with its unit; empty where the name says all
};

// Which rows the editor writes back.
enum class KeptRows {
    Named,           // those whose first field is not empty
    NamedInColumns,  // those with something in one of the columns 1 to 4
    All
};

// Texts may hold "{file}" and "{model}", which TableTitle and its like replace.
struct TableDescription {
    std::string_view KeyWord;
    std::string_view Title;
    std::string_view Heading;
    std::string_view FileName;  // below the folder of the tables; empty when the caller names the file
    std::span<const TableColumn> Columns;
    int MinimumLength;  // characters; a shorter line is no row
    int SplitLimit;     // characters; a line not longer than this has empty fields
    int NameWidth;      // characters to which the first field is padded when saved, 0 for no padding
    bool TrimsFields;   // the splitter takes the blanks off, else it keeps them
    KeptRows Kept;
    std::string_view Separator;  // written after each field
    // What a saved calculation has room for of a row, in characters; 0 where it keeps nothing of it.
    std::size_t LongestName = 0, LongestLine = 0;
    // The columns of numbers, counted from 1; none where a calculation of this program reads none.
    int FirstNumber = 0, LastNumber = 0;

    int ColumnCount() const { return static_cast<int>(Columns.size()); }
};

namespace table {
extern const TableDescription Valve, Valve3, Gas, Liquid, Pipe, PipeFamily, Modulus, Material, Wedge,
    Rotameter, Ifoa, Annubar, Elbow, Criteria;
}  // namespace table

// The words that end heading and notes of an annubar table, one for each group of models.
inline constexpr std::array<std::string_view, 5> AnnubarModels = {
    "Model 10", "Models 15 and 16", "Models 25 and 26", "Models 35 and 36", "Models 45 and 46"};

// What only the caller of a table knows about it: the file of a valve, annubar or pipe family's table, the
// annubar's model.
struct TableVariant {
    std::string_view FileName{};
    std::string_view Model{};
};

// The table of an editor's key word; null when there is none.
const TableDescription* FindTable(std::string_view keyWord);

// Whether a table's file is named so, in whatever case.
bool IsTableFile(std::string_view fileName);

std::string TableTitle(const TableDescription& table, const TableVariant& variant = {});
std::string TableHeading(const TableDescription& table, const TableVariant& variant = {});

// The head of a column in full, counted from 1, with the unit of its numbers.
std::string_view TableHead(const TableDescription& table, int column);

// The notes of a column, counted from 1; empty lines for a column that the table does not have.
NoteLines TableNotes(const TableDescription& table, int column, const TableVariant& variant = {});

// The full path of a table's file, in the suite's words. The file name is the table's own unless the variant
// gives one.
std::string TablePath(const TableDescription& table, const TableVariant& variant = {});

}  // namespace quillmetra
