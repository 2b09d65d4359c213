// One quantity of one case brought from the previous unit to the one in force, in place and mostly unrounded.
// caseIndex is 0 to 2. Multiplying rows go by v x previous factor / factor, in this order. A value that the
// new unit cannot express, because it would overflow, becomes 0.
#pragma once

#include "core/PhysicalConstants.h"

namespace quillmetra {

// The value itself, or 0 for one that is not finite.
double Expressible(double value);

// v x previous factor / factor of a unit row.
double Rescaled(double value, int unitRow);

// Gravity at flow of case 0 by row 6: as it stands, or in density mode from the density (lb/ft3 / 62.366).
double GravityOfFirstCase();

// Row 0 by unit row 0. When the basis changed (BasisPrevious to Basis), through the molecular weight of row
// 5, and a molecular weight not above 0 makes the flow 0.
void ConvertLineFlowGas(int caseIndex);

// Row 1 by unit row 1. When the basis changed (LiquidBasisPrevious to LiquidBasis), through FlowingSG, which
// becomes the gravity of case 0. If that is not above 0 the user is asked until the answer is; the answer
// goes to row 6 of this case and is itself the gravity of this conversion. Row 6 must be in its new unit.
void ConvertLineFlowLiquid(int caseIndex);

// Row 2, from the unit ChosenUnitRowNames[1] to UnitName[2], unless the case's TemperatureBlank is 1. Keeps
// the value in degF in FlowTemperatureF.
void ConvertTemperature(int caseIndex);

// Row 12, from the unit ChosenUnitRowNames[2] to UnitName[12]; 0 stays 0.
void ConvertCritTemperature(int caseIndex);

// Rows 4 (normal boiling point) and 1 (flash point) of the fluid data programs, by the temperature's units;
// 0 stays 0.
void ConvertBoilingPoint(int caseIndex);
void ConvertFlashPoint(int caseIndex);

// Row 7, from the unit ChosenUnitRowNames[3] to UnitName[7], to four figures. Kinematic units go through the
// gravity of case 0 (liquid), which FlowingSG takes, or the molecular weight of row 5 (gas); where that is
// not above 0 the viscosity becomes 0. A unit of the user's own is divided out on the way to it but not
// multiplied on the way from it: a deliberate oddity. Where that unit stays (OwnViscosityStays) there is no
// way to go, and these two are not called.
void ConvertViscosityLiquid(int caseIndex);
void ConvertViscosityGas(int caseIndex);

// True when the viscosity has a unit of the user's own before and after.
bool OwnViscosityStays();

// Row 21 of case 0 from StdTemperature (degF), to six figures, in degF or degC; in another unit it stays.
void ConvertStandardTemperature();

}  // namespace quillmetra
