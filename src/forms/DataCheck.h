// The checks that stand before every calculation. Each failure is told in a message box titled "Data
// checking", and the focus goes to the box that is to be mended.
#pragma once

#include "platform/Controls.h"

namespace quillmetra {

class CalculationForm;

// Tells a failed check and moves the focus; returns false for the caller to return.
bool RefuseData(const std::string& message, Control& box);

// The boxes of the case in hand that the temperature and pressure check leads to.
struct TempPressureBoxes {
    TextBox& Temperature;
    TextBox& Pressure;
};

// Stores the form, restores missing standard conditions, and takes FlowTemperature (degF) and FlowPressure
// (psia) of the case in hand. Refuses a temperature at absolute zero or below or an empty one, a pressure
// below a perfect vacuum, and a pressure that does not exceed the vapour pressure (row 8). Sets
// TempPressureOk; true when it is "Yes".
bool CheckTempPressure(CalculationForm& form, const TempPressureBoxes& boxes);

}  // namespace quillmetra
