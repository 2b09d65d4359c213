// The pressure at the far end of a gas or steam line, which is marched foot by foot because a gas expands on
// its way, and a case's results in the units shown.
#pragma once

#include <functional>

#include "lineloss/LineResults.h"

namespace quillmetra {

// Of isentropic flow: 4639 is 144 in2/ft2 x 32.2 ft/s2 to 0.05 %. ft/s, from psia and lb/ft3.
double SonicVelocityOf(double ratioSpecificHeats, double pressure, double density);

// The friction factor of the line of the record in hand, and at the inlet CompressFactor, Density, LossPer100
// and Velocity; FittingsEquivLength, without equipment and elevation. Needs what data checking has put into
// the working layer. Tells the flow zone, and when an iteration does not converge.
void CalcGasFriction();

// A place on the line during the march.
struct GasStation {
    double Part;           // of the line: 0 at the inlet, 1 at the far end
    double Pressure;       // psia
    double Velocity;       // ft/s
    double SonicVelocity;  // ft/s
};
// Gets the inlet and the end of each step, the last step even when it stops the march. A long line has
// millions of steps.
using GasLineObserver = std::function<void(const GasStation&)>;

// Sets FlowPressure (psia) at the far end, Velocity, SonicVelocity, EquivLength and the rest at the last
// step, after CalcGasFriction. One step for each whole foot of straight pipe, at least 20. A march that stops
// tells the user why:
//   sonic velocity at the inlet   the flow that the line can take is told; Velocity becomes SonicVelocity,
//                                 EquivLength 0
//   sonic velocity in the line    Velocity becomes SonicVelocity
//   zero pressure                 FlowPressure becomes 0
// Above 1,000,000 steps the host may breathe every 100,000 steps. False when the user then pressed Escape:
// there is no result to show.
bool CalcGasProfile(const GasLineObserver& observer = {});

// The equivalent length is that of the last step; it is 0, and with it the loss, when the inlet is sonic.
struct GasLineResults : LineResults {
    bool IsSonic;          // the line has no pressure at its end
    double SonicVelocity;  // unit row 20
};

// Throws a RuntimeError when a result is not finite.
GasLineResults GasLineResultsOf(const CalcRecord& record);

}  // namespace quillmetra
