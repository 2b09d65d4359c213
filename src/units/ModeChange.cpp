// See ModeChange.h.
#include "units/ModeChange.h"

#include <cmath>
#include <utility>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "platform/Dialogs.h"
#include "units/Conversion.h"
#include "units/Rounding.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {

namespace {

// barometer is in the unit of the pressure.
double AbsoluteFromGauge(double pressure, double barometer) {
    return pressure > -barometer && pressure != 0 ? Expressible(RoundedFour(pressure + barometer)) : pressure;
}

// std::nearbyint rounds a half to the even number.
double GaugeFromAbsolute(double pressure, double barometer) {
    if (pressure == 0 || std::nearbyint(pressure - barometer) == 0) return pressure;
    return Expressible(RoundedFour(pressure - barometer));
}

// A number that a change of mode makes anew waits for the rounding as a converted one does.
template <typename Change>
void Renew(double& number, Change change) {
    const double before = std::exchange(number, change(number));
    if (number != before) Calc.RoundedFlag = words::No;
}

// The final pressures of a line have their unit in the row of its source pressure, and so have the two wave
// pressures of a water hammer.
template <typename Change>
void ChangePressures(Change change) {
    for (std::size_t i = 0; i < CaseCount; ++i) {
        for (double* pressure :
             {&Calc.CaseInput[input::Pressure][i], &Calc.CaseResult[result::FinalPressure][i]})
            Renew(*pressure, change);
    }
    for (const int element : {wave::Pressure, wave::SelectedPressure})
        Renew(Calc.HammerResult[At(element)], change);
}

// The line forms show all cases anew, not only the one in hand.
void MarkAllCasesConverted() {
    if (program::IsLine(Calc.CurrentProgram)) Calc.UnitsConverted = words::Yes;
}

void FillDensityUnit() {
    if (Calc.UnitFactor[unit::LiquidDensity] != 0 && !Calc.UnitName[unit::LiquidDensity].empty()) return;
    Calc.UnitFactor[unit::LiquidDensity] = 1;
    Calc.UnitName[unit::LiquidDensity] = "lb/ft3";
    Tell("Please select the correct density unit", "Temporary variable shown");
}

double DensityFromGravity(double gravity) {
    return Expressible(RoundedFour(gravity * WaterDensity / Calc.UnitFactor[unit::LiquidDensity]));
}

double GravityFromDensity(double density) {
    return Expressible(RoundedFour(Rescaled(density, unit::LiquidDensity) / WaterDensity *
                                   Calc.UnitFactor[unit::LiquidDensity]));
}

}  // namespace

// An empty mode, of a record that knows none, is gauge and gravity.
void ChangePressureMode(const std::string& mode) {
    const bool toAbsolute = mode == words::Absolute;
    const bool changes = toAbsolute != (Calc.PressureMode == words::Absolute);
    std::string& unit = Calc.UnitName[unit::Pressure];
    if (changes && (unit.empty() || unit.back() != (toAbsolute ? 'g' : 'a'))) return;
    Calc.PressureMode = mode;
    Calc.PressureModePrevious = mode;
    if (!changes) return;
    if (!(Calc.BaroPressure > 0)) Calc.BaroPressure = SeaLevelBarometer;
    const double barometer = Calc.BaroPressure / Calc.UnitFactorPrevious[unit::Pressure];
    if (!IsYes(Calc.NoConversion)) {
        ChangePressures([=](double pressure) {
            return toAbsolute ? AbsoluteFromGauge(pressure, barometer)
                              : GaugeFromAbsolute(pressure, barometer);
        });
    }
    unit.back() = toAbsolute ? 'a' : 'g';
    MarkAllCasesConverted();
}

void ChangeDensityMode(const std::string& mode) {
    const bool toDensity = mode == words::Density;
    const bool changes = toDensity != (Calc.LiquidDensityMode == words::Density);
    Calc.LiquidDensityMode = mode;
    Calc.LiquidDensityModePrevious = mode;
    if (!changes) return;
    if (toDensity) FillDensityUnit();
    for (double& value : Calc.CaseInput[input::FlowGravity]) {
        if (value > 0 && !IsYes(Calc.NoConversion))
            Renew(value, toDensity ? DensityFromGravity : GravityFromDensity);
    }
    Calc.UnitFactorPrevious[unit::LiquidDensity] = Calc.UnitFactor[unit::LiquidDensity];
    Calc.UnitNamePrevious[unit::LiquidDensity] = Calc.UnitName[unit::LiquidDensity];
    CarryDensityUnit();
    MarkAllCasesConverted();
}

}  // namespace quillmetra
