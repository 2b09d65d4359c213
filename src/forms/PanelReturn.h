// What the unit window, the options panel and a choice of a unit in place have in common at their end: the
// conversion of the record, the refresh of the calculation, and the way back to it.
#pragma once

#include <functional>

#include "core/Suite.h"

namespace quillmetra {

class CalculationForm;
class SuiteForm;
class UnitChange;
class UnitPicks;

// Commits the change and refreshes the form. With NoConversion "Yes" all results are blanked, since they no
// longer belong to the inputs.
void ConvertToNewUnits(UnitChange& change);

// The picked units go into the record; false, with the record as it was and after a message, when one of them
// has no multiplier. ConvertToPicks then commits the change.
bool PutPicks(const UnitPicks& picks);
bool ConvertToPicks(const UnitPicks& picks, UnitChange& change);

// What becomes of converted figures from now on, as a user has chosen; told to a host that keeps it from one
// run to the next.
void ChooseFigures(Figures choice);
void SetFiguresKeeper(std::function<void(Figures)> keep);

// Blanks the results of the open calculation, while a panel is open over it too.
void BlankAllResults();

// The calculation form takes input again, with its calculate buttons; NoConversion and OptionsLoaded end.
void ReturnToCalculation();

// The open calculation form; null when there is none.
CalculationForm* OpenCalculation();

// Writes the user's units and says so in the status line of the form, or in a box when it fails.
void SaveUserUnits(SuiteForm& form);

}  // namespace quillmetra
