// How far the formulas of fluids are off where that was measured, for the hints of FluidRanges: percent,
// below 0 when the result is too low. The record is that of a fluid taken from its table, at its flowing
// temperature and pressure. Measured against published reference equations of state; docs/guide/methods.md
// has the tables.
#pragma once

#include "core/CalcRecord.h"

namespace quillmetra {

// Of the gravity of a liquid at saturation, whose straight line is too high near the critical point. It is
// true at 60 degF wherever that lies.
double GravityError(const CalcRecord& record);
// Liquids whose base gravity at 60 degF is that of a state next to their critical point: the line is then too
// flat, and gravity low in the cold, below that reduced temperature by up to so much. No number for others.
double ColdGravityGoodFrom(const CalcRecord& record);
double ColdGravityError(const CalcRecord& record);

// Of the gravity of a light organic liquid, by its pressure alone.
double PressedGravityError(const CalcRecord& record);

// Of the table's bulk modulus, that at 68 degF, as a modulus. That of a wave's velocity is half of it.
double WaterModulusError(const CalcRecord& record);
double ModulusError(const CalcRecord& record);
// degF between which it is not worth telling: 58 to 78, less for a liquid near its critical point.
double ModulusGoodFrom(const CalcRecord& record);
double ModulusGoodTo(const CalcRecord& record);
// The same of the liquids whose critical point is so near to 68 degF that the table has the modulus of a
// colder state: at that temperature, degF; no number for others.
double ColdModulusTemperature(const CalcRecord& record);
// Liquids that have a modulus at 68 degF.
bool HasWarmModulus(const CalcRecord& record);

// Of the vapor pressure of the rows for which Miller's equation is known to fail: alcohols from C3 and
// glycols, amines, acids, paraffins from C11 below their boiling point; heat transfer fluids and some
// mixtures on both sides. 0 for all others.
double VaporPressureError(const CalcRecord& record);
// degF between which theirs is good to 3 % or so; no number where it has no such bound, and for all others.
double VaporPressureGoodFrom(const CalcRecord& record);
double VaporPressureGoodTo(const CalcRecord& record);

// degF, of a fluid whose boiling point in the table is not one, but fitted to its vapor pressure, as it has
// none at one atmosphere; no number for all others.
double SublimationPoint(const CalcRecord& record);

// Of the density of a steam line by the equation of Redlich and Kwong.
double SteamLineError(const CalcRecord& record);

}  // namespace quillmetra
