// See GasData.h.
#include "fluids/GasData.h"

#include <algorithm>
#include <cmath>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "fluids/FluidMessages.h"
#include "fluids/GasCorrelations.h"
#include "fluids/LiquidCorrelations.h"
#include "fluids/LiquidData.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"

namespace quillmetra {

namespace {

constexpr const char* Title = "Gas Calculation";
constexpr int GasDataProgram = 5;
constexpr double DensePressure = 0.9;  // reduced; above it an organic gas is dense

bool IsMixture() { return Calc.FluidOk != words::FluidPicked; }

// At the critical temperature itself the gas data program still asks, the line-loss program does not.
bool IsBelowCritical() {
    return Calc.CurrentProgram == GasDataProgram ? Calc.ReducedTemperature <= 1 : Calc.ReducedTemperature < 1;
}

constexpr double CalcRecord::*Results[] = {&CalcRecord::FluidViscosity,     &CalcRecord::GasSpecificHeat,
                                           &CalcRecord::RatioSpecificHeats, &CalcRecord::VaporPressure,
                                           &CalcRecord::CompressFactor,     &CalcRecord::Density,
                                           &CalcRecord::LatentHeatAtFlow};

bool ResultsAreFinite() {
    return std::all_of(std::begin(Results), std::end(Results),
                       [](auto field) { return std::isfinite(Calc.*field); });
}

}  // namespace

bool TellGasNotCalculated() {
    for (const auto field : Results) Calc.*field = 0;
    TellNotCalculable(Title);
    return false;
}

bool FindCompressibility() {
    const GasFactor factor =
        SolveRedlichKwong(Calc.CritTemperature, Calc.CritPressure, Calc.FlowTemperature, Calc.FlowPressure);
    Calc.CompressFactor = factor.Value;
    Calc.IterationCount = factor.Rounds;
    Calc.Density = GasDensityOf(Calc.FlowPressure, Calc.FlowTemperature, Calc.MolecularWeight, factor.Value);
    return factor.Converged;
}

void WarnOfCompressibility() {
    Tell("Will not converge\nUse data with care", "Compressibility Factor Calculation", Icon::Question);
}

void CalcCompressibility() {
    if (!FindCompressibility()) WarnOfCompressibility();
}

void CalcGasProperties() {
    Calc.CritCompressFactor =
        GasCritFactorOf(Calc.CritPressure, Calc.CritVolume, Calc.MolecularWeight, Calc.CritTemperature);
    Calc.ReducedBoilingTemperature =
        EasedReducedTemperature(ReducedTemperatureOf(Calc.FlowTemperature, Calc.CritTemperature));
    Calc.ReducedPressure = Calc.FlowPressure / Calc.CritPressure;

    const GasViscosityLine line =
        GasViscosityLineOf(Calc.ViscosityTemp1, Calc.Viscosity1, Calc.ViscosityTemp2, Calc.Viscosity2);
    Calc.ViscosityB = line.Exponent;
    Calc.ViscosityA = line.A;
    Calc.FluidViscosity = GasViscosityAt(line, Calc.FlowTemperature);
    if (Val(Calc.FluidClass) == fluidclass::Organic && Calc.ReducedPressure > DensePressure) {
        Calc.CompressFactor = DenseGasFactor(Calc.ReducedBoilingTemperature, Calc.ReducedPressure);
        Calc.FluidViscosity *= Calc.CompressFactor;
    }

    Calc.GasSpecificHeat = GasSpecificHeatAt(Calc.GasCp1, Calc.GasCp2, Calc.FlowTemperature);
    Calc.RatioSpecificHeats = RatioOfSpecificHeats(Calc.GasSpecificHeat * Calc.MolecularWeight);
}

void CalcGasLatentHeat() {
    Calc.LatentHeatAtFlow = WatsonLatentHeat(Calc.LatentHeatRefTemp, Calc.LatentHeatRefValue,
                                             Calc.CritTemperature, Calc.FlowTemperature);
}

bool ProcessGasData() {
    Calc.VaporPressure = 0;
    Calc.LatentHeatAtFlow = 0;
    if (!IsMixture()) {
        CalcGasProperties();
        CalcVaporPressure();
        if (!std::isfinite(Calc.VaporPressure)) return TellGasNotCalculated();
        if (Calc.VaporPressure <= Calc.FlowPressure && IsBelowCritical() &&
            !GoOnInOtherPhase("liquid", Title)) {
            return false;
        }
    }
    if (Calc.CurrentProgram == GasDataProgram) {
        Calc.LatentHeatRefTemp = Calc.NormalBoilingPoint;
        Calc.LatentHeatRefValue = Calc.LatentHeatBP;
        CalcGasLatentHeat();
    }
    const bool converged = FindCompressibility();
    if (!ResultsAreFinite()) return TellGasNotCalculated();
    if (!converged) WarnOfCompressibility();
    return true;
}

}  // namespace quillmetra
