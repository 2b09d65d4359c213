// What a pressure wave does to a liquid line when the valve at its end closes (Joukowski).
//
// Units throughout: gravity against water at 60 degF, moduli and pressures psi, diameter and wall in, length
// ft, velocities ft/s, times s, mass flow lb/h, thrust lb. The constants are the suite's own; they come
// within 0.1 % of those that follow from 62.366 lb/ft3 and 32.174 ft/s2. No function guards against a zero:
// data checking refuses one before.
#pragma once

#include <vector>

namespace quillmetra {

// D. J. Korteweg, Ann. Phys. 241 (1878) 525: a = 8.618176 / sqrt(gravity (1 / K + (d / wall) / E)). The
// pipe's walls give way, and so the wave is slower than sound in the liquid, 8.618176 sqrt(K / gravity).
double WaveVelocityOf(double gravity, double bulkModulus, double diameter, double wall, double pipeModulus);

// Of the flow: m / (rho area).
double FlowVelocityOf(double massFlow, double gravity, double diameter);

// N. Joukowsky (1898): the rise when the flow stops at once, rho a v.
double PressureRiseOf(double waveVelocity, double flowVelocity, double gravity);

// On the support of a bend, by the rise over the pipe's bore.
double ThrustOf(double rise, double diameter);

// The wave's way to the end of the line and back. A valve that closes in less lets the full rise build up.
double CriticalTimeOf(double length, double waveVelocity);

// The shortest closing time that keeps within the allowable rise.
double MinimumTimeOf(double rise, double allowableRise, double criticalTime);

// The rise of a closing time by inverse proportion, the customary rule (E. B. Wylie and V. L. Streeter,
// 1993). It is not capped: a time shorter than the critical one gives a rise above Joukowski's, which no
// valve can bring about.
double RiseAtTime(double rise, double criticalTime, double closingTime);

// From the record's working layer to its working layer and HammerResult, with four figures in the units
// shown: 12 critical time, 13 wave velocity (unit row 20), 14 wave pressure (3), 15 thrust (0), 16 minimum
// time. Sets the unit of force. The results of a selected time, 17 and 18, no longer hold and become 0.
// MinimumTime is by absolute pressures, WavePressure by the pressure as entered. Throws a RuntimeError, with
// no result changed, when one is not finite.
void CalcCriticalClosing();

// After it: 17 wave pressure at SelectedTime (unit row 3), 18 thrust (0), by CriticalTime as it was rounded.
// Fails in the same way.
void CalcSelectedClosing();

// Whether the results have those of a selected time.
bool HasSelectedClosing();

// The pressure against the closing time, for a drawing that leaves out what is not finite: it never throws.
// It is drawn of the results as they are shown, so that those of a saved record have it too. The curve takes
// in the critical, the minimum and, where there is one, the selected time.
struct ClosingCurve {
    std::vector<double> Times;      // s, ascending
    std::vector<double> Pressures;  // unit row 3, gauge or absolute as the pressure mode
};
ClosingCurve ClosingCurveOfRecord();

}  // namespace quillmetra
