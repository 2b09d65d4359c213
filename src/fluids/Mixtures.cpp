// See Mixtures.h.
#include "fluids/Mixtures.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "core/CalcRecord.h"
#include "core/PhysicalConstants.h"
#include "core/Programs.h"
#include "core/Words.h"
#include "fluids/FluidMessages.h"
#include "fluids/FluidTables.h"
#include "fluids/GasCorrelations.h"
#include "fluids/GasData.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "units/Rounding.h"

namespace quillmetra {

namespace {

constexpr int LastPlace = MostComponents - 1;

using Components = std::span<const double>;

// A mixture that was calculated passes with any remainder, but not without any component.
bool PercentagesAddUp(Icon sign) {
    const Components percents = Components(Calc.FluidPercent).first(At(ComponentCount()));
    const bool any = std::any_of(percents.begin(), percents.end(), [](double each) { return each != 0; });
    if (any && (IsYes(Calc.MixtureFlag) || RemainingPercent(percents) == 0)) return true;
    Tell("Sum of percentages must equal 100", "Mixture Calculation", sign);
    return false;
}

// The components that a calculation keeps; the texts keep their memory from one to the next.
struct KeptComponents {
    decltype(CalcRecord::FluidData) Rows{};
    decltype(CalcRecord::FluidPercent) Percents{};
    int Count = 0;

    void Clear() {
        for (std::string& row : Rows) row.clear();
        Percents = {};
        Count = 0;
    }
    void Add(const std::string& row, double percent) {
        Rows[At(Count)] = row;
        Percents[At(Count)] = percent;
        ++Count;
    }
} Kept;

// Parses the components one after the other; each is then in the record when `add` gets its fraction.
template <typename Parse, typename Add>
void ForEachComponent(Parse parse, Add add) {
    const bool keepsAll = Calc.CurrentProgram == program::WaterHammer;
    Kept.Clear();
    const int count = ComponentCount();
    for (int place = 0; place < count; ++place) {
        const double percent = Calc.FluidPercent[At(place)];
        if (percent != 0 || place == 0) Calc.FluidRow = Calc.FluidData[At(place)];
        if (percent != 0) {
            parse();
            add(percent / 100);
        } else if (!keepsAll) {
            continue;
        }
        Kept.Add(Calc.FluidRow, percent);
    }
}

void TakeMixture() {
    Calc.FluidData.swap(Kept.Rows);
    Calc.FluidPercent = Kept.Percents;
    Calc.MixtureCount = std::min(Kept.Count, LastPlace);
    Calc.MixtureFlag = words::Yes;
}

struct LiquidSums {
    double MolecularWeight = 0;
    double BaseGravity = 0;
    double LogViscosity = 0;
    double CritTemperature = 0;
    double CritPressure = 0;
    double BulkBase = 0;
    double BulkSlope = 0;
    double BulkIsKnown = 1;  // 0 when one component has no bulk modulus
    std::string Class;       // of the last component that is no water

    void Add(const CalcRecord& liquid, double x) {
        MolecularWeight += x * liquid.MolecularWeight;
        BaseGravity += x * liquid.SGAtStandard;
        LogViscosity += x * std::log(liquid.FluidViscosity);
        CritTemperature += x * liquid.CritTemperature;
        CritPressure += x * liquid.CritPressure;
        if (liquid.BulkModulusBase > 0) {
            BulkBase += x * liquid.BulkModulusBase;
            BulkSlope += x * liquid.BulkModulusSlope;
        } else {
            BulkIsKnown = 0;
        }
        if (Val(liquid.FluidClass) != fluidclass::Water) Class = liquid.FluidClass;
    }
};

void TakeLiquidSums(const LiquidSums& sums) {
    if (!sums.Class.empty()) Calc.FluidClass = sums.Class;
    Calc.FluidViscosity = std::exp(sums.LogViscosity);
    Calc.MolecularWeight = sums.MolecularWeight;
    Calc.CritTemperature = sums.CritTemperature;
    Calc.CritPressure = sums.CritPressure;
    Calc.SGAtStandard = sums.BaseGravity;
    Calc.BulkModulusBase = sums.BulkBase * sums.BulkIsKnown;
    Calc.BulkModulusSlope = sums.BulkSlope * sums.BulkIsKnown;
}

struct GasSums {
    double MolarHeat = 0;
    double MolecularWeight = 0;
    double Viscosity = 0;
    double CritTemperature = 0;
    double CritVolume = 0;
    double CritFactor = 0;
    double LatentHeat = 0;
    double NormalBoilingPoint = 0;

