// The border between what the user sees and what is calculated. Numbers of the record are in the units shown;
// the calculations work in lb/h, degF or degR, psia, lb/ft3 and cp. Each quantity crosses here and nowhere
// else: "In" is from the unit shown, "Shown" is to it, unrounded.
#pragma once

#include "core/CalcRecord.h"

namespace quillmetra {

// A calculated number as it is stored and shown: four figures. Throws "Overflow" or "Division by zero" for
// what is no finite number.
double ShownFigures(double value);

// psia at which a pressure of the record reads 0: the barometer where pressures are gauge, else 0.
double GaugeZero(const CalcRecord& record = Calc);
// psia, by unit row 3 and the pressure mode.
double PressureIn(double shown, const CalcRecord& record = Calc);
double PressureShown(double psia, const CalcRecord& record = Calc);
// Takes row 3 of a case, or of a column of the water hammer, as EnteredPressure and FlowPressure.
void TakePressure(std::size_t caseIndex);

// degF by unit row 2, and degR by row 12 for critical temperatures.
double TemperatureIn(double shown);
double TemperatureShown(double degF);
double CritTemperatureIn(double shown);
double CritTemperatureShown(double degR);

// A specific gravity; in density mode its place shows a density in the unit of that row.
double GravityIn(double shown, int unitRow);
double GravityShown(double gravity, int unitRow);

// Mass of a volume flow and back: lb/h of a liquid in USgal/h, and of a gas in standard ft3/h.
double MassOfLiquid(double volume, double gravity);
double VolumeOfLiquid(double mass, double gravity);
double MassOfGas(double volume, double molecularWeight);
double VolumeOfGas(double mass, double molecularWeight);
// lb/h, by unit rows 1 and 0 and the basis of the flow.
double LiquidFlowIn(double shown, double gravity);
double GasFlowIn(double shown, double molecularWeight);

// cp, by unit row 7; kinematic units go by the gravity of a liquid and the molecular weight of a gas.
double LiquidViscosityIn(double shown, double gravity);
double LiquidViscosityShown(double viscosity, double gravity);
double GasViscosityIn(double shown, double molecularWeight);
double GasViscosityShown(double viscosity, double molecularWeight);

}  // namespace quillmetra
