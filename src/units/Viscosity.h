// Kinematic viscosity units among the units of viscosity.
#pragma once

#include <string_view>

namespace quillmetra {

// Centistokes per unit: 1 for "cs", 1000000 for "m2/s", 0 for a unit of dynamic viscosity. Dynamic viscosity
// (cp) is kinematic viscosity (centistokes) times specific gravity.
constexpr double CentistokesPerUnit(std::string_view unit) {
    if (unit == "cs") return 1;
    if (unit == "m2/s") return 1e6;
    return 0;
}

// Centistokes per cp of a gas, times its molecular weight.
constexpr double MolarViscosity = 23588;

// A viscosity in cp as the record shows it, in the unit of row 7: that of a liquid of a specific gravity, and
// that of a gas, whose molecular weight stands for its density.
double LiquidViscosityShown(double viscosity, double gravity);
double GasViscosityShown(double viscosity, double molecularWeight);

}  // namespace quillmetra
