// The user's own unit sets, one for liquids and one for gases, and their file TRUNS.txt in the folder of
// user units (DefaultPaths[2]):
//
//   liquid basis, liquid unit set, ten pairs of name and factor; the same for gas; pressure mode, density
//   mode, barometric pressure (psia). One value a line, 47 lines.
//
// In a set a factor of 0 tells that there is no unit; such a factor never enters the record.
#pragma once

namespace quillmetra {

// UnitSetName of the user's set and of units picked one by one.
inline constexpr const char* SelectedUnitsName = "User selected units";

// Reads the file into the user sets and takes bases, unit sets, modes and barometer into the record: the
// start of a new calculation. A missing, cut or damaged file empties the user sets, puts the record on
// English units and row 0 on lb/h, and gives false.
bool ReadUserUnits();

// Reads the file into the user sets alone: no mode, basis or unit of the record changes. False, with the
// user sets empty, for a missing, cut or damaged file. For a choice of set 5 in the midst of a calculation.
bool ReadUserUnitSets();

// Writes the file, whole or not at all; false when it cannot be written. Pressure mode and barometer are
// those of the record, and so are unit set and density mode of the record's fluid; those of the other fluid
// stay as they were read.
bool WriteUserUnits();

// Puts the record on the user set of its fluid type: units, flow basis (the old one becomes the previous),
// unit set 5, its name, standard conditions. Rows that the file does not hold go by the family of the
// pressure unit, English or SI. The ending of the pressure unit follows the mode in force. No value of a
// case is converted. False, with nothing changed, when the set holds no flow unit.
bool TakeUserUnitSet();

// Makes the record's units and basis the user set of its fluid type (rows 1 to 27 of a liquid, 0 to 27 of a
// gas). A liquid's row 5 takes the density unit; a gas's row 13 takes row 7, so who changed row 13 alone
// brings row 7 along first. Writes nothing.
void StoreUserUnitSet();

}  // namespace quillmetra
