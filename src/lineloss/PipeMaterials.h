// The pipe materials and the pair of constants that each brings to the Colebrook equation.
#pragma once

#include <array>
#include <cstddef>

namespace quillmetra {

struct PipeMaterial {
    const char* Name;
    double Roughness;  // e, in
    double Constant;   // a; it varies by material and is not the usual 2.51 throughout
};

// Numbers 1 to 7 in this order. The names are those of the list and of the record; reports use longer ones.
inline constexpr std::array<PipeMaterial, 7> PipeMaterials = {{
    {"Steel", 0.0018, 2.51},
    {"Tubing", 0.000011, 2.5},
    {"Cast iron", 0.0103, 2.42},
    {"Galv. iron", 0.006, 2.5},
    {"Asphalted", 0.0048, 2.47},
    {"Concrete", 0.012, 2.5},
    {"Wood", 0.00725, 2.49},
}};

// The material of a number; null outside 1 to 7.
constexpr const PipeMaterial* FindPipeMaterial(int number) {
    if (number < 1 || number > static_cast<int>(PipeMaterials.size())) return nullptr;
    return &PipeMaterials[static_cast<std::size_t>(number - 1)];
}

}  // namespace quillmetra
