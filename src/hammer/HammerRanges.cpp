// See HammerRanges.h.
#include "hammer/HammerRanges.h"

#include "units/CorrelationRange.h"

namespace quillmetra {

namespace {

constexpr CorrelationRange Ranges[] = {
    // The rise goes by inverse proportion and is not capped at Joukowski's.
    {"Selected time", [](const CalcRecord& record) { return record.SelectedTime; },
     [](const CalcRecord& record) { return record.CriticalTime; }, NoBound, BoundUnit::Seconds,
     "the pressure shown for it is more than a valve can cause",
     [](const CalcRecord& record) { return record.SelectedTime > 0; },
     [](const CalcRecord& record) { return 100 * (record.CriticalTime / record.SelectedTime - 1); }},
    // The wave comes back with the opposite sign: the pressure falls by as much as it rose.
    {"Pressure rise in psi", [](const CalcRecord& record) { return record.PressureRise; }, NoBound,
     [](const CalcRecord& record) { return record.FlowPressure; }, BoundUnit::None,
     "the returning wave may part the column, which is not calculated",
     [](const CalcRecord&) { return true; }, 100},
};

}  // namespace

HintList HammerHints() { return HintsOf(Ranges, Calc); }

}  // namespace quillmetra
