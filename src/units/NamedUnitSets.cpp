// See NamedUnitSets.h.
#include "units/NamedUnitSets.h"

#include <algorithm>

#include "core/CalcRecord.h"
#include "core/Words.h"
#include "units/RecordUnits.h"
#include "units/Rounding.h"
#include "units/Temperature.h"
#include "units/UnitCatalogue.h"
#include "units/UserUnits.h"

namespace quillmetra {

// The litre by its exact gallon, not by the rounded 0.264172 of the unit list.
const std::array<NamedUnitSet, 4> NamedUnitSets = {{
    {1, "English mass units", words::Mass, words::English, {"lb/h", 1}, {"lb/h", 1}},
    {2, "English volume units", words::Volume, words::English, {"USgal/m", 60}, {"sft3/m", 60}},
    {3, "SI mass units", words::Mass, words::SI, {"kg/s", 7936.641}, {"kg/s", 7936.641}},
    {4, "SI volume units", words::Volume, words::SI, {"litre/s", 3600 / 3.785412}, {"sdm3/s", 127.134}},
}};

namespace {

void SetFlowUnit(int row, const NamedUnitSet::FlowUnit& unit) {
    Calc.UnitName[At(row)] = unit.Name;
    Calc.UnitFactor[At(row)] = unit.Factor;
}

void ShowStandardConditions(const char* system, const char* temperature, const char* pressure,
                            double pressureFactor) {
    Calc.StdConditions = {0, Calc.StdPressure, Calc.StdTemperature, Calc.BaroPressure};
    Calc.UnitSystem = system;
    Calc.UnitName[unit::StdTemperature] = temperature;
    Calc.UnitFactor[unit::StdTemperature] = 1;
    for (const int row : {unit::StdPressure, unit::Barometer}) {
        Calc.UnitName[At(row)] = pressure;
        Calc.UnitFactor[At(row)] = pressureFactor;
    }
}

}  // namespace

bool ApplyNamedUnitSet(int set) {
    if (set == UserUnitSet) return TakeUserUnitSet();
    const auto found = std::find_if(NamedUnitSets.begin(), NamedUnitSets.end(),
                                    [set](const NamedUnitSet& each) { return each.Number == set; });
    if (found == NamedUnitSets.end()) return false;
    if (Calc.FluidType == words::Gas) {
        Calc.GasUnitSet = set;
        Calc.BasisPrevious = Calc.Basis;
        Calc.Basis = found->Basis;
        SetFlowUnit(unit::GasFlow, found->Gas);
    } else {
        Calc.LiquidUnitSet = set;
        Calc.LiquidBasisPrevious = Calc.LiquidBasis;
        Calc.LiquidBasis = found->Basis;
        SetFlowUnit(unit::LiquidFlow, found->Liquid);
    }
    Calc.UnitSetName = found->Name;
    if (found->System == words::English) {
        ResetEnglishUnits();
        STPEnglish();
    } else {
        ResetSIUnits();
        STPSI();
    }
    CarryDensityUnit();
    MendUnitFactors();
    return true;
}

void STPEnglish() {
    ShowStandardConditions(words::English, "degF", "psia", 1);
    Calc.CaseInput[input::StdTemperature][0] = Calc.StdTemperature;
    Calc.CaseInput[input::StdPressure][0] = Calc.StdPressure;
    Calc.CaseInput[input::Barometer][0] = Calc.BaroPressure;
}

void STPSI() {
    ShowStandardConditions(words::SI, "degC", "kPaa", PsiPerKPa);
    Calc.CaseInput[input::StdTemperature][0] = RoundedSix(CelsiusOf(Calc.StdTemperature));
    Calc.CaseInput[input::StdPressure][0] = RoundedSix(Calc.StdPressure / PsiPerKPa);
    Calc.CaseInput[input::Barometer][0] = RoundedSix(Calc.BaroPressure / PsiPerKPa);
}

}  // namespace quillmetra
