// See LineRanges.h. How each bound was found stands beside it.
#include "lineloss/LineRanges.h"

#include <algorithm>

#include "core/Programs.h"
#include "fluids/GasCorrelations.h"
#include "lineloss/FlowStatus.h"
#include "lineloss/Friction.h"
#include "units/CorrelationRange.h"

namespace quillmetra {

namespace {

double Reynolds(const CalcRecord& record) { return record.ReynoldsNumber; }
bool IsLaminar(const CalcRecord& record) { return record.ReynoldsNumber <= LaminarLimit; }
bool Always(const CalcRecord&) { return true; }
bool IsGas(const CalcRecord& record) { return record.CurrentProgram == program::GasLine; }

double RelativeRoughness(const CalcRecord& record) {
    const PipeMaterial* const material = FindPipeMaterial(record.PipeMaterialNumber);
    return material == nullptr ? 0 : material->Roughness / record.PipeId[TheLine];
}

// Fittings that go by their ratio of length to diameter.
bool HasFittings(const CalcRecord& record) {
    return std::any_of(Fittings.begin(), Fittings.end(), [&](const Fitting& fitting) {
        return !fitting.CountIsK && record.*fitting.Count != 0;
    });
}

double HighestPressure(const CalcRecord& record) {
    return std::max(record.SourcePressure[TheLine], record.FlowPressure);
}

constexpr CorrelationRange Ranges[] = {
    // Friction jumps between the two laws of flow.
    {"Reynolds number", Reynolds, CriticalLimit, NoBound, BoundUnit::None,
     "neither laminar nor turbulent, the friction is uncertain",
     [](const CalcRecord& record) { return !IsLaminar(record); }},
    // K = f_T (L/D) is measured in full turbulence.
    {"Reynolds number", Reynolds, LaminarLimit, NoBound, BoundUnit::None,
     "the fittings count as in turbulent flow",
     [](const CalcRecord& record) { return IsLaminar(record) && HasFittings(record); }},
    // The ends of Moody's chart.
    {"Reynolds number", Reynolds, NoBound, 1e8, BoundUnit::None, "beyond the chart of friction factors",
     Always},
    {"Roughness over diameter", RelativeRoughness, NoBound, 0.05, BoundUnit::None,
     "beyond the chart of friction factors", [](const CalcRecord& record) { return !IsLaminar(record); }},
    // Behind the last row of the factors of complete turbulence that of the case before stays.
    {"Inside diameter", [](const CalcRecord& record) { return record.PipeId[TheLine]; }, NoBound, 47.999,
     BoundUnit::PipeDiameter, "do not rely on the loss of the fittings", HasFittings},
    {"Loss in psi per 100 ft", [](const CalcRecord& record) { return record.LossPer100; }, NoBound,
     LargestLoss*(1 - 1e-12), BoundUnit::None, "it is held there", Always},

    // The momentum balance of isothermal flow divides the friction loss by 1 - k M^2: 13 % more at 0.3.
    {"Velocity over sonic velocity",
     [](const CalcRecord& record) { return record.Velocity / record.SonicVelocity; }, NoBound, 0.3,
     BoundUnit::None, "the loss that speeds up the gas is not in the result", IsGas},
    {"Pressure", HighestPressure, NoBound,
     [](const CalcRecord& record) {
         return RedlichKwongLimit(record.CritTemperature, record.CritPressure, record.FlowTemperature);
     },
     BoundUnit::Pressure, "so near to the liquid the compressibility factor is rough", IsGas},
};

}  // namespace

std::string LineHints() { return HintsOf(Ranges, Calc); }

}  // namespace quillmetra
