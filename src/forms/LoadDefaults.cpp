// See LoadDefaults.h.
#include "forms/LoadDefaults.h"

#include "core/StartUp.h"
#include "units/UserUnits.h"

namespace quillmetra {

void LoadDefaults() {
    ReadUserUnits();  // without the file new forms open in English units
    LoadHeadings();
    ReadStandardConditions();
}

}  // namespace quillmetra
