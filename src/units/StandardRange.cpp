// See StandardRange.h.
#include "units/StandardRange.h"

#include "core/CalcRecord.h"
#include "core/StartUp.h"
#include "core/Words.h"
#include "platform/NumberText.h"
#include "units/NamedUnitSets.h"
#include "units/Rounding.h"
#include "units/Temperature.h"

namespace quillmetra {

namespace {

struct Usual {
    double Lowest, Highest;
    bool Holds(double value) const { return value >= Lowest && value <= Highest; }
};
constexpr Usual Pressures = {13, 16};      // psia
constexpr Usual Temperatures = {32, 100};  // degF

std::string Shown(double value, const char* unit) { return TrimmedStr(RoundedFour(value)) + " " + unit; }

std::string HintOf(const char* whose, double pressure, double temperature) {
    if (Pressures.Holds(pressure) && Temperatures.Holds(temperature)) return {};
    const bool si = Calc.UnitSystem == words::SI;
    return whose + (si ? Shown(pressure / PsiPerKPa, "kPaa") : Shown(pressure, "psia")) + " and " +
           (si ? Shown(FromDegF("degC", temperature, 1), "degC") : Shown(temperature, "degF")) +
           ": check Base conditions.";
}

std::string FileHint(const char* whose) {
    const auto file = ReadStandardFile();
    return file ? HintOf(whose, file->Pressure, file->Temperature) : "";
}

constexpr const char* InForce = "Standard pressure and temperature are ";

}  // namespace

HintList StandardConditionsHints() {
    const std::string hint = HintOf(InForce, Calc.StdPressure, Calc.StdTemperature);
    return hint.empty() ? HintList{} : HintList{{0, hint}};
}
std::string FileConditionsHint() { return FileHint(InForce); }
std::string FileConditionsNote() { return FileHint("The next start reads standard conditions of "); }

}  // namespace quillmetra
