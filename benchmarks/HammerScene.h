// A water hammer in the record's working layer, for what is measured on it.
#pragma once

#include "core/CalcRecord.h"
#include "hammer/WaterHammer.h"

namespace quillmetra {

// Water in a 6 in schedule 40 steel pipe, 2500 ft long.
inline void TakeHammerScene() {
    Calc = CalcRecord();
    Calc.CurrentProgram = 3;
    Calc.FlowTemperature = 60;
    Calc.BaroPressure = 14.7;
    Calc.LiquidMassFlow = 400000;
    Calc.FlowingSG = 1;
    Calc.BulkModulus = 319000;
    Calc.PipeModulus = 29.5e6;
    Calc.PipeDiameter = 6.065;
    Calc.WallThickness = 0.28;
    Calc.LineLength = 2500;
    Calc.EnteredPressure = 100;
    Calc.FlowPressure = 114.7;
    Calc.MaxAllowPressure = 314.7;
    Calc.SelectedTime = 4;
    Calc.CaseInput[3][0] = 100;
    Calc.CaseInput[10][0] = 4;
}

inline void CalculateHammer() {
    CalcCriticalClosing();
    CalcSelectedClosing();
}

}  // namespace quillmetra
