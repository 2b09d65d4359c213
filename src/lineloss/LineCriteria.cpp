// See LineCriteria.h.
#include "lineloss/LineCriteria.h"

#include <cmath>

#include "core/CalcRecord.h"
#include "platform/NumberText.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

std::string WithUnit(double limit, int unitRow) {
    return Str(RoundedThree(limit / Calc.UnitFactor[At(unitRow)])) + " " + Calc.UnitName[At(unitRow)];
}

// For a hundred of the unit of length.
std::string LargestLossOf(const LineCriterion& criterion) {
    return WithUnit(criterion.LargestLoss * Calc.UnitFactor[unit::Length], unit::PressureDrop) + " per 100 " +
           Calc.UnitName[unit::Length];
}

void Add(std::string& list, const std::string& part) { list += (list.empty() ? "" : ", ") + part; }

}  // namespace

std::string ExcessOf(const LineCriterion& criterion, const LineFigures& figures, double lossPer100) {
    std::string excess;
    const double loss = lossPer100 * Calc.UnitFactor[unit::PressureDrop] / Calc.UnitFactor[unit::Length];
    const double erosional = criterion.ErosionalC / std::sqrt(figures.OutletDensity);
    if (criterion.LargestVelocity > 0 && figures.OutletVelocity > criterion.LargestVelocity)
        Add(excess, "velocity above" + WithUnit(criterion.LargestVelocity, unit::Velocity));
    if (criterion.ErosionalC > 0 && figures.OutletVelocity > erosional)
        Add(excess, "velocity above" + WithUnit(erosional, unit::Velocity));
    if (criterion.LargestLoss > 0 && loss > criterion.LargestLoss)
        Add(excess, "loss above" + LargestLossOf(criterion));
    return excess;
}

std::string LimitsOf(const LineCriterion& criterion) {
    std::string limits;
    if (criterion.LargestVelocity > 0)
        Add(limits, "velocity up to" + WithUnit(criterion.LargestVelocity, unit::Velocity));
    if (criterion.ErosionalC > 0)
        Add(limits, "velocity up to" + Str(criterion.ErosionalC) + " / sqrt(lb/ft3) ft/s");
    if (criterion.LargestLoss > 0) Add(limits, "loss up to" + LargestLossOf(criterion));
    return limits;
}

std::string SourceOf(const LineCriterion& criterion) {
    return criterion.Source.empty() ? "" : " (" + criterion.Source + ")";
}

}  // namespace quillmetra
