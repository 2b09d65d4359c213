// See Temperature.h.
#include "units/Temperature.h"

namespace quillmetra {

namespace {

struct TemperatureUnit {
    std::string_view Name;
    double DegreesF;  // size of a degree
    double Zero;      // degF at the zero of a unit that does not count from absolute zero
    bool Absolute;
};

constexpr TemperatureUnit TemperatureUnits[] = {
    {"degF", 1, 0, false},
    {"degC", 1.8, 32, false},
    {"degR", 1, 0, true},
    {"degK", 1.8, 0, true},
};

const TemperatureUnit* FindUnit(std::string_view name) {
    for (const TemperatureUnit& unit : TemperatureUnits) {
        if (unit.Name == name) return &unit;
    }
    return nullptr;
}

}  // namespace

double ToDegF(std::string_view unit, double value, double factor) {
    const TemperatureUnit* const known = FindUnit(unit);
    if (known == nullptr) return value * factor;
    return known->Absolute ? value * known->DegreesF - ZeroFInDegR : value * known->DegreesF + known->Zero;
}

double FromDegF(std::string_view unit, double degF, double factor) {
    const TemperatureUnit* const known = FindUnit(unit);
    if (known == nullptr) return degF / factor;
    return (known->Absolute ? degF + ZeroFInDegR : degF - known->Zero) / known->DegreesF;
}

double ToDegR(std::string_view unit, double value, double factor) {
    const TemperatureUnit* const known = FindUnit(unit);
    if (known == nullptr) return value * factor;
    return known->Absolute ? value * known->DegreesF : (value * known->DegreesF + known->Zero) + ZeroFInDegR;
}

double FromDegR(std::string_view unit, double degR, double factor) {
    const TemperatureUnit* const known = FindUnit(unit);
    if (known == nullptr) return degR / factor;
    return (known->Absolute ? degR : (degR - ZeroFInDegR) - known->Zero) / known->DegreesF;
}

bool IsAboveAbsoluteZero(double degF) { return IsAboveZeroDegR(degF + ZeroFInDegR); }

bool IsAboveZeroDegR(double degR) { return degR > 1e-9; }

double AbsoluteZeroIn(std::string_view unit) { return FromDegF(unit, AbsoluteZeroF, 1); }

}  // namespace quillmetra
