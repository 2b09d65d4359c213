// The most gas that a line can pass, whatever the pressure behind it: adiabatic flow of an ideal gas with
// friction, which reaches sonic velocity at the end of the line. A. H. Shapiro, The Dynamics and
// Thermodynamics of Compressible Fluid Flow, volume 1 (1953), chapter 6; named after G. Fanno.
//
// It stands beside the results and changes none: the march is isothermal, leaves out the pressure that speeds
// the gas up, and reaches sonic velocity at a greater flow.
#pragma once

#include "units/CorrelationRange.h"

namespace quillmetra {

// f L / D from a Mach number up to 1 to sonic velocity, by the ratio of specific heats.
double FannoLengthOf(double mach, double k);

// The Mach number at the inlet of a line of f L / D that is choked at its end.
double ChokedInletMach(double frictionLength, double k);

// Velocity over sonic velocity at the outlet of the gas line that has just been calculated, as the march has
// them. With the destination pressure given that is where the march began.
double OutletMach(const CalcRecord& record);

// A line from the static state at its source, behind its equipment.
struct ChokingLine {
    double Pressure, Temperature;  // psia, degF; no number where the source is not known
    double MolecularWeight, RatioSpecificHeats, CritTemperature, CritPressure;  // degR, psia
    double Diameter, FrictionLength;                                            // in; f L / D
};

// Its choked flow (lb/h); no number where the source is not known.
double ChokedFlowOf(const ChokingLine& line);

// The same of the gas line that has just been calculated, with its friction factor, fittings and k. The
// source is not known when a march towards it stopped.
double ChokedFlowOf(const CalcRecord& record);

// The velocity over sonic velocity that the march shows at the outlet of a line when it passes its choked
// flow.
double ShownMachOfChoking(double frictionLength);

// What is to be told of it: from 0.3 of sonic velocity at the outlet, and when the march has stopped.
HintList ChokedFlowHints(const CalcRecord& record);

}  // namespace quillmetra
