// See Border.h.
#include "units/Border.h"

#include "core/PhysicalConstants.h"
#include "core/Words.h"
#include "platform/Arithmetic.h"
#include "units/Rounding.h"
#include "units/Temperature.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

bool IsDensity() { return Calc.LiquidDensityMode == words::Density; }
double Kinematic() { return CentistokesPerUnit(Calc.UnitName[unit::Viscosity]); }

}  // namespace

double ShownFigures(double value) { return CheckFinite(RoundedFour(value)); }

// --- Pressure --------------------------------------------------------------------------------------------

double GaugeZero(const CalcRecord& record) {
    return record.PressureMode == words::Absolute ? 0 : record.BaroPressure;
}

double PressureIn(double shown, const CalcRecord& record) {
    return shown * record.UnitFactor[unit::Pressure] + GaugeZero(record);
}

double PressureShown(double psia, const CalcRecord& record) {
    return (psia - GaugeZero(record)) / record.UnitFactor[unit::Pressure];
}

void TakePressure(std::size_t caseIndex) {
    Calc.EnteredPressure = Calc.CaseInput[input::Pressure][caseIndex] * Calc.UnitFactor[unit::Pressure];
    Calc.FlowPressure = Calc.EnteredPressure + GaugeZero();
}

// --- Temperature -----------------------------------------------------------------------------------------

double TemperatureIn(double shown) {
    return ToDegF(Calc.UnitName[unit::Temperature], shown, Calc.UnitFactor[unit::Temperature]);
}

double TemperatureShown(double degF) {
    return FromDegF(Calc.UnitName[unit::Temperature], degF, Calc.UnitFactor[unit::Temperature]);
}

double CritTemperatureIn(double shown) {
    return ToDegR(Calc.UnitName[unit::CritTemperature], shown, Calc.UnitFactor[unit::CritTemperature]);
}

double CritTemperatureShown(double degR) {
    return FromDegR(Calc.UnitName[unit::CritTemperature], degR, Calc.UnitFactor[unit::CritTemperature]);
}

// --- Gravity and flow ------------------------------------------------------------------------------------

double GravityIn(double shown, int unitRow) {
    return IsDensity() ? shown * Calc.UnitFactor[At(unitRow)] / WaterDensity : shown;
}

double GravityShown(double gravity, int unitRow) {
    return IsDensity() ? gravity / Calc.UnitFactor[At(unitRow)] * WaterDensity : gravity;
}

double MassOfLiquid(double volume, double gravity) { return volume * gravity * WaterPoundsPerGallon; }
double VolumeOfLiquid(double mass, double gravity) { return mass / gravity / WaterPoundsPerGallon; }
double MassOfGas(double volume, double molecularWeight) { return volume * molecularWeight / MolarVolume; }
double VolumeOfGas(double mass, double molecularWeight) { return mass / molecularWeight * MolarVolume; }

double LiquidFlowIn(double shown, double gravity) {
    const double flow = shown * Calc.UnitFactor[unit::LiquidFlow];
    return Calc.LiquidBasis == words::Volume ? MassOfLiquid(flow, gravity) : flow;
}

double GasFlowIn(double shown, double molecularWeight) {
    const double flow = shown * Calc.UnitFactor[unit::GasFlow];
    return Calc.Basis == words::Volume ? MassOfGas(flow, molecularWeight) : flow;
}

// --- Viscosity -------------------------------------------------------------------------------------------

double LiquidViscosityIn(double shown, double gravity) {
    const double viscosity = shown * Calc.UnitFactor[unit::Viscosity];
    return Kinematic() > 0 ? viscosity * gravity * Kinematic() : viscosity;
}

double LiquidViscosityShown(double viscosity, double gravity) {
    const double shown = viscosity / Calc.UnitFactor[unit::Viscosity];
    return Kinematic() > 0 ? shown / gravity / Kinematic() : shown;
}

double GasViscosityIn(double shown, double molecularWeight) {
    const double viscosity = shown * Calc.UnitFactor[unit::Viscosity];
    return Kinematic() > 0 ? viscosity / MolarViscosity * molecularWeight * Kinematic() : viscosity;
}

double GasViscosityShown(double viscosity, double molecularWeight) {
    const double shown = viscosity / Calc.UnitFactor[unit::Viscosity];
    return Kinematic() > 0 ? shown * MolarViscosity / molecularWeight / Kinematic() : shown;
}

}  // namespace quillmetra
