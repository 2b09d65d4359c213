// The columns of a record as a spreadsheet has them, one table for both directions: the export writes the
// cells of all of them, the import looks a column up by its head and sets the field of its table. A new field
// of the database, and a new extra, gets its column by itself.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "records/RecordExtras.h"
#include "records/RecordTables.h"

namespace quillmetra {

enum class ColumnKind : std::uint8_t {
    Head,     // tag, fluid, basis, names, dates, notes, codes
    Unit,     // names and factors
    Input,    // of the program
    Result,   // of the program
    Setting,  // "Calculation Settings"
    Mixture,  // percentages and rows of the components
    Extra     // "Calculation Extras"
};

struct FieldPlace {
    const RecordTable* Table = nullptr;
    std::size_t Field = 0;

    bool operator==(const FieldPlace&) const = default;
};

struct RecordColumn {
    std::string Name;  // its head, which occurs once
    ColumnKind Kind = ColumnKind::Head;
    FieldPlace At;  // no table for an extra: the field is its number in RecordExtras
    // Fields of the other tables that a save writes alike, as the tag; they have no column of their own.
    std::vector<FieldPlace> Copies = {};

    bool IsExtra() const { return At.Table == nullptr; }
    const std::string& FieldName() const;
    FieldType Type() const;  // of the field; an extra is a text
    bool IsNumber() const;   // of a few fields that keep theirs as a text too
    // Whether a record of a program may have a value here; of no program (0) it may anywhere.
    bool IsOf(int program) const;
};

// Those that an export has always had come first: the head, the names of the units, the results, the extras.
// Behind them stand all other fields, table by table. A name that is there already gets the name of its
// table in front, and so do the other cases of its quantity: "Pressure Drop Case 1 Viscosity".
const std::vector<RecordColumn>& RecordColumns();

// A column by its head, in whatever case of letters; null when there is none. For a program a field of its
// own tables goes by its short name too: "Case 1 Viscosity" of a line is that of the line.
const RecordColumn* FindColumn(std::string_view name, int program = 0);

// A spreadsheet takes a text that begins with = + - or @ for a formula. In a cell an apostrophe stands before
// such a text, if it is no number, and before one that has the apostrophe itself.
std::string CellOfText(const std::string& text);
std::string TextOfCell(const std::string& cell);

}  // namespace quillmetra
