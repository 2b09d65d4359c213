// See FluidRanges.h. How each bound was found stands beside it; for the figures of the shipped tables see
// data/SOURCES.md.
#include "fluids/FluidRanges.h"

#include <algorithm>

#include "core/Programs.h"
#include "core/Words.h"
#include "fluids/FluidErrors.h"
#include "fluids/GasCorrelations.h"
#include "fluids/LiquidCorrelations.h"
#include "fluids/LiquidData.h"
#include "fluids/SteamTables.h"
#include "platform/NumberText.h"
#include "units/CorrelationRange.h"

namespace quillmetra {

namespace {

double Temperature(const CalcRecord& record) { return record.FlowTemperature; }
double Pressure(const CalcRecord& record) { return record.FlowPressure; }
double ReducedTemperature(const CalcRecord& record) {
    return ReducedTemperatureOf(record.FlowTemperature, record.CritTemperature);
}
double ReducedPressure(const CalcRecord& record) { return record.FlowPressure / record.CritPressure; }

bool IsSteam(const CalcRecord& record) { return !record.SteamKind.empty(); }
bool IsPure(const CalcRecord& record) { return !IsSteam(record) && !IsYes(record.MixtureFlag); }
bool IsLiquid(const CalcRecord& record) { return record.FluidType == words::Liquid; }
bool IsOfClass(const CalcRecord& record, int number) { return Val(record.FluidClass) == number; }
bool IsPureWater(const CalcRecord& record) {
    return IsLiquid(record) && IsPure(record) && IsOfClass(record, fluidclass::Water);
}
bool IsLiquidButWater(const CalcRecord& record) {
    return IsLiquid(record) && !(IsPure(record) && IsOfClass(record, fluidclass::Water));
}
bool IsPureGas(const CalcRecord& record) { return !IsLiquid(record) && IsPure(record); }
bool IsSuperheated(const CalcRecord& record) { return record.SteamKind == words::Superheated; }

bool IsLiquidMixture(const CalcRecord& record) {
    return IsLiquid(record) && IsYes(record.MixtureFlag) && !IsOfClass(record, fluidclass::Water);
}
double MixtureVaporPressure60(const CalcRecord& record) {
    if (!MixtureHasOffset(record)) return 0;
    return VaporPressureOf(record.NormalBoilingPoint, record.CritTemperature, record.CritPressure, 60);
}

bool ShowsModulus(const CalcRecord& record) {
    return IsLiquid(record) &&
           (record.CurrentProgram == program::WaterHammer || record.CurrentProgram == program::LiquidData);
}
// Solutions in water and other inorganic liquids that are far from their critical point.
bool IsSolution(const CalcRecord& record) {
    constexpr double boilsAbove = 150;  // degF
    return IsLiquidButWater(record) && IsOfClass(record, fluidclass::Inorganic) &&
           record.NormalBoilingPoint > boilsAbove;
}
// Lighter than water, and warm enough for the general compressibility to be too large.
bool IsLightOrganic(const CalcRecord& record) {
    constexpr double warm = 0.65;  // reduced temperature
    return IsLiquidButWater(record) && IsOfClass(record, fluidclass::Organic) && record.FlowingSG < 1 &&
           ReducedTemperature(record) >= warm && ReducedTemperature(record) <= 1;
}

// A state at which the vapor pressure of the gas means nothing has none to hint at.
bool ShowsVaporPressure(const CalcRecord& record) {
    return program::IsFluidData(record.CurrentProgram) && IsPure(record) && ReducedTemperature(record) < 1;
}

bool ShowsDensity(const CalcRecord& record) {
    return record.CurrentProgram == program::GasData && !IsLiquid(record) && !IsSteam(record);
}

// Organic gases alone have a factor for their pressure.
bool IsDenseOrganic(const CalcRecord& record) {
    return IsPureGas(record) && IsOfClass(record, fluidclass::Organic);
}
bool HasNoDenseFactor(const CalcRecord& record, double from, double below) {
    return !IsLiquid(record) && !IsSteam(record) && !IsDenseOrganic(record) &&
           ReducedTemperature(record) >= from && ReducedTemperature(record) < below;
}
// By reduced pressure, at 1.5 of the critical temperature.
constexpr MeasuredError ThinViscosities[] = {{0.9, -7}, {1.2, -9}, {1.5, -12}, {2, -18}, {3, -30}, {5, -50}};
constexpr double VeryDense = 2;  // reduced pressure

// The critical pressure is above it, whatever the last bit of a pressure typed in another unit.
constexpr double BelowSteamCritical = SteamCritPressure - 1e-6;

// The region around the critical point where a linear look-up cannot follow the density.
bool IsNearSteamCritical(const CalcRecord& record) {
    constexpr double regionEnd = 3250, warmEnough = 750;
    return IsSuperheated(record) && record.FlowPressure > BelowSteamCritical &&
           record.FlowPressure <= regionEnd && record.FlowTemperature < warmEnough;
}
bool IsInSteamRegion(const CalcRecord& record, double highestPressure, double lowest, double highest) {
    return IsSuperheated(record) && record.FlowPressure <= highestPressure &&
           record.FlowTemperature >= lowest && record.FlowTemperature < highest &&
           !IsNearSteamCritical(record);
}

// Where no error stands behind a range its size is not known.
constexpr CorrelationRange Ranges[] = {
    // --- Liquids
    {"Reduced temperature", ReducedTemperature, NoBound, 1, BoundUnit::None,
     "there is no liquid, and no vapor pressure", IsLiquidButWater, 1000},
    // Gravity is a straight line in temperature; that of a saturated liquid falls off near the critical
    // point. Where 60 degF is warm already the line is still true.
    {"Reduced temperature", ReducedTemperature, NoBound, 0.8, BoundUnit::None,
     "so near to the critical point the gravity is about {}",
     [](const CalcRecord& record) {
         constexpr double worthTelling = 2;
         return IsLiquidButWater(record) && ReducedTemperature(record) <= 1 &&
                GravityError(record) > worthTelling;
     },
     GravityError},
    {"Reduced temperature", ReducedTemperature, ColdGravityGoodFrom, NoBound, BoundUnit::None,
     "the gravity is up to {}", IsLiquidButWater, ColdGravityError},
    // The polynomial changes its sign there: the liquid would grow under pressure.
    {"Reduced temperature", ReducedTemperature, 0.353, NoBound, BoundUnit::None,
     "the correction of gravity for pressure has the wrong sign", IsLiquidButWater, 1},
    {"Pressure", Pressure, NoBound, 1000, BoundUnit::Pressure, "the gravity under pressure is about {}",
     IsLightOrganic, PressedGravityError},
    // By rows that were measured; its error is no matter of pressure or temperature alone.
    {"Temperature", Temperature, VaporPressureGoodFrom, VaporPressureGoodTo, BoundUnit::Temperature,
     "the vapor pressure is about {}", ShowsVaporPressure, VaporPressureError},
    // Two points in 1/T: good between them, a guess outside; twenty degrees do no harm.
    {"Temperature", Temperature,
     [](const CalcRecord& record) { return std::min(record.ViscosityTemp1, record.ViscosityTemp2) - 20; },
     [](const CalcRecord& record) { return std::max(record.ViscosityTemp1, record.ViscosityTemp2) + 20; },
     BoundUnit::Temperature, "viscosity is extrapolated from its two points",
     [](const CalcRecord& record) {
         return IsLiquidButWater(record) && IsPure(record) && record.CurrentProgram != program::WaterHammer;
     },
     30},
    // The correction for pressure begins at the vapor pressure at 60 degF when it is above the barometer.
    {"Vapor pressure at 60 degF", MixtureVaporPressure60, NoBound,
     [](const CalcRecord& record) { return record.BaroPressure; }, BoundUnit::Pressure,
     "the gravity under pressure goes by the last component", IsLiquidMixture, 1},
    // A box that is not above 0 degF stays blank, as that of a liquid whose flash point is not known.
    {"Flash point", [](const CalcRecord& record) { return record.FlashPoint; }, 0, NoBound,
     BoundUnit::Temperature, "it is not shown",
     [](const CalcRecord& record) {
         return IsLiquid(record) && IsPure(record) && record.CurrentProgram == program::LiquidData;
     },
     0},
    // Customary limit of this form of Kouzel's equation.
    {"Pressure", Pressure, NoBound, 10000, BoundUnit::Pressure,
     "the correction of viscosity for pressure is extrapolated",
     [](const CalcRecord& record) {
         return IsLiquidButWater(record) && IsOfClass(record, fluidclass::Organic);
     }},
    // The last band of specific volumes, up to the critical point, is up to 15 % off.
    {"Temperature", Temperature, 32, 637, BoundUnit::Temperature,
     "the gravity and viscosity of water are up to 15 % off", IsPureWater, 15},
    // 0.3 % for each 1000 psi of cold water.
    {"Pressure", Pressure, NoBound, 3000, BoundUnit::Pressure,
     "the gravity of water is not corrected for pressure, which is 1 % and more", IsPureWater, -1},
    // The table's modulus is that at 68 degF.
    {"Temperature", Temperature, 32, 212, BoundUnit::Temperature,
     "the bulk modulus is that at 68 degF, about {}",
     [](const CalcRecord& record) { return ShowsModulus(record) && IsPureWater(record); }, WaterModulusError},
    {"Temperature", Temperature, 32, 150, BoundUnit::Temperature, "the bulk modulus is that at 68 degF",
     [](const CalcRecord& record) { return ShowsModulus(record) && IsSolution(record); }},
    {"Temperature", Temperature, ModulusGoodFrom, ModulusGoodTo, BoundUnit::Temperature,
     "the bulk modulus is that at 68 degF, about {}",
     [](const CalcRecord& record) {
         return ShowsModulus(record) && IsLiquidButWater(record) && !IsSolution(record) &&
                HasWarmModulus(record) && ReducedTemperature(record) < 1;
     },
     ModulusError},
    // Carbon dioxide, nitrous oxide, ethane, ethylene, methane: 6 degF are 6 % of the modulus.
    {"Temperature", Temperature, [](const CalcRecord& record) { return ColdModulusTemperature(record) - 6; },
     [](const CalcRecord& record) { return ColdModulusTemperature(record) + 6; }, BoundUnit::Temperature,
     "the bulk modulus is that of another temperature, about {}",
     [](const CalcRecord& record) {
         return ShowsModulus(record) && IsPure(record) && !HasWarmModulus(record) &&
                ReducedTemperature(record) < 1;
     },
     ModulusError},
    {"Boiling point", [](const CalcRecord& record) { return record.NormalBoilingPoint; }, SublimationPoint,
     NoBound, BoundUnit::Temperature, "it is fitted to the vapor pressure, the solid sublimes at that bound",
     [](const CalcRecord& record) { return IsPure(record) && program::IsFluidData(record.CurrentProgram); },
     0},

    // --- Gases
    // The factor jumps to more than twice the viscosity where the true rise may be a tenth of that.
    {"Reduced pressure", ReducedPressure, NoBound, 0.9, BoundUnit::None,
     "the viscosity of a dense gas is 2 to 4 times the true one",
     [](const CalcRecord& record) { return IsDenseOrganic(record) && ReducedPressure(record) <= VeryDense; },
     200},
    {"Reduced pressure", ReducedPressure, NoBound, VeryDense, BoundUnit::None,
     "the viscosity of a dense gas is 20 to 100 % high", IsDenseOrganic, 60},
    // Carbon dioxide at 100 degF and 1600 psia; from 1.2 of the critical temperature on it is less.
    {"Reduced pressure", ReducedPressure, NoBound, 0.9, BoundUnit::None,
     "the viscosity is that at low pressure, down to a quarter of the true one",
     [](const CalcRecord& record) { return HasNoDenseFactor(record, 0, 1.2); }, -75},
    {"Reduced pressure", ReducedPressure, NoBound, 0.9, BoundUnit::None,
     "the viscosity is that at low pressure, about {}",
     [](const CalcRecord& record) { return HasNoDenseFactor(record, 1.2, 2); },
     [](const CalcRecord& record) { return ErrorAt(ThinViscosities, ReducedPressure(record)); }},
    // Two points at 60 degF and 300 to 500 degF; a power law and a straight line stay good a little outside.
    {"Temperature", Temperature, 0, 600, BoundUnit::Temperature,
     "viscosity and specific heat are extrapolated", IsPureGas},
    // A gas line tells these when it is calculated, for its own critical constants.
    {"Pressure", Pressure, NoBound,
     [](const CalcRecord& record) {
         return RedlichKwongLimit(record.CritTemperature, record.CritPressure, record.FlowTemperature);
     },
     BoundUnit::Pressure, NearLiquidText, ShowsDensity, NearLiquidError},
    {"Reduced pressure", ReducedPressure, NoBound, BesideCriticalPressure, BoundUnit::None,
     BesideCriticalText,
     [](const CalcRecord& record) { return ShowsDensity(record) && IsBesideCritical(record); },
     BesideCriticalError},

    // --- Steam, see data/SOURCES.md
    {"Pressure", Pressure, NoBound, BelowSteamCritical, BoundUnit::Pressure,
     "do not use density, exponent and viscosity here, they may be many times too high", IsNearSteamCritical,
     1000},
    // Compressed water, in the columns up to 600 degF, is within 1 %.
    {"Pressure", Pressure, NoBound, 3000, BoundUnit::Pressure,
     "density below 790 degF is up to a third off, the exponent up to 2.7 times the true one",
     [](const CalcRecord& record) { return IsInSteamRegion(record, 4500, 600, 790); }, 170},
    {"Pressure", Pressure, NoBound, 2000, BoundUnit::Pressure, "density below 790 degF is up to 5 % off",
     [](const CalcRecord& record) { return IsInSteamRegion(record, 3000, 600, 790); }, 5},
    {"Pressure", Pressure, NoBound, 4500, BoundUnit::Pressure,
     "density from 700 to 880 degF is up to 7 % off, the exponent up to 15 %",
     [](const CalcRecord& record) { return IsInSteamRegion(record, 8000, 700, 881); }, 15},
    {"Pressure", Pressure, NoBound, 3000, BoundUnit::Pressure,
     "the properties of saturated steam are some percent off, its latent heat 5 to 34 % high",
     [](const CalcRecord& record) { return record.SteamKind == words::Saturated; }, 34},
    {"Pressure", Pressure, 0.5, NoBound, BoundUnit::Pressure, "the density is that at 0.5 psia", IsSteam, 50},
    {"Temperature", Temperature, 240, NoBound, BoundUnit::Temperature, "the properties are those at 240 degF",
     [](const CalcRecord& record) {
         constexpr double tableStartsHere = 3250;  // psia
         return IsSuperheated(record) && record.FlowPressure > tableStartsHere;
     },
     2},
    {"Pressure", Pressure, NoBound, 200, BoundUnit::Pressure,
     "so near to saturation the density of the line is about {}",
     [](const CalcRecord& record) {
         constexpr double worthTelling = -3;
         return record.CurrentProgram == program::GasLine && IsSteam(record) &&
                SteamLineError(record) < worthTelling;
     },
     SteamLineError},
};

}  // namespace

// An isotherm is flat there, and a small error of pressure makes a great one of density.
bool IsBesideCritical(const CalcRecord& record) {
    const double reduced = ReducedTemperature(record);
    return reduced >= 1 && reduced <= 1.2;
}

HintList FluidHints() { return HintsOf(Ranges, Calc); }

}  // namespace quillmetra
