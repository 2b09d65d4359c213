// See LiquidData.h.
#include "fluids/LiquidData.h"

#include <cmath>

#include "core/CalcRecord.h"
#include "core/PhysicalConstants.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "fluids/FluidMessages.h"
#include "fluids/FluidTables.h"
#include "fluids/LiquidCorrelations.h"
#include "platform/Dialogs.h"

namespace quillmetra {

namespace {

constexpr double Base = 60;  // degF, of the gravities
constexpr double BaseRankine = 519.67;

constexpr const char* Title = "Liquid Calculation";

int FluidClassNumber() { return FluidClassOf(Calc.FluidClass); }

bool IsMixture() { return Calc.FluidOk != words::FluidPicked; }

bool GoOnAboveCritical() {
    if (!(Calc.FlowTemperature > Calc.CritTemperature - ZeroFInDegR)) return true;
    return AskYesNo("Flow temperature is greater then Critical temperature\nContinue ?", Title);
}

// Far above the critical temperature the straight line of the gravity falls below 0: no liquid has that.
bool ResultsMakeSense() {
    return std::isfinite(Calc.VaporPressure) && std::isfinite(Calc.FlowingSG) && Calc.FlowingSG > 0 &&
           std::isfinite(Calc.FluidViscosity) && std::isfinite(Calc.SGAtStandard);
}

void CalcGravityAndViscosity() {
    if (FluidClassNumber() == fluidclass::Water) {
        CalcWaterProperties();
        return;
    }
    CalcLiquidSG();
    if (FluidClassNumber() != fluidclass::Organic) return;
    if (Calc.FlowingSG < 1) CalcLightLiquidCompressibility();
    if (Calc.FluidViscosity > 1.2) {
        Calc.FluidViscosity *= PressureViscosityFactor(Calc.FluidViscosity, Calc.FlowPressure);
    }
}

// How far the vapor pressure at 60 degF lies above the barometer, psi. The water hammer program does without
// for a mixture, and does not put the vapor pressure at flow back, since it does not show it.
double PressureOffset() {
    const bool waterHammer = Calc.CurrentProgram == program::WaterHammer;
    if (IsMixture() && !MixtureHasOffset(Calc)) return 0;
    const double flowTemperature = Calc.FlowTemperature;
    const double vaporPressure = Calc.VaporPressure;
    Calc.FlowTemperature = Base;
    CalcVaporPressure();
    Calc.FlowTemperature = flowTemperature;
    const double above = Calc.VaporPressure - Calc.BaroPressure;
    if (!waterHammer) Calc.VaporPressure = vaporPressure;
    return above > 0 ? above : 0;
}

}  // namespace

// A mixture has the boiling point of its last component. One that is not below the critical temperature of
// the mixture gives no vapor pressure.
bool MixtureHasOffset(const CalcRecord& mixture) {
    constexpr int waterHammer = 3;
    return mixture.CurrentProgram != waterHammer &&
           ReducedTemperatureOf(mixture.NormalBoilingPoint, mixture.CritTemperature) < 1;
}

bool TellNotCalculated() {
    Calc.VaporPressure = 0;
    Calc.FlowingSG = 0;
    Calc.FluidViscosity = 0;
    TellNotCalculable(Title);
    return false;
}

void CalcVaporPressure() {
    Calc.ReducedBoilingTemperature = ReducedTemperatureOf(Calc.NormalBoilingPoint, Calc.CritTemperature);
    Calc.ReducedTemperature = ReducedTemperatureOf(Calc.FlowTemperature, Calc.CritTemperature);
    Calc.VaporPressure = VaporPressureOf(Calc.NormalBoilingPoint, Calc.CritTemperature, Calc.CritPressure,
                                         Calc.FlowTemperature);
}

void CalcLiquidCompressibility() {
    Calc.ReducedTemperature60 = static_cast<float>(BaseRankine / Calc.CritTemperature);
    Calc.ReducedTemperature = ReducedTemperatureOf(Calc.FlowTemperature, Calc.CritTemperature);
    const double at60 = GeneralCompressibility(static_cast<double>(Calc.ReducedTemperature60));
    Calc.CompressibilityAt60 = 1 + at60 * Calc.BaroPressure / 1000;
    Calc.LiquidCompressibility = GeneralCompressibility(Calc.ReducedTemperature);
}

void CalcLiquidSG() {
    Calc.CritCompressFactor = CritCompressibilityOf(Calc.SGAtStandard, Calc.CritTemperature,
                                                    Calc.CritPressure, Calc.MolecularWeight);
    Calc.FlowingSG = GravityAt(Calc.CritCompressFactor, Calc.CritTemperature, Calc.CritPressure,
                               Calc.MolecularWeight, Calc.FlowTemperature);
}

void CalcLightLiquidCompressibility() {
    const double gravity = Calc.FlowingSG;
    Calc.CompressibilityAt60 = 1 + (LightCompressibilityAt60(gravity) * Calc.BaroPressure) / 1000;
    Calc.LiquidCompressibility = LightCompressibility(gravity, Calc.FlowTemperature);
}

void CalcWaterProperties() {
    Calc.FlowingSG = WaterGravityAt(Calc.FlowTemperature);
    Calc.FluidViscosity = WaterViscosityAt(Calc.FlowTemperature);
}

bool ProcessLiquidData() {
    if (!GoOnAboveCritical()) return false;
    if (IsMixture()) {
        Calc.VaporPressure = 0;
    } else {
        CalcVaporPressure();
        if (!std::isfinite(Calc.VaporPressure)) return TellNotCalculated();
        if (Calc.VaporPressure >= Calc.FlowPressure && !GoOnInOtherPhase("gas", Title)) return false;
    }
    CalcLiquidCompressibility();
    CalcGravityAndViscosity();
    if (!(Calc.FlowingSG > 0)) return TellNotCalculated();  // nor may a correction below 0 turn it round
    const double offset = PressureOffset();
    Calc.PressureCorrection = 1 + (Calc.LiquidCompressibility * (Calc.FlowPressure - offset)) / 1000;
    if (FluidClassNumber() != fluidclass::Water) {
        Calc.FlowingSG = Calc.FlowingSG * Calc.PressureCorrection / Calc.CompressibilityAt60;
        if (IsYes(Calc.MixtureFlag)) {
            Calc.SGAtStandard = BaseGravityOf(Calc.CritCompressFactor, Calc.CritTemperature,
                                              Calc.CritPressure, Calc.MolecularWeight);
        }
    }
    return ResultsMakeSense() || TellNotCalculated();
}

}  // namespace quillmetra
