// The case in hand with another pipe or another flow, calculated by the routines of the line itself. The
// record is a working copy meanwhile and stands as before when a trial ends; what the calculation would tell
// is not told.
#pragma once

#include <chrono>
#include <string>

#include "core/CalcRecord.h"
#include "core/Filling.h"
#include "lineloss/LineFigures.h"
#include "lineloss/LineResults.h"
#include "platform/Dialogs.h"

namespace quillmetra {

// Where a fluid gets to on its line.
enum class Outcome {
    Reached,
    ZeroPressure,  // the pressure is used up before the end
    Sonic,         // the gas becomes as fast as sound, at the inlet or on the way
    NoResult,      // the figures have no result, as one that is not finite
    Stopped        // the user pressed Escape
};

struct LineTrial {
    Outcome End = Outcome::NoResult;
    double EndPressure = 0;  // psia, of the end that the case calculates
    LineResults Results{};  // in the units of the record; pressure and loss are 0 when the end is not reached
    double Reynolds = 0;
    GasFigures Figures{};   // a liquid's has no Mach number
    bool IsChoked = false;  // a gas of which the line passes less, though the march may reach its end
};

// Needs what data checking has put into the working layer of the record in hand, program 1 or 2. Trials of a
// gas that take their time hear Escape between two of them; those of a liquid never do.
class LineTrials {
public:
    LineTrials();
    ~LineTrials();
    LineTrials(const LineTrials&) = delete;
    LineTrials& operator=(const LineTrials&) = delete;

    // The inside diameter, in the unit of row PipeSize.
    LineTrial WithDiameter(double diameter);
    // The flow, in the unit and basis of the record; above 0.
    LineTrial WithFlow(double flow);

private:
    using Clock = std::chrono::steady_clock;

    bool IsStopped() const;
    LineTrial Run();

    const Clock::time_point start_ = Clock::now();
    const CalcRecord checked_ = Calc;
    const HeldMessages held_;
    const Setting zoneUntold_;
};

// The flow that makes a line end at a pressure.
struct FlowAnswer {
    double Flow = 0;   // in the unit and basis of the record, four figures; 0 when there is none
    std::string Told;  // why there is none, or what of it the user is to know
};
// endPressure: that of the end which the case calculates, in the unit and mode of the record. Needs the same
// as LineTrials; the flow of the case in hand does not count.
FlowAnswer FlowForPressure(double endPressure);

}  // namespace quillmetra
