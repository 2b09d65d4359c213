// What the unit window and the options panel have in common when they close: the conversion of the record,
// the refresh of the calculation, and the way back to it.
#pragma once

#include "units/ProgramConversion.h"

namespace quillmetra {

class CalculationForm;
class SuiteForm;

// True when a unit or a basis differs from what was in force before the change.
bool UnitsHaveChanged();

// Converts the record from the previous units to the units in force and refreshes the form; with NoConversion
// "Yes" the numbers stay as they are and all results are blanked, since they no longer belong to the inputs.
// Renews the previous units. Without a change of units nothing is converted; what an earlier change has left
// unrounded is asked about again.
void ConvertToNewUnits(ZeroTemperature zero);

// Blanks the results of the open calculation, while a panel is open over it too.
void BlankAllResults();

// The calculation form takes input again, with its calculate buttons; NoConversion and OptionsLoaded end.
void ReturnToCalculation();

// The open calculation form; null when there is none.
CalculationForm* OpenCalculation();

// Writes the user's units and says so in the status line of the form, or in a box when it fails.
void SaveUserUnits(SuiteForm& form);

}  // namespace quillmetra
