// See Viscosity.h.
#include "units/Viscosity.h"

#include "core/CalcRecord.h"

namespace quillmetra {

double LiquidViscosityShown(double viscosity, double gravity) {
    const double shown = viscosity / Calc.UnitFactor[7];
    const double centistokes = CentistokesPerUnit(Calc.UnitName[7]);
    return centistokes > 0 ? shown / gravity / centistokes : shown;
}

double GasViscosityShown(double viscosity, double molecularWeight) {
    const double shown = viscosity / Calc.UnitFactor[7];
    const double centistokes = CentistokesPerUnit(Calc.UnitName[7]);
    return centistokes > 0 ? shown * MolarViscosity / molecularWeight / centistokes : shown;
}

}  // namespace quillmetra
