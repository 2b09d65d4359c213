// See Conversion.h.
#include "units/Conversion.h"

#include <cmath>

#include "core/CalcRecord.h"
#include "core/Words.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Border.h"
#include "units/Rounding.h"
#include "units/Temperature.h"
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

// From the gravity of case 0, or from the user, who is asked until the answer is above 0.
void TakeFlowGravity(int caseIndex) {
    constexpr const char* title = "Convert Liquid Flow";
    const bool density = Calc.LiquidDensityMode == words::Density;
    Calc.FlowingSG = GravityOfFirstCase();
    while (!(Calc.FlowingSG > 0)) {
        double& answer = Calc.CaseInput[input::FlowGravity][At(caseIndex)];
        answer = Val(
            AskText(density ? "Need flow density to convert in " + Calc.UnitName[unit::UserDensity] + " units"
                            : "Need flow SG to convert",
                    title));
        Calc.FlowingSG =
            density ? RoundedFour(answer * Calc.UnitFactor[unit::UserDensity] / WaterDensity) : answer;
        if (Calc.FlowingSG > 0) return;
        Tell("Density value must be greater than zero", title);
    }
}

// The way by degF or degR and back would move the last digits of a number whose unit stays.
bool UnitStays(int row, int chosenRow) {
    return Calc.UnitName[At(row)] == Calc.ChosenUnitRowNames[At(chosenRow)] &&
           Calc.UnitFactor[At(row)] == Calc.UnitFactorPrevious[At(row)];
}

double ConvertedTemperature(double value) {
    if (UnitStays(unit::Temperature, chosen::Temperature)) return value;
    const double degF = ToDegF(Calc.ChosenUnitRowNames[chosen::Temperature], value,
                               Calc.UnitFactorPrevious[unit::Temperature]);
    return Expressible(TemperatureShown(degF));
}

void ConvertFluidTemperature(double& value) {
    if (value != 0) value = ConvertedTemperature(value);
}

// The viscosity of a case by way of cp. A kinematic unit needs the fluid's ratio of the two viscosities,
// which is above 0 or unknown; toCp and fromCp apply it to a value in cs and in cp.
template <typename ToCp, typename FromCp>
void ConvertViscosity(int caseIndex, double ratio, ToCp toCp, FromCp fromCp) {
    const std::string& former = Calc.ChosenUnitRowNames[chosen::Viscosity];
    const std::string& now = Calc.UnitName[unit::Viscosity];
    const double formerCs = CentistokesPerUnit(former);
    const double nowCs = CentistokesPerUnit(now);
    double& value = Calc.CaseInput[input::Viscosity][At(caseIndex)];
    if (!(ratio > 0) && (formerCs > 0 || nowCs > 0)) {
        value = 0;
        return;
    }
    if (formerCs > 0) {
        value = toCp(value) * Calc.UnitFactorPrevious[unit::Viscosity] * formerCs;
    } else if (former == "Pa.s") {
        value = value * Calc.UnitFactorPrevious[unit::Viscosity];
    }
    value = nowCs > 0 ? fromCp(value) / nowCs : value / Calc.UnitFactor[unit::Viscosity];
    value = RoundedFour(Expressible(value));
}

}  // namespace

double Expressible(double value) { return std::isfinite(value) ? value : 0; }

double Rescaled(double value, int unitRow) {
    const double former = Calc.UnitFactorPrevious[At(unitRow)];
    const double now = Calc.UnitFactor[At(unitRow)];
    return Expressible(former == now ? value : value * former / now);
}

double GravityOfFirstCase() { return GravityIn(Calc.CaseInput[input::FlowGravity][0], unit::LiquidDensity); }

void ConvertLineFlowGas(int caseIndex) {
    double& flow = Calc.CaseInput[input::GasFlow][At(caseIndex)];
    const double molecularWeight = Calc.CaseInput[input::MolecularWeight][At(caseIndex)];
    Calc.Scratch = flow;
    if (Calc.Basis != Calc.BasisPrevious) {
        if (!(molecularWeight > 0)) {
            flow = 0;
            return;
        }
        flow =
            Calc.Basis == words::Mass ? MassOfGas(flow, molecularWeight) : VolumeOfGas(flow, molecularWeight);
    }
    flow = Rescaled(flow, unit::GasFlow);
}

void ConvertLineFlowLiquid(int caseIndex) {
    double& flow = Calc.CaseInput[input::LiquidFlow][At(caseIndex)];
    if (Calc.LiquidBasis != Calc.LiquidBasisPrevious) {
        TakeFlowGravity(caseIndex);
        flow = Calc.LiquidBasis == words::Mass ? MassOfLiquid(flow, Calc.FlowingSG)
                                               : VolumeOfLiquid(flow, Calc.FlowingSG);
    }
    flow = Rescaled(flow, unit::LiquidFlow);
}

void ConvertTemperature(int caseIndex) {
    if (Calc.TemperatureBlank[At(caseIndex)] == 1) return;
    double& value = Calc.CaseInput[input::Temperature][At(caseIndex)];
    Calc.FlowTemperatureF = ToDegF(Calc.ChosenUnitRowNames[chosen::Temperature], value,
                                   Calc.UnitFactorPrevious[unit::Temperature]);
    value = ConvertedTemperature(value);
}

void ConvertCritTemperature(int caseIndex) {
    double& value = Calc.CaseInput[input::CritTemperature][At(caseIndex)];
    if (value == 0 || UnitStays(unit::CritTemperature, chosen::CritTemperature)) return;
    const double degR = ToDegR(Calc.ChosenUnitRowNames[chosen::CritTemperature], value,
                               Calc.UnitFactorPrevious[unit::CritTemperature]);
    value = Expressible(CritTemperatureShown(degR));
}

void ConvertBoilingPoint(int caseIndex) {
    ConvertFluidTemperature(Calc.CaseInput[input::BoilingPoint][At(caseIndex)]);
}

void ConvertFlashPoint(int caseIndex) {
    ConvertFluidTemperature(Calc.CaseInput[input::FlashPoint][At(caseIndex)]);
}

void ConvertViscosityLiquid(int caseIndex) {
    Calc.FlowingSG = GravityOfFirstCase();
    const double gravity = Calc.FlowingSG;
    ConvertViscosity(
        caseIndex, gravity, [gravity](double cs) { return cs * gravity; },
        [gravity](double cp) { return cp / gravity; });
}

void ConvertViscosityGas(int caseIndex) {
    const double molecularWeight = Calc.CaseInput[input::MolecularWeight][At(caseIndex)];
    const double ratio = molecularWeight > 0 ? MolarViscosity / molecularWeight : 0;
    ConvertViscosity(
        caseIndex, ratio, [ratio](double cs) { return cs / ratio; },
        [ratio](double cp) { return cp * ratio; });
}

bool OwnViscosityStays() {
    const std::string& unit = Calc.UnitName[unit::Viscosity];
    const bool known =
        CentistokesPerUnit(unit) > 0 || unit == "Pa.s" || Calc.UnitFactor[unit::Viscosity] == 1;
    return !known && unit == Calc.ChosenUnitRowNames[chosen::Viscosity] &&
           Calc.UnitFactor[unit::Viscosity] == Calc.UnitFactorPrevious[unit::Viscosity];
}

void ConvertStandardTemperature() {
    const std::string& unit = Calc.UnitName[unit::StdTemperature];
    if (unit != "degF" && unit != "degC") return;
    Calc.CaseInput[input::StdTemperature][0] = RoundedSix(FromDegF(unit, Calc.StdTemperature, 1));
}

}  // namespace quillmetra
