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

}  // namespace quillmetra
