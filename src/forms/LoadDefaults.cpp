// See LoadDefaults.h.
#include "forms/LoadDefaults.h"

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {

void LoadDefaults() {
    // Without a file of the user's own units new forms open in English units.
    ResetEnglishUnits();
    Calc.UnitName[0] = "lb/h";
    LoadHeadings();
    ReadStandardConditions();
}

}  // namespace quillmetra
