// See FluidRanges.h. How each bound was found stands beside it; for the figures of the shipped tables see
// data/SOURCES.md.
#include "fluids/FluidRanges.h"

#include <algorithm>

#include "core/Programs.h"
#include "core/Words.h"
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
bool IsPure(const CalcRecord& record) { return !IsSteam(record) && record.MixtureFlag != words::Yes; }
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
    return IsLiquid(record) && record.MixtureFlag == words::Yes && !IsOfClass(record, fluidclass::Water);
}
double MixtureVaporPressure60(const CalcRecord& record) {
    if (!MixtureHasOffset(record)) return 0;
    return VaporPressureOf(record.NormalBoilingPoint, record.CritTemperature, record.CritPressure, 60);
}

// The critical pressure is above it, whatever the last bit of a pressure typed in another unit.
constexpr double BelowSteamCritical = SteamCritPressure - 1e-6;

// The region around the critical point where a linear look-up cannot follow the density.
bool IsNearSteamCritical(const CalcRecord& record) {
    constexpr double regionEnd = 3250, warmEnough = 750;
    return IsSuperheated(record) && record.FlowPressure <= regionEnd && record.FlowTemperature < warmEnough;
}

constexpr CorrelationRange Ranges[] = {
    // --- Liquids
    {"Reduced temperature", ReducedTemperature, NoBound, 1, BoundUnit::None,
     "there is no liquid, and no vapor pressure", IsLiquidButWater},
    // Gravity is a straight line in temperature; that of a saturated liquid falls off near the critical
    // point.
    {"Reduced temperature", ReducedTemperature, NoBound, 0.9, BoundUnit::None,
     "so near to the critical point the gravity is rough",
     [](const CalcRecord& record) { return IsLiquidButWater(record) && ReducedTemperature(record) <= 1; }},
    // The polynomial changes its sign there: the liquid would grow under pressure.
    {"Reduced temperature", ReducedTemperature, 0.353, NoBound, BoundUnit::None,
     "the correction of gravity for pressure has the wrong sign", IsLiquidButWater},
    // Two points in 1/T: good between them, a guess outside; twenty degrees do no harm.
    {"Temperature", Temperature,
     [](const CalcRecord& record) { return std::min(record.ViscosityTemp1, record.ViscosityTemp2) - 20; },
     [](const CalcRecord& record) { return std::max(record.ViscosityTemp1, record.ViscosityTemp2) + 20; },
     BoundUnit::Temperature, "viscosity is extrapolated from its two points",
     [](const CalcRecord& record) {
         return IsLiquidButWater(record) && IsPure(record) && record.CurrentProgram != program::WaterHammer;
     }},
    // The correction for pressure begins at the vapor pressure at 60 degF when it is above the barometer.
    {"Vapor pressure at 60 degF", MixtureVaporPressure60, NoBound,
     [](const CalcRecord& record) { return record.BaroPressure; }, BoundUnit::Pressure,
     "the gravity under pressure goes by the last component", IsLiquidMixture},
    // A box that is not above 0 degF stays blank, as that of a liquid whose flash point is not known.
    {"Flash point", [](const CalcRecord& record) { return record.FlashPoint; }, 0, NoBound,
     BoundUnit::Temperature, "it is not shown",
     [](const CalcRecord& record) {
         return IsLiquid(record) && IsPure(record) && record.CurrentProgram == program::LiquidData;
     }},
    // Customary limit of this form of Kouzel's equation.
    {"Pressure", Pressure, NoBound, 10000, BoundUnit::Pressure,
     "the correction of viscosity for pressure is extrapolated",
     [](const CalcRecord& record) {
         return IsLiquidButWater(record) && IsOfClass(record, fluidclass::Organic);
     }},
    // The last band of specific volumes, up to the critical point, is up to 15 % off.
    {"Temperature", Temperature, 32, 637, BoundUnit::Temperature,
     "the gravity and viscosity of water are far off", IsPureWater},
    // 0.3 % for each 1000 psi of cold water.
    {"Pressure", Pressure, NoBound, 3000, BoundUnit::Pressure,
     "the gravity of water is not corrected for pressure, which is 1 % and more", IsPureWater},
    // The table's modulus is that at 68 degF; organic liquids lose some 0.4 % for each degF.
    {"Temperature", Temperature, 32, 150, BoundUnit::Temperature, "the bulk modulus is that at 68 degF",
     [](const CalcRecord& record) {
         return IsLiquid(record) && record.CurrentProgram == program::WaterHammer;
     }},

    // --- Gases
    // The factor jumps to more than twice the viscosity where the true rise may be a tenth of that.
    {"Reduced pressure", ReducedPressure, NoBound, 0.9, BoundUnit::None,
     "the viscosity of a dense gas is an estimate",
     [](const CalcRecord& record) { return IsPureGas(record) && IsOfClass(record, fluidclass::Organic); }},
    // Two points at 60 degF and 300 to 500 degF; a power law and a straight line stay good a little outside.
    {"Temperature", Temperature, 0, 600, BoundUnit::Temperature,
     "viscosity and specific heat are extrapolated", IsPureGas},
    // A gas line tells this when it is calculated, for its own critical constants.
    {"Pressure", Pressure, NoBound,
     [](const CalcRecord& record) {
         return RedlichKwongLimit(record.CritTemperature, record.CritPressure, record.FlowTemperature);
     },
     BoundUnit::Pressure, "so near to the liquid the compressibility factor is rough",
     [](const CalcRecord& record) {
         return record.CurrentProgram == program::GasData && !IsLiquid(record) && !IsSteam(record);
     }},

    // --- Steam, see data/SOURCES.md
    {"Pressure", Pressure, NoBound, BelowSteamCritical, BoundUnit::Pressure,
     "do not use the properties here, they may be many times too high", IsNearSteamCritical},
    {"Pressure", Pressure, NoBound, 2000, BoundUnit::Pressure, "density below 750 degF is some percent off",
     [](const CalcRecord& record) {
         return IsNearSteamCritical(record) && record.FlowPressure <= BelowSteamCritical;
     }},
    {"Pressure", Pressure, NoBound, 3000, BoundUnit::Pressure,
     "the properties of saturated steam are some percent off",
     [](const CalcRecord& record) { return record.SteamKind == words::Saturated; }},
    {"Pressure", Pressure, 0.5, NoBound, BoundUnit::Pressure, "the density is that at 0.5 psia", IsSteam},
    {"Temperature", Temperature, 240, NoBound, BoundUnit::Temperature, "the properties are those at 240 degF",
     [](const CalcRecord& record) {
         constexpr double tableStartsHere = 3250;  // psia
         return IsSuperheated(record) && record.FlowPressure > tableStartsHere;
     }},
};

}  // namespace

std::string FluidHints() { return HintsOf(Ranges, Calc); }

}  // namespace quillmetra
