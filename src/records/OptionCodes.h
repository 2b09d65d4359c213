// The codes of a record's head: CalcOption and OtherCalcs have eight letters each, with a code at fixed
// places, and the program number has the unit set with it. Whoever saves and whoever loads them takes them
// from here.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace quillmetra {

struct OptionCode {
    std::size_t Position;  // counted from 1
    std::string_view Letters;
};

namespace code {
// In CalcOption. Of each pair the first alone is looked for, and anything else is the second.
inline constexpr OptionCode DensityMode{1, "DN"}, GravityMode{1, "SG"};
inline constexpr OptionCode AbsolutePressure{3, "AB"}, GaugePressure{3, "GA"};
inline constexpr OptionCode FluidLoaded{5, "L"}, FluidNotLoaded{5, "N"};
// In OtherCalcs: the rows that the record has in other tables.
inline constexpr OptionCode PressureDropRow{1, "PD"}, NoPressureDropRow{1, "XX"};
inline constexpr OptionCode FluidDataRow{3, "FD"};
inline constexpr OptionCode WaterHammerRow{5, "WH"};
inline constexpr OptionCode Mixture{7, "MX"}, PureFluid{7, "XX"};
inline constexpr OptionCode Superheated{7, "SU"}, Saturated{7, "SA"};
}  // namespace code

// The program of a stored number, which has the unit set behind the program's digit; up to 90 it is the
// program itself.
constexpr bool HasUnitSet(int storedProgramNumber) { return storedProgramNumber > 90; }
constexpr int ProgramOf(int storedProgramNumber) {
    return HasUnitSet(storedProgramNumber) ? storedProgramNumber / 100 : storedProgramNumber;
}

inline bool HasCode(std::string_view codes, const OptionCode& wanted) {
    const std::size_t first = wanted.Position - 1;
    return first < codes.size() && codes.substr(first, wanted.Letters.size()) == wanted.Letters;
}

inline void SetCode(std::string& codes, const OptionCode& wanted) {
    if (codes.size() < 8) codes.resize(8, 'X');
    codes.replace(wanted.Position - 1, wanted.Letters.size(), wanted.Letters);
}

}  // namespace quillmetra
