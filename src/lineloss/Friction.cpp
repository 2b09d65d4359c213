// See Friction.h.
#include "lineloss/Friction.h"

#include <cmath>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "lineloss/FlowStatus.h"
#include "platform/Dialogs.h"

namespace quillmetra {

namespace {

constexpr int MostRounds = 100;
constexpr double SmallestStep = 1e-06;

void WarnOfNoConvergence() {
    Calc.MessageTitle = "Friction Factor Calculation";
    Tell("Will not converge\nUse data with care", Calc.MessageTitle, Icon::Question);
}

// Hagen and Poiseuille.
void TakeLaminarFactor() {
    Calc.FlowZone = words::Laminar;
    Calc.FrictionFactor = 64 / Calc.ReynoldsNumber;
    Calc.LaminarFactor = Calc.FrictionFactor;
    Calc.TurbulentFactor = Calc.FrictionFactor;
}

void TakeColebrookFactor() {
    if (Calc.ReynoldsNumber <= CriticalLimit) Calc.FlowZone = words::Critical;
    const ColebrookResult result =
        SolveColebrook(Calc.ReynoldsNumber, Calc.PipeId[TheLine], FindPipeMaterial(Calc.PipeMaterialNumber),
                       Calc.ColebrookTerm);
    Calc.FrictionFactor = result.Factor;
    Calc.ColebrookTerm = result.Term;
    Calc.IterationCount = result.Rounds;
    if (!result.Converged) WarnOfNoConvergence();
}

}  // namespace

double ReynoldsOf(double massFlow, double pipeId, double viscosity) {
    return ReynoldsConstant * massFlow / pipeId / viscosity;
}

ColebrookResult SolveColebrook(double reynolds, double pipeId, const PipeMaterial* material,
                               double lastTerm) {
    double f = 0.01;
    double x = lastTerm;
    for (int round = 1; round <= MostRounds; ++round) {
        const double root = std::sqrt(f);
        if (material != nullptr) {
            x = (material->Roughness / 3.7) / pipeId + (material->Constant / reynolds) / root;
        }
        const double g = -0.8685999 * std::log(x) - 1 / root;
        // Not the derivative of g: it damps the step, and the factor found depends on it in its last figures.
        const double slope = 0.8685999 * x + 0.5 / (f * root);
        const double step = g / slope;
        if (std::fabs(step) <= SmallestStep) return {f, x, round, true};
        f -= step;
    }
    return {f, x, MostRounds + 1, false};
}

void CalcFrictionFactor() {
    Calc.FlowZone.clear();
    Calc.LaminarFactor = 0;
    if (Calc.ReynoldsNumber <= LaminarLimit) {
        TakeLaminarFactor();
    } else {
        TakeColebrookFactor();
    }
    Calc.FrictionFactor += Calc.FrictionFactor * Calc.PipeFouling / 100;
}

double LengthWithFittings() {
    double length = Calc.PipeLength[TheLine];
    for (const Fitting& fitting : Fittings) {
        const double count = Calc.*fitting.Count;
        // An absent fitting has an old equivalent length, or none: it must not even be multiplied by 0.
        if (count != 0) length += count * Calc.EquivLengthPerFitting[fitting.Element];
    }
    return length;
}

void CalcFriction() {
    Calc.ReynoldsNumber = ReynoldsOf(Calc.MassFlow, Calc.PipeId[TheLine], Calc.Viscosity);
    CalcFrictionFactor();
    CalcFlowStatus();
    if (Calc.CurrentProgram == program::LiquidLine) Calc.Density = Calc.FlowingSG * FrictionWaterDensity;

    Calc.MessageTitle = LineLossTitle;
    Calc.LossPer100 = LossPer100Feet(Calc.FrictionFactor, Calc.MassFlow, Calc.PipeId[TheLine], Calc.Density);
    Calc.Velocity = LineVelocity(Calc.MassFlow, Calc.Density, Calc.PipeId[TheLine]);
    const double equipment = Calc.EquipLoss[TheLine] / Calc.LossPer100 * 100;
    // A line that rises is longer for it, one that falls shorter.
    const double fall = Calc.Density * (Calc.Elevation[LineStart] - Calc.Elevation[LineEnd]) / 144;
    Calc.EquivLength = LengthWithFittings() + equipment - (fall / Calc.LossPer100) * 100;
}

}  // namespace quillmetra
