// See LineCriteria.h.
#include "lineloss/LineCriteria.h"

#include <cmath>

#include "core/CalcRecord.h"
#include "platform/NumberText.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

std::string Above(const char* quantity, double limit, int unitRow) {
    return std::string(quantity) + " above" + Str(RoundedThree(limit / Calc.UnitFactor[At(unitRow)])) + " " +
           Calc.UnitName[At(unitRow)];
}

void Add(std::string& list, const std::string& part) { list += (list.empty() ? "" : ", ") + part; }

}  // namespace

std::string ExcessOf(const LineCriterion& criterion, const LineFigures& figures, double lossPer100) {
    std::string excess;
    const double erosional = criterion.ErosionalC / std::sqrt(figures.OutletDensity);
    if (criterion.LargestVelocity > 0 && figures.OutletVelocity > criterion.LargestVelocity)
        Add(excess, Above("velocity", criterion.LargestVelocity, unit::Velocity));
    if (criterion.ErosionalC > 0 && figures.OutletVelocity > erosional)
        Add(excess, Above("velocity", erosional, unit::Velocity));
    if (criterion.LargestLoss > 0 && lossPer100 > criterion.LargestLoss) {
        // For a hundred of the unit of length.
        const double limit = criterion.LargestLoss * Calc.UnitFactor[unit::Length];
        Add(excess, Above("loss", limit, unit::PressureDrop) + " per 100 " + Calc.UnitName[unit::Length]);
    }
    return excess;
}

}  // namespace quillmetra
