// See Viscosity.h.
#include "units/Viscosity.h"

#include "core/CalcRecord.h"

namespace quillmetra {

double LiquidViscosityShown(double viscosity, double gravity) {
    const double shown = viscosity / Calc.UnitFactor[unit::Viscosity];
    const double centistokes = CentistokesPerUnit(Calc.UnitName[unit::Viscosity]);
    return centistokes > 0 ? shown / gravity / centistokes : shown;
}

double GasViscosityShown(double viscosity, double molecularWeight) {
    const double shown = viscosity / Calc.UnitFactor[unit::Viscosity];
    const double centistokes = CentistokesPerUnit(Calc.UnitName[unit::Viscosity]);
    return centistokes > 0 ? shown * MolarViscosity / molecularWeight / centistokes : shown;
}

}  // namespace quillmetra
