// The unit lists that a user picks from, and the table of unit rows that tells which list serves which
// quantity of a calculation. A value shown times the factor of its unit is the value in the base unit; rows
// of temperature go by an offset instead, and their factors are placeholders.
#pragma once

#include <array>
#include <cstddef>
#include <string>

namespace quillmetra {

// Lists of Suite.UnitLibrary that are more than a choice of the user's; all 21 stand in UnitCatalogue.cpp.
namespace unitlist {
inline constexpr int OperatingPressure = 5;
inline constexpr int PressureDrop = 6;
}  // namespace unitlist

constexpr std::size_t LongestUnitName = 8;  // characters, as the database holds them

// Fills Suite.UnitLibrary and Suite.PressureStem with the suite's own units, line by line. It clears
// nothing: a caller that replaces a user's library calls ClearUnitLibrary first.
void LoadDefaultUnits();

// Empties all lines of all lists and of PressureStem.
void ClearUnitLibrary();

// Writes the operating pressure units (list 5) anew from PressureStem with the ending of the pressure mode:
// "a" for absolute, "g" for gauge. An empty stem gives an empty name.
void ApplyPressureSuffix();

// One row of units of a calculation record.
struct UnitRow {
    static constexpr int NoList = -1;

    // List and count of its first lines that a user may not change.
    struct Choice {
        int List = NoList;
        int ProtectedLines = 0;
    };

    int Row = 0;
    const char* Quantity = "";
    const char* Caption = "";  // of the unit button; empty where the row has none
    Choice OnMass, OnVolume;   // rows 0 and 1 change their list with the flow basis, the others do not
    const char* EnglishName = "";
    const char* SIName = "";
    double SIFactor = 1;  // the English factor is 1 throughout
};

constexpr int UnitRowCount = 28;
extern const std::array<UnitRow, UnitRowCount> UnitRows;

// The button caption of a row; that of row 3 follows the pressure mode.
std::string UnitRowCaption(int row);

// Puts rows 2 to 27 on their English (SI) units. Rows 0 and 1, the flows, belong to the named unit set. The
// name of row 3 follows the pressure mode.
void ResetEnglishUnits();
void ResetSIUnits();

// The prompts and displays that deal with a liquid's density read its unit from row 5, whose own quantity,
// the liquid time base, lives within the composite unit of row 1. Copies the density unit there: row 6 of
// the line programs in density mode, row 9 of the liquid data program. To be called after any change of
// units or of the density mode.
void CarryDensityUnit();

}  // namespace quillmetra
