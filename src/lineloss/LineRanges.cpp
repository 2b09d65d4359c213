// See LineRanges.h. How each bound was found stands beside it.
#include "lineloss/LineRanges.h"

#include <algorithm>
#include <cmath>

#include "core/Programs.h"
#include "fluids/FluidRanges.h"
#include "fluids/GasCorrelations.h"
#include "fluids/LiquidCorrelations.h"
#include "lineloss/ChokedFlow.h"
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

double LowestPressure(const CalcRecord& record) {
    return std::min(record.SourcePressure[TheLine], record.FlowPressure);
}
double HighestReducedPressure(const CalcRecord& record) {
    return HighestPressure(record) / record.CritPressure;
}

// A march that stops shows no loss.
bool HasGasLoss(const CalcRecord& record) {
    return IsGas(record) && record.Velocity != record.SonicVelocity && record.FlowPressure > 0;
}
// Exact isothermal flow of air in 4 in pipe, by Mach number at the outlet.
constexpr MeasuredError GasLosses[] = {{0.3, -12}, {0.38, -16}, {0.46, -28}, {0.55, -40}, {0.69, -67}};

double VaporPressure(const CalcRecord& record) {
    return record.CaseInput[input::VaporPressure][At(record.CaseIndex)] *
           record.UnitFactor[unit::VaporPressure];
}
bool HasVaporPressure(const CalcRecord& record) {
    return record.CurrentProgram == program::LiquidLine && VaporPressure(record) > 0;
}

// The sonic velocity takes k of an ideal gas, which falls near to the liquid, the more the heavier the
// molecule is: k tells. From where on it is 3 % high, and how high by the reduced pressure over that; of
// propane, butane, hexane and toluene by their reference equations, within a fifth.
double SonicGoodTo(const CalcRecord& record) {
    constexpr double warm = 1.25, light = 1.2;
    const double reduced = ReducedTemperatureOf(record.FlowTemperature, record.CritTemperature);
    const double k = record.RatioSpecificHeats;
    if (reduced > warm || k > light) return NoBound.Number;
    const double good = 3 * std::pow(reduced, 4) / (20 - 85 * (k - 1));
    return std::fmax(0.01, std::round(good * 100) / 100);
}
constexpr MeasuredError SonicVelocities[] = {{1, 3},    {2, 7},  {2.5, 9.5}, {3, 14},
                                             {3.5, 18}, {4, 25}, {4.5, 35}};

double LastReducedPressure(const CalcRecord& record) { return record.FlowPressure / record.CritPressure; }

constexpr CorrelationRange Ranges[] = {
    // Friction jumps between the two laws of flow.
    {"Reynolds number", Reynolds, CriticalLimit, NoBound, BoundUnit::None,
     "neither laminar nor turbulent, the friction is uncertain",
     [](const CalcRecord& record) { return !IsLaminar(record); }, 50},
    // K = f_T (L/D) is measured in full turbulence.
    {"Reynolds number", Reynolds, LaminarLimit, NoBound, BoundUnit::None,
     "the fittings count as in turbulent flow",
     [](const CalcRecord& record) { return IsLaminar(record) && HasFittings(record); }, 50},
    // The ends of Moody's chart.
    {"Reynolds number", Reynolds, NoBound, 1e8, BoundUnit::None, "beyond the chart of friction factors",
     Always},
    {"Roughness over diameter", RelativeRoughness, NoBound, 0.05, BoundUnit::None,
     "beyond the chart of friction factors", [](const CalcRecord& record) { return !IsLaminar(record); }},
    // Behind the last row of the factors of complete turbulence that of the case before stays.
    {"Inside diameter", [](const CalcRecord& record) { return record.PipeId[TheLine]; }, NoBound, 47.999,
     BoundUnit::PipeDiameter, "do not rely on the loss of the fittings", HasFittings, 20},
    {"Loss in psi per 100 ft", [](const CalcRecord& record) { return record.LossPer100; }, NoBound,
     LargestLoss*(1 - 1e-12), BoundUnit::None, "it is held there", Always, 1000},
    // Two phases flow from where the pressure falls to it, and may lose several times as much.
    {"Pressure", LowestPressure, VaporPressure, NoBound, BoundUnit::Pressure,
     "the liquid flashes; the loss of two phases, several times as great, is not calculated",
     HasVaporPressure, 300},

    // The momentum balance of isothermal flow divides the friction loss by 1 - k M^2: 13 % more at 0.3.
    {"Velocity over sonic velocity", OutletMach, NoBound, 0.3, BoundUnit::None,
     "the loss is about {}, without what speeds up the gas", HasGasLoss,
     [](const CalcRecord& record) { return ErrorAt(GasLosses, OutletMach(record)); }},
    {"Reduced pressure", LastReducedPressure, NoBound, SonicGoodTo, BoundUnit::None,
     "the sonic velocity is about {}, and choking is told late", IsGas,
     [](const CalcRecord& record) {
         return ErrorAt(SonicVelocities, LastReducedPressure(record) / SonicGoodTo(record));
     }},
    {"Pressure", HighestPressure, NoBound,
     [](const CalcRecord& record) {
         return RedlichKwongLimit(record.CritTemperature, record.CritPressure, record.FlowTemperature);
     },
     BoundUnit::Pressure, NearLiquidText, IsGas, NearLiquidError},
    {"Reduced pressure", HighestReducedPressure, NoBound, BesideCriticalPressure, BoundUnit::None,
     BesideCriticalText, [](const CalcRecord& record) { return IsGas(record) && IsBesideCritical(record); },
     BesideCriticalError},
};

}  // namespace

HintList LineHints() {
    const HintList hints = HintsOf(Ranges, Calc);
    return IsGas(Calc) ? Together(hints, ChokedFlowHints(Calc)) : hints;
}

}  // namespace quillmetra
