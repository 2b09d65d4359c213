// See FluidErrors.h.
#include "fluids/FluidErrors.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>

#include "core/PhysicalConstants.h"
#include "core/Words.h"
#include "fluids/LiquidCorrelations.h"
#include "fluids/SteamTables.h"
#include "units/CorrelationRange.h"

namespace quillmetra {

namespace {

constexpr double Base = 60;         // degF, of the gravities
constexpr double ModulusBase = 68;  // degF

double DegR(double degF) { return degF + ZeroFInDegR; }

double ReducedTemperature(const CalcRecord& record) {
    return ReducedTemperatureOf(record.FlowTemperature, record.CritTemperature);
}
double ReducedBase(const CalcRecord& record) { return ReducedTemperatureOf(Base, record.CritTemperature); }

// Median of 123 liquids by reduced temperature up to 0.95; beyond, of three reference equations.
constexpr MeasuredError Gravities[] = {{0.6, 0},  {0.75, 1.5}, {0.8, 3},   {0.85, 6},
                                       {0.9, 12}, {0.95, 27},  {0.98, 47}, {1, 100}};

// By pressure, psia: propane and n-butane from 60 to 150 degF.
constexpr MeasuredError PressedGravities[] = {{1000, 1}, {3000, 5}, {10000, 24}};

// By temperature, degF.
constexpr MeasuredError WaterModuli[] = {{32, 11}, {50, 5},   {68, 0},   {100, -5},  {150, -7}, {212, -4},
                                         {250, 1}, {300, 11}, {400, 48}, {500, 132}, {600, 394}};

// By pressure, psia, of saturated steam. A superheat of 75 degF takes it away.
constexpr MeasuredError SteamLines[] = {{100, -2.3}, {200, -3.4}, {300, -4.2},   {600, -6},
                                        {900, -7.5}, {1200, -9},  {1500, -10.4}, {2000, -13}};
constexpr double GoodSuperheat = 75;

// The vapor pressure that the suite finds at a temperature over the measured one.
struct VaporPressureRatio {
    const char* Name;
    double Temperature;  // degF
    double Ratio;
};
constexpr VaporPressureRatio VaporPressures[] = {
    // Alcohols, glycols, phenol
    {"n-Propanol", 100, 1.12},
    {"i-Propanol", 60, 1.12},
    {"n-Butanol", 100, 1.32},
    {"i-Butanol", 100, 1.37},
    {"sec-Butanol", 100, 1.31},
    {"tert-Butanol", 100, 1.21},
    {"n-Pentanol", 100, 1.52},
    {"2-Ethylhexanol", 100, 2.07},
    {"n-Octanol", 100, 2.73},
    {"Cyclohexanol", 100, 2.74},
    {"Phenol", 100, 1.30},
    {"Glycerol", 100, 3.56},
    {"Propylene Glycol", 100, 1.38},
    {"Ethylene Glycol", 100, 0.83},
    // Amines, nitriles
    {"Diethanolamine", 100, 0.13},
    {"Ethylenediamine", 100, 1.15},
    {"Pyridine", 60, 1.10},
    {"Acetonitrile", 60, 0.86},
    {"Acrylonitrile", 60, 0.87},
    // Acids
    {"Formic Acid", 100, 0.86},
    {"Acetic Acid", 100, 0.79},
    {"Propionic Acid", 100, 0.77},
    {"Acrylic Acid", 100, 0.72},
    // Paraffins, mercury
    {"n-Undecane", 100, 0.86},
    {"n-Dodecane", 100, 0.86},
    {"n-Hexadecane", 100, 0.41},
    {"Mercury", 100, 0.71},
};

// The logarithm of the ratio goes straight with 1/T to 0 at the boiling point: within a few percent of what
// Antoine's equations of butanol, ethylene glycol, acetic acid and dodecane give.
double OneOverT(double degF, const CalcRecord& record) {
    return 1 / DegR(degF) - 1 / DegR(record.NormalBoilingPoint);
}

// By temperature, degF. Heat transfer fluids against the published tables of their kind, from where these
// begin; the others against the sources of their rows.
constexpr MeasuredError BiphenylCold[] = {{60, 90},  {90, 55}, {120, 35}, {150, 23},
                                          {180, 16}, {240, 8}, {330, 4},  {510, 0}};
constexpr MeasuredError BiphenylHot[] = {{60, -39},  {120, -41}, {210, -34}, {300, -22},
                                         {390, -10}, {510, 1},   {600, 7},   {720, 14}};
constexpr MeasuredError TerphenylCold[] = {{180, -99}, {240, -96}, {300, -90}, {360, -79}, {420, -64},
                                           {480, -47}, {540, -30}, {600, -15}, {660, -3},  {720, 6}};
constexpr MeasuredError TerphenylHot[] = {{180, -51}, {240, -30}, {270, -21}, {300, -13}, {330, -6},
                                          {360, 0},   {390, 5},   {420, 8},   {480, 11},  {540, 10},
                                          {600, 7},   {660, 2},   {720, -4}};
constexpr MeasuredError Diphenylethane[] = {{250, 22}, {270, 6},  {300, -5}, {330, -10}, {360, -11},
                                            {420, -8}, {510, -1}, {600, 6},  {720, 12}};
constexpr MeasuredError Diethylbenzene[] = {{150, -5}, {180, -11}, {210, -12}, {250, -10}, {300, -5},
                                            {360, 0},  {450, 5},   {540, 7},   {720, 8}};
constexpr MeasuredError Isoparaffin[] = {{-20, 41}, {10, 12},  {40, -2},  {70, -8}, {100, -10}, {130, -11},
                                         {190, -9}, {250, -6}, {310, -2}, {400, 1}, {550, 5}};
constexpr MeasuredError Siloxane[] = {{100, 373}, {130, 204}, {160, 121}, {190, 75}, {220, 48}, {250, 30},
                                      {280, 19},  {310, 11},  {340, 6},   {400, 0},  {490, -2}, {640, 3}};
constexpr MeasuredError CyclicSiloxane[] = {{60, 11}, {180, 2}, {300, 1}};
constexpr MeasuredError HydrogenFluoride[] = {{0, -13}, {60, -3}, {120, 4}};
constexpr MeasuredError Lng[] = {{-262, 1}, {-241, -3}, {-220, -7}};
constexpr MeasuredError Lpg50[] = {{-20, 0}, {55, -4}, {130, -7}};
constexpr MeasuredError Lpg70[] = {{-30, 0}, {45, -3}, {120, -6}};
constexpr MeasuredError Formate[] = {{-30, -5}, {35, 2}, {100, 5}};
constexpr MeasuredError WateryMethanol[] = {{-40, -5}, {30, 3}, {100, 4}};

struct VaporPressureErrors {
    const char* Name;
    double GoodFrom, GoodTo;  // degF
    std::span<const MeasuredError> Measured;
};
constexpr double None = NoBound.Number;
constexpr VaporPressureErrors MeasuredPressures[] = {
    {"Biphenyl-Diphenyl Ether HTF", 360, None, BiphenylCold},
    {"Biphenyl-Diphenyl Ether Hot", 460, 535, BiphenylHot},
    {"Hydrogenated Terphenyl HTF", 660, 700, TerphenylCold},
    {"Hydrogenated Terphenyl Hot", 345, 380, TerphenylHot},
    {"Diphenylethane HTF", 480, 555, Diphenylethane},
    {"Diethylbenzene HTF", 325, 400, Diethylbenzene},
    {"Isoparaffin HTF", 300, 485, Isoparaffin},
    {"Polydimethylsiloxane HTF", 365, 640, Siloxane},
    {"Decamethylcyclopentasiloxane", 165, None, CyclicSiloxane},
    {"Hydrogen Fluoride", 58, 110, HydrogenFluoride},
    {"LNG Typical", None, -240, Lng},
    {"LPG Propane-Butane 50-50", None, 60, Lpg50},
    {"LPG Propane-Butane 70-30", None, 60, Lpg70},
    {"Potassium Formate 40%", -10, 60, Formate},
    {"Methanol 50% in Water", -25, None, WateryMethanol},
};

template <typename Rows>
auto* FindRow(const Rows& rows, const CalcRecord& record) {
    const auto found =
        std::ranges::find_if(rows, [&record](const auto& each) { return record.FluidName == each.Name; });
    return found == std::end(rows) ? nullptr : &*found;
}

struct NamedTemperature {
    const char* Name;
    double Temperature;  // degF
};
// At one atmosphere.
constexpr NamedTemperature Sublimations[] = {{"Carbon Dioxide", -109.2}, {"Sulphur Hexafluoride", -82.9}};

constexpr NamedTemperature ColdModuli[] = {
    {"Carbon Dioxide", -49}, {"Ethane", -47}, {"Ethylene", -78}, {"Methane", -202}, {"Nitrous Oxide", -42}};

}  // namespace

// By the reduced temperature of 60 degF: refrigerants from 407C to 32, hydrogen chloride, nitrous oxide and
// ethane, carbon dioxide.
double ColdGravityGoodFrom(const CalcRecord& record) {
    constexpr MeasuredError good[] = {{0.8, 0.65}, {0.84, 0.73}, {0.89, 0.84}, {0.95, 0.93}};
    const double base = ReducedBase(record);
    return base < 0.8 || base >= 1 ? NoBound.Number : std::round(100 * ErrorAt(good, base)) / 100;
}

double ColdGravityError(const CalcRecord& record) {
    constexpr MeasuredError errors[] = {{0.8, -3}, {0.84, -5}, {0.89, -6.5}, {0.94, -9}, {0.95, -12}};
    return ErrorAt(errors, ReducedBase(record));
}

// A base gravity above the critical temperature is none; it was chosen for the boiling point.
double GravityError(const CalcRecord& record) {
    const double base = ReducedBase(record) < 1 ? ErrorAt(Gravities, ReducedBase(record)) : 0;
    return 100 * ((100 + ErrorAt(Gravities, ReducedTemperature(record))) / (100 + base) - 1);
}

double PressedGravityError(const CalcRecord& record) {
    return ErrorAt(PressedGravities, record.FlowPressure);
}

double WaterModulusError(const CalcRecord& record) { return ErrorAt(WaterModuli, record.FlowTemperature); }

double ColdModulusTemperature(const CalcRecord& record) {
    const auto* const known = FindRow(ColdModuli, record);
    return known == nullptr ? NoBound.Number : known->Temperature;
}

bool HasWarmModulus(const CalcRecord& record) { return ReducedBase(record) < 0.9; }

// The modulus of a liquid falls to nothing at its critical temperature, as a power of the distance from it.
double ModulusError(const CalcRecord& record) {
    constexpr double warmPower = 1.8, coldPower = 1.5;
    const bool isWarm = HasWarmModulus(record);
    const double from = DegR(isWarm ? ModulusBase : ColdModulusTemperature(record));
    const double ratio =
        (record.CritTemperature - from) / (record.CritTemperature - DegR(record.FlowTemperature));
    return 100 * (std::pow(ratio, isWarm ? warmPower : coldPower) - 1);
}

// 6 % of the modulus, 3 of the velocity.
double ModulusGoodFrom(const CalcRecord& record) {
    constexpr double from = 58, part = 0.035;
    return std::fmax(from, std::round(ModulusBase - part * (record.CritTemperature - DegR(ModulusBase))));
}

double ModulusGoodTo(const CalcRecord& record) {
    constexpr double to = 78, part = 0.032;
    return std::fmin(to, std::round(ModulusBase + part * (record.CritTemperature - DegR(ModulusBase))));
}

double VaporPressureError(const CalcRecord& record) {
    if (const auto* const measured = FindRow(MeasuredPressures, record)) {
        return ErrorAt(measured->Measured, record.FlowTemperature);
    }
    const auto* const known = FindRow(VaporPressures, record);
    if (known == nullptr) return 0;
    const double part = OneOverT(record.FlowTemperature, record) / OneOverT(known->Temperature, record);
    return 100 * (std::pow(known->Ratio, part) - 1);
}

double VaporPressureGoodFrom(const CalcRecord& record) {
    constexpr double good = 1.03;
    if (const auto* const measured = FindRow(MeasuredPressures, record)) return measured->GoodFrom;
    const auto* const known = FindRow(VaporPressures, record);
    if (known == nullptr) return NoBound.Number;
    const double part = std::log(good) / std::fabs(std::log(known->Ratio));
    const double goodFrom =
        1 / (part * OneOverT(known->Temperature, record) + 1 / DegR(record.NormalBoilingPoint));
    return std::round(goodFrom - ZeroFInDegR);
}

double VaporPressureGoodTo(const CalcRecord& record) {
    const auto* const measured = FindRow(MeasuredPressures, record);
    return measured == nullptr ? NoBound.Number : measured->GoodTo;
}

double SublimationPoint(const CalcRecord& record) {
    const auto* const known = FindRow(Sublimations, record);
    return known == nullptr ? NoBound.Number : known->Temperature;
}

double SteamLineError(const CalcRecord& record) {
    const double error = ErrorAt(SteamLines, record.FlowPressure);
    if (record.SteamKind == words::Saturated) return error;
    if (record.FlowPressure >= SteamCritPressure) return 0;
    const double superheat = record.FlowTemperature - record.SaturationTemperature;
    return superheat < GoodSuperheat ? error * (1 - superheat / GoodSuperheat) : 0;
}

}  // namespace quillmetra
