// See RecordUnits.h.
#include "units/RecordUnits.h"

#include <cmath>

#include "core/CalcRecord.h"

namespace quillmetra {

bool IsUsableFactor(double factor) { return factor > 0 && std::isnormal(factor); }

void MendUnitFactors() {
    for (UnitFactors* factors : {&Calc.UnitFactor, &Calc.UnitFactorPrevious}) {
        for (double& factor : *factors) {
            if (!IsUsableFactor(factor)) factor = 1;
        }
    }
}

void RememberUnits() {
    Calc.UnitNamePrevious = Calc.UnitName;
    Calc.UnitFactorPrevious = Calc.UnitFactor;
    Calc.BasisPrevious = Calc.Basis;
    Calc.LiquidBasisPrevious = Calc.LiquidBasis;
}

void RenewChosenUnitNames() {
    Calc.ChosenUnitRowNames[chosen::Temperature] = Calc.UnitName[unit::Temperature];
    Calc.ChosenUnitRowNames[chosen::CritTemperature] = Calc.UnitName[unit::CritTemperature];
    Calc.ChosenUnitRowNames[chosen::Viscosity] = Calc.UnitName[unit::Viscosity];
}

}  // namespace quillmetra
