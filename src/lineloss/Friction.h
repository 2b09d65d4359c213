// Friction factor of a line, and the pressure loss and velocity that follow from it. Liquid and gas programs
// share the formulas; CalcFriction strings them together for a liquid.
#pragma once

#include "lineloss/PipeMaterials.h"

namespace quillmetra {

// The title of the boxes that tell of a loss.
inline constexpr const char* LineLossTitle = "Line pressure loss calculation";

// Bounds of the flow zones by Reynolds number; each belongs to the zone below it.
constexpr double LaminarLimit = 2000;
constexpr double CriticalLimit = 4000;

// 62.36 lb/ft3 here, where data checking turns an entered density into a gravity by 62.366: a density entered
// as such comes back a little changed.
inline constexpr double FrictionWaterDensity = 62.36;

// Resistance coefficients K of a ticked entrance and exit, in velocity heads; usual figures are 0.5 and 1.
inline constexpr double EntranceResistance = 1.5;
inline constexpr double ExitResistance = 2.7;

// Of the Reynolds number below. The march of a gas takes its own with more digits.
inline constexpr double ReynoldsConstant = 6.31;
inline constexpr double GasReynoldsConstant = 6.31533;

// The definition, 4 W / (pi d u), as 6.31 x flow (lb/h) / inside diameter (in) / viscosity (cp).
double ReynoldsOf(double massFlow, double pipeId, double viscosity);

struct ColebrookResult {
    double Factor;  // Darcy friction factor
    double Term;    // x of the last round
    int Rounds;     // 101 when it did not converge
    bool Converged;
};

// C. F. Colebrook, J. Inst. Civ. Eng. 11 (1939) 133: solves
// 1 / sqrt(f) = -2 log10(e / 3.7 / D + a / (Re sqrt(f))) for the Darcy friction factor f by damped
// Newton steps from 0.01 until a step is 1e-6 or less, at most 100 rounds. pipeId in inches, as the
// roughness. Without a material the Colebrook term stays at lastTerm.
ColebrookResult SolveColebrook(double reynolds, double pipeId, const PipeMaterial* material, double lastTerm);

constexpr double LargestLoss = 50000.0;  // psi per 100 ft

// The next two stand here because a gas line calls them foot by foot.

// Darcy's formula as Crane's Technical Paper No. 410 has it: psi per 100 ft, at most LargestLoss. Flow lb/h,
// inside diameter in, density lb/ft3.
inline double LossPer100Feet(double frictionFactor, double massFlow, double pipeId, double density) {
    const double fifthPower = pipeId * pipeId * pipeId * pipeId * pipeId;
    const double loss = 0.000336 * frictionFactor * (massFlow * massFlow) / fifthPower / density;
    return loss > LargestLoss ? LargestLoss : loss;
}

// Continuity, 4 W / (pi d2 rho): ft/s from flow (lb/h), density (lb/ft3) and inside diameter (in).
inline double LineVelocity(double massFlow, double density, double pipeId) {
    return massFlow / 19.65 / density / (pipeId * pipeId);
}

// Sets FrictionFactor, LaminarFactor, FlowZone, IterationCount and, for laminar flow, TurbulentFactor from
// ReynoldsNumber and the pipe; fouling is in it. Warns when the iteration does not converge, and goes on.
void CalcFrictionFactor();

// Straight pipe, fittings, entrance and exit as feet of pipe, from EquivLengthPerFitting.
double LengthWithFittings();

// The liquid line of the record in hand: friction factor, flow status, LossPer100, Velocity and EquivLength
// with equipment and elevation in it. Needs what data checking has put into the working layer.
void CalcFriction();

}  // namespace quillmetra
