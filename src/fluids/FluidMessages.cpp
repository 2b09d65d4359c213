// See FluidMessages.h.
#include "fluids/FluidMessages.h"

#include <string>

#include "core/CalcRecord.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Border.h"
#include "units/Rounding.h"

namespace quillmetra {

bool GoOnInOtherPhase(const char* phase, const char* title) {
    const std::string shown = TrimmedStr(RoundedFour(PressureShown(Calc.VaporPressure)));
    if (AskYesNo("At the pressure and temperature entered\n The Vapor Pressure is " + shown + " " +
                     Calc.UnitName[unit::Pressure] + "\nThis indicates that the fluid is a " + phase +
                     "!\nContinue ?",
                 title)) {
        return true;
    }
    Calc.SelectedFluidName.clear();
    return false;
}

void TellNotCalculable(const char* title) { Tell(NotCalculable, title); }

}  // namespace quillmetra
