// Gauge or absolute pressure, gravity or density: the values of the record when the mode changes, as a part
// of a UnitChange: after the new units stand and before the values are converted. Both give the mode itself
// its new word: the caller does not set it before. With NoConversion "Yes" the mode changes and the values
// stay. A value that the new unit cannot express becomes 0.
#pragma once

#include <string>

namespace quillmetra {

// From PressureMode to another ("Psig", "Psia"); nothing when it is the same. Adds or takes away the
// barometric pressure, expressed in the previous unit of row 3, in row 3 of all cases, the final pressures
// and the hammer pressures, to four figures, and changes the ending of UnitName[3]. Zero stays zero. On the
// way to gauge a pressure that would round to a whole number of 0 stays as it is: a deliberate oddity. A
// BaroPressure not above 0 becomes 14.7. Nothing changes, not even the mode, when the unit's name has not the
// old ending: the values would keep the old meaning under the new word.
void ChangePressureMode(const std::string& mode);

// From LiquidDensityMode to another ("LiqSG", "LiqDen"); nothing when it is the same. Row 6 of all cases
// becomes density in the unit in force or gravity, to four figures; a density is first brought from the
// previous unit to the one in force, and unit row 6 counts as converted. A missing density unit becomes
// lb/ft3, and the user is told.
void ChangeDensityMode(const std::string& mode);

}  // namespace quillmetra
