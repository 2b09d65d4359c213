// See LoadDefaults.h.
#include "forms/LoadDefaults.h"

#include "core/StartUp.h"
#include "units/UserUnits.h"

namespace quillmetra {

void LoadDefaults() {
    ReadUserUnits();  // without the file English units stand until the form applies its set
    LoadHeadings();
    ReadStandardConditions();
}

}  // namespace quillmetra
