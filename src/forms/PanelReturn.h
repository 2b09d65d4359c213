// What the unit window and the options panel have in common when they close: the conversion of the record,
// the refresh of the calculation, and the way back to it.
#pragma once

namespace quillmetra {

class CalculationForm;
class SuiteForm;
class UnitChange;

// Commits the change and refreshes the form. With NoConversion "Yes" all results are blanked, since they no
// longer belong to the inputs.
void ConvertToNewUnits(UnitChange& change);

// Blanks the results of the open calculation, while a panel is open over it too.
void BlankAllResults();

// The calculation form takes input again, with its calculate buttons; NoConversion and OptionsLoaded end.
void ReturnToCalculation();

// The open calculation form; null when there is none.
CalculationForm* OpenCalculation();

// Writes the user's units and says so in the status line of the form, or in a box when it fails.
void SaveUserUnits(SuiteForm& form);

}  // namespace quillmetra
