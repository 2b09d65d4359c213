// The four unit sets that the suite brings along: English and SI, flow by mass or by volume.
#pragma once

#include <array>

#include "core/PhysicalConstants.h"

namespace quillmetra {

constexpr int UserUnitSet = 5;

struct NamedUnitSet {
    // A flow unit: composite of quantity and time base, with the factor to lb/h, USgal/h or sft3/h.
    struct FlowUnit {
        const char* Name;
        double Factor;
    };

    int Number;  // as kept in LiquidUnitSet and GasUnitSet
    const char* Name;
    const char* Basis;
    const char* System;
    FlowUnit Liquid, Gas;
};

extern const std::array<NamedUnitSet, 4> NamedUnitSets;

// Puts the record on a set: flow row and basis of its fluid type, all other rows, names, standard
// conditions. The basis in force before is kept as the previous one. No value of a case is converted. Set 5
// is the user's own, see UserUnits.h. False, with nothing changed, for a number that names no set and for an
// empty user set.
bool ApplyNamedUnitSet(int set);

// Puts the standard conditions (rows 21 to 23) on English or SI units from StdTemperature (degF),
// StdPressure and BaroPressure (psia), sets UnitSystem, and keeps the three in StdConditions for a cancel.
void STPEnglish();
void STPSI();

}  // namespace quillmetra
