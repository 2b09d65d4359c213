// The form refresh: writes the record to the controls of the open calculation form. It is the only place
// where a number of the record becomes text, and since reports print the text of the controls it is the only
// formatter of printed numbers too.
#pragma once

#include "platform/Form.h"

namespace quillmetra {

// Fills ProgramTitle when it is empty, sets MethodText and refreshes the form of CurrentProgram.
void ShowCalculation();

// Builds UnitsTitle from the units' name and the options, then runs ShowCalculation.
void ComposeHeading();

// Units' title and source where the report of the liquid data reads them, on the gas form.
void ShowReportBasis();

// The refresh of each program.
void ShowLiquidLoss();
void ShowGasLoss();
void ShowWaterHammer();
void ShowLiquidData();
void ShowGasData();

// Paints a tick box in the changed colour when it differs from the flag that was last calculated or loaded.
void PaintTick(CheckBox& box, double shown);

// Writes a number to a control. Throws when it is not finite, with the control left as it was.
void ShowNumber(Control& control, double value);

}  // namespace quillmetra
