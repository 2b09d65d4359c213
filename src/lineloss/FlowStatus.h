// In which zone a line flows, and what its fittings amount to in feet of straight pipe.
#pragma once

#include <array>
#include <cstddef>

#include "core/CalcRecord.h"

namespace quillmetra {

// A fitting's K is its ratio of length to diameter times the factor of complete turbulence. Entrance and exit
// give their K themselves: 1.5 and 2.7, which allow for a large change of line size.
struct Fitting {
    std::size_t Element = 0;  // of EquivLengthPerFitting
    double LengthToDiameter = 0;
    double CalcRecord::*Count = nullptr;
    bool CountIsK = false;
};

// In the order in which the equivalent length sums them. Ratios after Crane Technical Paper No. 410.
inline constexpr std::array<Fitting, 9> Fittings = {{
    {1, 0, &CalcRecord::EntranceK, true},
    {2, 8, &CalcRecord::GateValves},
    {3, 350, &CalcRecord::GlobeValves},
    {4, 40, &CalcRecord::CheckValves},
    {5, 20, &CalcRecord::Ells90},
    {6, 10, &CalcRecord::Ells45},
    {7, 60, &CalcRecord::BranchTees},
    {8, 20, &CalcRecord::ThruTees},
    {9, 0, &CalcRecord::ExitK, true},
}};

struct TurbulenceRow {
    double DiameterBelow;  // in
    double Factor;         // of complete turbulence
    double ReynoldsLimit;  // below it the flow is in transition
};

// The first row whose limit exceeds the inside diameter (in); null at 48 in and above.
const TurbulenceRow* FindTurbulenceRow(double pipeId);

// The zone in a word: laminar, critical, transition or turbulent. The friction goes by the first Reynolds
// number, transition by the second one, of the liquid's constant.
const char* FlowRegimeOf(double reynolds, double statusReynolds, double pipeId);

// Sets ReynoldsNumber (by the liquid's constant, for gas too), TurbulentFactor, TransitionMark and the
// equivalent lengths of the fittings that the line has, and tells the user the flow zone. The answer No hides
// that message for the rest of the run. At 48 in and above TurbulentFactor keeps its last value.
void CalcFlowStatus();

// For its life the zone is told without the question that can hide it, as where several cases are calculated
// in one act. It does not nest.
class FlowStatusAlone {
public:
    FlowStatusAlone();
    ~FlowStatusAlone();
    FlowStatusAlone(const FlowStatusAlone&) = delete;
    FlowStatusAlone& operator=(const FlowStatusAlone&) = delete;
};

}  // namespace quillmetra