    void Add(const CalcRecord& gas, double x) {
        MolarHeat += x * gas.GasSpecificHeat * gas.MolecularWeight;
        MolecularWeight += x * gas.MolecularWeight;
        Viscosity += x * gas.FluidViscosity * std::sqrt(gas.MolecularWeight);
        CritTemperature += x * gas.CritTemperature;
        CritVolume += x * gas.CritVolume * gas.MolecularWeight;
        CritFactor += x * static_cast<double>(gas.CritCompressFactor);
        LatentHeat += x * gas.LatentHeatBP;
        NormalBoilingPoint += x * gas.NormalBoilingPoint;
    }
};

// What both gas rules have in common. The critical pressure follows from the other critical sums.
void TakeGasSums(const GasSums& sums) {
    Calc.FluidViscosity = sums.Viscosity / std::sqrt(Calc.MolecularWeight);
    Calc.CritTemperature = sums.CritTemperature;
    Calc.RatioSpecificHeats = RatioOfSpecificHeats(sums.MolarHeat);
    Calc.CritPressure = (sums.CritFactor * GasConstant * Calc.CritTemperature) / sums.CritVolume;
    Calc.LatentHeatBP = sums.LatentHeat;
}

template <typename Parse>
void SumGases(Parse parse, GasSums& sums) {
    ForEachComponent(
        [parse] {
            parse();
            CalcGasProperties();
        },
        [&sums](double x) { sums.Add(Calc, x); });
}

bool AreFinite(std::initializer_list<double> values, const char* title) {
    if (std::all_of(values.begin(), values.end(), [](double each) { return std::isfinite(each); })) {
        return true;
    }
    TellNotCalculable(title);
    return false;
}

bool GasIsFinite() {
    return AreFinite({Calc.MolecularWeight, Calc.FluidViscosity, Calc.CritTemperature, Calc.CritPressure,
                      Calc.RatioSpecificHeats, Calc.LatentHeatBP},
                     "Gas Calculation");
}

}  // namespace

int AddComponent(const std::string& row) {
    // The two texts differ though the limit is the same; they stand so.
    constexpr int liquidData = 4;
    const int place = std::clamp(Calc.MixtureCount, 0, LastPlace);
    Calc.FluidData[At(place)] = row;
    if (place < LastPlace) {
        Calc.MixtureCount = place + 1;
    } else {
        Tell(Calc.CurrentProgram == liquidData ? "Maximum number is 17" : "Maximum number is 16",
             "Mixture components");
    }
    return place;
}

int ComponentCount() {
    const int counted = std::clamp(Calc.MixtureCount, 0, LastPlace);
    return counted == LastPlace && !Calc.FluidData[At(LastPlace)].empty() ? MostComponents : counted;
}

double RemainingPercent(std::span<const double> percents) {
    constexpr double widest = 1e15;  // keeps the scaled number finite
    const double sum = std::accumulate(percents.begin(), percents.end(), 0.0);
    const double remaining = std::clamp(100 - sum, -widest, widest);
    return Int(((remaining * 10000000000000.0) + 1) / 10) / 1000000000000.0;
}

bool CalcLiquidMixture() {
    if (!PercentagesAddUp(Icon::None)) return false;
    LiquidSums sums;
    ForEachComponent(ParseLiquidRow, [&sums](double x) { sums.Add(Calc, x); });
    TakeLiquidSums(sums);
    if (!AreFinite({Calc.FluidViscosity, Calc.MolecularWeight, Calc.CritTemperature, Calc.CritPressure,
                    Calc.SGAtStandard, Calc.BulkModulusBase, Calc.BulkModulusSlope},
                   "Liquid Calculation")) {
        return false;
    }
    TakeMixture();
    return true;
}

bool CalcGasMixtureForLine() {
    if (!PercentagesAddUp(Icon::None)) return false;
    GasSums sums;
    SumGases(ParseGasRow, sums);
    Calc.MolecularWeight = RoundedFour(sums.MolecularWeight);
    TakeGasSums(sums);
    if (!GasIsFinite()) return false;
    TakeMixture();
    return true;
}

bool CalcGasMixtureForData() {
    if (!PercentagesAddUp(Icon::Stop)) return false;
    GasSums sums;
    SumGases(ParseGasRowForMixture, sums);
    Calc.MolecularWeight = sums.MolecularWeight;
    TakeGasSums(sums);
    Calc.NormalBoilingPoint = sums.NormalBoilingPoint;
    if (!GasIsFinite()) return false;
    CalcMixtureLatentHeat();
    TakeMixture();
    Tell(
        "Use mixture calculated values with caution -\nParticularly\nLatent heat of vaporization and\n"
        "Vapor Pressure\nActual values may differ considerably",
        "Gas Mixture Properties", Icon::Question);
    return true;
}

void CalcMixtureLatentHeat() {
    const double heat = MixtureLatentHeatOf(Calc.NormalBoilingPoint, Calc.LatentHeatBP, Calc.CritTemperature,
                                            Calc.CritPressure, Calc.EnteredPressure);
    const double shown = Int(heat / Calc.UnitFactor[unit::LatentHeat] + 0.5);
    const bool finite = std::isfinite(heat) && std::isfinite(shown);
    Calc.LatentHeatAtPressure = finite ? Int(heat + 0.5) : 0;
    Calc.CaseInput[input::LatentHeat][At(Calc.CaseIndex)] = finite ? shown : 0;
}

}  // namespace quillmetra
