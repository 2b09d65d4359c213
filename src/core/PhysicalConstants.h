// The constants of nature and of custom that several calculations share, each with its origin. They stand
// with the figures that records and tables of users were made with: a better figure would move results that
// people have filed.
#pragma once

namespace quillmetra {

// degF, and also 0 degF in degR: 273.15 K x 1.8 - 32.
constexpr double AbsoluteZeroF = -459.67;
constexpr double ZeroFInDegR = 459.67;
// What the fluid tables, the latent heat and steam take degF to degR by: the shipped tables are made for it.
constexpr double RoundZeroFInDegR = 460;

// psia ft3 / lbmol degR, the universal gas constant to six figures.
constexpr double GasConstant = 10.7316;
// ft3 of a pound mole of any gas, whatever the base conditions: GasConstant gives it at 59.1 degF, 14.7 psia.
constexpr double MolarVolume = 378.751445;

// psia. The atmosphere of the correlations, and the barometer where none is given.
constexpr double Atmosphere = 14.7;
constexpr double SeaLevelBarometer = 14.7;
// Rounded from 0.1450377.
constexpr double PsiPerKPa = 0.14504;

// Water at 60 degF as the conversions count: lb/ft3, and lb in a US gallon.
constexpr double WaterDensity = 62.366;
constexpr double WaterPoundsPerGallon = 8.3378;

// lb/lbmol of dry air.
constexpr double AirWeight = 28.964;

// Centistokes per cp of a gas, times its molecular weight: ft3 of a pound mole times lb/ft3 in a g/cm3,
// nearly.
constexpr double MolarViscosity = 23588;

}  // namespace quillmetra
