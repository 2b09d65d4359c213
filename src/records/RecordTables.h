// The tables of the records database, one descriptor array a table: each field with its type, its size and
// its place in the record. The arrays drive create, save, load and export, so that a field is written down
// once.
//
// Numbers are stored in the units shown. Every table is keyed by the tag.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "core/CalcRecord.h"
#include "platform/Database.h"

namespace quillmetra {

// The arrays of the record.
enum class Group {
    CaseInput,
    CaseResult,
    PipeData,
    FittingCount,
    HammerResult,
    UnitFactor,
    UnitName,
    CaseText,
    HeadingText,
    FluidPercent,
    FluidData
};

// Fields that are no plain copy of one cell.
enum class Made {
    Tag,
    LiquidWord,     // "Liquid" whatever the record says
    ProgramNumber,  // program x 100 + unit set
    BasisInUse,     // of the fluid type
    Title,          // of the program; the word of steam at its end goes where the field is too short for it
    OptionCodes,    // "XXXXXXXX" for none
    Temperature,    // of a case; a box left empty is no zero
    NumberAsText,   // a number of CaseInput kept as text
    Fouling,        // a number as text of at most five characters
    ForceFactor,    // unit row 0 of the water hammer program alone
    ForceName,
};

struct Cell {
    Group Of = Group::CaseInput;
    int Row = 0;
    int Case = 0;

    bool operator==(const Cell&) const = default;
};

using TextMember = std::string CalcRecord::*;
using NumberMember = double CalcRecord::*;
using WholeMember = int CalcRecord::*;
struct Spare {  // kept for the future, never written
    bool operator==(const Spare&) const = default;
};

using Place = std::variant<Spare, Cell, Made, TextMember, NumberMember, WholeMember>;

// When a load takes the field into the record.
enum class Loads { Always, Never, ForGas, NotForGas };

struct FieldRules {
    int GasRow = -1;     // row of the cell when the fluid is a gas, where it differs
    int LiquidRow = -1;  // likewise for a liquid
    Loads Load = Loads::Always;
    const char* Unit = "";  // its field of the units, or the unit itself where that is always the same
};

struct RecordField {
    FieldShape Shape;
    Place From;
    FieldRules Rules;
    int Case = 0;  // of Made::Temperature and Made::NumberAsText
};

struct RecordTable {
    TableShape Shape;
    std::vector<RecordField> Fields;
    const char* NotFound = "";  // ends the message that a tag has no row in the table
};

// "Process Calculations", the head of each record
const RecordTable& HeadTable();
const RecordTable& UnitsTable();
const RecordTable& FluidDataTable();
const RecordTable& PressureDropTable();
const RecordTable& WaterhammerTable();
const RecordTable& MixtureTable();
// What the tables above cannot hold: direction, modes, standard conditions, the vapour pressure and density
// of a line's fluid, the latent heat of a gas at its boiling point. A database made elsewhere may lack it.
const RecordTable& SettingsTable();

// All seven in the order of their creation, the head first and the settings last.
const std::vector<const RecordTable*>& RecordTables();

// The table of a program's own row; null for a number that is no program.
const RecordTable* ProgramTable(int program);
// Whether a record of a program, with these codes of its head, has a row of its own in a table: rows of other
// programs, and of a mixture that the record is not any more, are none.
bool HasRowIn(const RecordTable& table, int program, std::string_view otherCalcs);

// The row of a cell for the fluid type in hand.
int CellRow(const RecordField& field);

}  // namespace quillmetra
