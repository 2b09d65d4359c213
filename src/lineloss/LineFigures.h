// What follows from the record of a line beside its results. The form shows it; nothing of it is stored or
// printed.
#pragma once

namespace quillmetra {

// In the fixed units of the calculations; no number where a figure is not known.
struct LineFigures {
    const char* Regime = "";     // laminar, critical, transition, turbulent
    double TotalLoss = 0;        // psi, source less destination
    double PipeAndFittings = 0;  // ft of straight pipe
    double OutletVelocity = 0;   // ft/s, where the fluid leaves the line
    double OutletDensity = 0;    // lb/ft3
};

// The parts make up the total loss.
struct LiquidFigures : LineFigures {
    double PipeLoss = 0, FittingsLoss = 0, EquipLoss = 0, ElevationLoss = 0;  // psi
    double VaporMargin = 0;    // psi, of the destination pressure over the vapor pressure
    double NpshAvailable = 0;  // ft of the liquid at the destination, without its velocity head
};

struct GasFigures : LineFigures {
    double OutletMach = 0;  // by the sonic velocity of the results
};

// Of a case of the record in hand whose results stand. The friction factor is found where it is not given.
LiquidFigures LiquidFiguresOf(int caseIndex, double frictionFactor = 0);
GasFigures GasFiguresOf(int caseIndex);

// Whether such a case is to pass more gas than its line can; never of a liquid, nor where the source is not
// known.
bool IsChoked(int caseIndex);

// ft of a liquid: 0.4331 psi is a foot of water.
double NpshOf(double margin, double gravity);

}  // namespace quillmetra
