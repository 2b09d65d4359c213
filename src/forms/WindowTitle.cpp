// See WindowTitle.h.
#include "forms/WindowTitle.h"

#include "core/CalcRecord.h"
#include "forms/CalculationForm.h"
#include "forms/PanelReturn.h"

namespace quillmetra {

std::string WindowTitle(const Form& form) {
    const CalculationForm* const calculation = OpenCalculation();
    if (calculation != &form) return form.Caption();
    const std::string mark = calculation->txtTagNum.Text() + (Calc.ChangedFlag.empty() ? "" : "*");
    return mark.empty() ? form.Caption() : mark + " - " + form.Caption();
}

}  // namespace quillmetra
