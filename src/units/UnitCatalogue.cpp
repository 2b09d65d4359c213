// See UnitCatalogue.h.
#include "units/UnitCatalogue.h"

#include <cstddef>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"

namespace quillmetra {

namespace {

struct DefaultUnit {
    const char* Name = "";
    double Factor = 0;
};
using DefaultList = std::array<DefaultUnit, 10>;

// In the order of the library file. Lists 12, 13, 17, 19 and 20 serve no row; the file keeps their place.
// The metre of list 12 differs from that of list 14, and both from the 3.281 ft of lists 15 and 16: the
// figures stand, since files and records of users hold them.
constexpr std::array<DefaultList, 21> DefaultUnits = {{
    /* 0 mass */
    {{{"lb", 1},
      {"kg", 2.2046225},
      {"tonne", 2204.6225},
      {"g", 0.0022046225},
      {"UKton", 2240},
      {"USton", 2000}}},
    /* 1 liquid volume */
    {{{"USgal", 1},
      {"litre", 0.264172},
      {"ft3", 7.4805},
      {"UKgal", 1.20095},
      {"m3", 264.2},
      {"bbl", 42},
      {"cm3", 0.0002642}}},
    /* 2 standard gas volume */
    {{{"sft3", 1}, {"sdm3", 0.035315}, {"sm3", 35.315}, {"Msft3", 1000000}}},
    /* 3 time base; the only list whose base unit is not its first line */
    {{{"/s", 3600}, {"/m", 60}, {"/h", 1}, {"/d", 0.041667}}},
    /* 4 temperature */
    {{{"degF", 1}, {"degC", 1}, {"degR", 1}, {"degK", 1}}},
    /* 5 operating pressure */
    {{{"psig", 1},
      {"kPag", 0.14504},
      {"atg", 14.696},
      {"inhgg", 0.48977},
      {"MPag", 145.04},
      {"inH2Og", 0.036091},
      {"mmhgg", 0.019337},
      {"barg", 14.504},
      {"kg/cm2g", 14.2233}}},
    /* 6 pressure drop */
    {{{"psi", 1},
      {"kPa", 0.14504},
      {"at", 14.696},
      {"inhg", 0.48977},
      {"MPa", 145.04},
      {"inH2O", 0.036091},
      {"mmhg", 0.019337},
      {"bar", 14.504},
      {"kg/cm2", 14.2233}}},
    /* 7 viscosity; cs and m2/s are converted through the density, their factors are placeholders */
    {{{"cp", 1}, {"Pa.s", 1000}, {"mPa.s", 1}, {"cs", 1}, {"m2/s", 1}}},
    /* 8 absolute pressure */
    {{{"psia", 1},
      {"kPaa", 0.14504},
      {"ata", 14.696},
      {"inhga", 0.48977},
      {"MPaa", 145.04},
      {"inH2Oa", 0.036091},
      {"mmhga", 0.019337},
      {"bara", 14.504},
      {"kg/cm2a", 14.2233}}},
    /* 9 density */
    {{{"lb/ft3", 1}, {"kg/m3", 0.062428}, {"g/cm3", 62.428}, {"lb/in3", 1728}}},
    /* 10 critical pressure */
    {{{"psia", 1},
      {"kPaa", 0.14504},
      {"ata", 14.696},
      {"inhga", 0.48977},
      {"MPaa", 145.04},
      {"mmhga", 0.019337},
      {"bara", 14.504},
      {"kg/cm2a", 14.2233}}},
    /* 11 critical temperature */
    {{{"degF", 1}, {"degC", 1}, {"degR", 1}, {"degK", 1}}},
    /* 12 small length */
    {{{"in", 1}, {"mm", 0.03937}, {"cm", 0.3937}, {"ft", 12}, {"m", 39.3937}}},
    /* 13 absolute pressure */
    {{{"psia", 1},
      {"kPaa", 0.14504},
      {"ata", 14.696},
      {"inhga", 0.48977},
      {"MPaa", 145.04},
      {"mmhga", 0.019337},
      {"bara", 14.504},
      {"kg/cm2a", 14.2233}}},
    /* 14 exact pipe size */
    {{{"in", 1}, {"mm", 0.03937}, {"cm", 0.3937}, {"ft", 12}, {"m", 39.37}}},
    /* 15 velocity */
    {{{"ft/s", 1}, {"m/s", 3.281}}},
    /* 16 length and height */
    {{{"ft", 1}, {"m", 3.281}}},
    /* 17 viscosity, short */
    {{{"cp", 1}, {"Pa.s", 1000}, {"mPa.s", 1}}},
    /* 18 modulus */
    {{{"psi", 1},
      {"kPa", 0.14504},
      {"at", 14.696},
      {"inhg", 0.48977},
      {"MPa", 145.04},
      {"mmhg", 0.019337},
      {"bar", 14.504},
      {"kg/cm2", 14.2233}}},
    /* 19 */
    {},
    /* 20 viscosity, short */
    {{{"cp", 1}, {"Pa.s", 1000}, {"mPa.s", 1}}},
}};

// The operating pressures of list 5 without their ending are the pressure drops.
constexpr const DefaultList& DefaultStems = DefaultUnits[unitlist::PressureDrop];

void Fill(UnitList& list, const DefaultList& defaults) {
    for (std::size_t line = 0; line < defaults.size(); ++line) {
        list[line + 1] = {defaults[line].Name, defaults[line].Factor};
    }
}

const char* PressureEnding() { return Calc.PressureMode == words::Absolute ? "a" : "g"; }

constexpr UnitRow::Choice None{};

}  // namespace

// The mass and volume columns differ for the two flows alone. The protected counts of rows 26 and 27 are not
// the lengths of their lists, and "kpa" of row 27 is spelled so.
const std::array<UnitRow, UnitRowCount> UnitRows = {{
    {unit::GasFlow, "gas flow", "&Gas flow", {0, 6}, {2, 4}, "", "", 1},
    {unit::LiquidFlow, "liquid flow", "&Liquid flow", {0, 6}, {1, 7}, "", "", 1},
    {unit::Temperature, "temperature", "&Temperature", {4, 4}, {4, 4}, "degF", "degC", 1},
    {unit::Pressure, "operating pressure", "Gauge &pressure", {5, 9}, {5, 9}, "psig", "kPag", 0.14504},
    {unit::PressureDrop, "pressure drop", "Pr&essure drop", {6, 9}, {6, 9}, "psi", "kPa", 0.14504},
    {unit::LiquidTimeBase, "liquid time base", "Liquid time &base", {3, 4}, {3, 4}, "", "", 1},
    {unit::LiquidDensity, "liquid density", "Den&sity", None, None, "lb/ft3", "kg/m3", 0.062428},
    {unit::Viscosity, "viscosity", "Li&quid viscosity", {7, 5}, {7, 5}, "cp", "Pa.s", 1000},
    {unit::VaporPressure, "vapor pressure", "", None, None, "psia", "kPaa", 0.14504},
    {unit::Density, "density", "Den&sity", {9, 4}, {9, 4}, "lb/ft3", "kg/m3", 0.062428},
    {10, "", "", None, None, "", "", 1},
    {unit::CritPressure,
     "critical pressure",
     "Gas cr&it pressure",
     {10, 8},
     {10, 8},
     "psia",
     "kPaa",
     0.14504},
    {unit::CritTemperature,
     "critical temperature",
     "Gas c&ritical temp",
     {11, 4},
     {11, 4},
     "degR",
     "degK",
     1},
    {unit::GasViscosity, "gas viscosity", "Gas vi&scosity", {7, 5}, {7, 5}, "cp", "Pa.s", 1000},
    {14, "", "", None, None, "", "", 1},
    {15, "", "", None, None, "", "", 1},
    {unit::LatentHeat, "latent heat", "", None, None, "btu/lb", "kJ/kg", 0.42992},
    {17, "", "", None, None, "", "", 0.04},
    {unit::PipeSize, "exact pipe size", "E&xact pipe size", {14, 5}, {14, 5}, "in", "mm", 0.03937},
    {unit::GasTimeBase, "gas time base", "Gas time b&ase", {3, 4}, {3, 4}, "", "", 1},
    {unit::Velocity, "velocity", "Velocit&y", {15, 2}, {15, 2}, "ft/s", "m/s", 3.281},
    {unit::StdTemperature, "standard temperature", "", None, None, "degF", "degC", 1},
    {unit::StdPressure, "standard pressure", "", None, None, "psia", "kPaa", 0.14504},
    {unit::Barometer, "barometric pressure", "", None, None, "psia", "kPaa", 0.14504},
    {unit::SecondGauge, "second gauge pressure", "", None, None, "psig", "kPag", 0.14504},
    {unit::Length, "length and height", "Length &/ height", {16, 2}, {16, 2}, "ft", "m", 3.281},
    {unit::AbsolutePressure, "absolute pressure", "", {17, 8}, {17, 8}, "psia", "kPaa", 0.14504},
    {unit::Modulus, "modulus", "&Modulus", {18, 2}, {18, 2}, "psi", "kpa", 0.14504},
}};

void LoadDefaultUnits() {
    for (std::size_t list = 0; list < DefaultUnits.size(); ++list) {
        Fill(Suite.UnitLibrary[list], DefaultUnits[list]);
    }
    Fill(Suite.PressureStem, DefaultStems);
}

void ClearUnitLibrary() {
    Suite.UnitLibrary = {};
    Suite.PressureStem = {};
}

void ApplyPressureSuffix() {
    for (std::size_t line = 1; line < Suite.PressureStem.size(); ++line) {
        const std::string& stem = Suite.PressureStem[line].Name;
        Suite.UnitLibrary[unitlist::OperatingPressure][line].Name =
            stem.empty() ? "" : stem + PressureEnding();
    }
}

std::string UnitRowCaption(int row) {
    if (row == unit::Pressure && Calc.PressureMode == words::Absolute) return "Absolute pressure";
    return UnitRows.at(static_cast<std::size_t>(row)).Caption;
}

namespace {

void ResetUnits(bool english) {
    for (std::size_t row = 2; row < UnitRows.size(); ++row) {
        Calc.UnitName[row] = english ? UnitRows[row].EnglishName : UnitRows[row].SIName;
        Calc.UnitFactor[row] = english ? 1 : UnitRows[row].SIFactor;
    }
    Calc.UnitName[unit::Pressure].back() = *PressureEnding();
}

}  // namespace

void ResetEnglishUnits() { ResetUnits(true); }
void ResetSIUnits() { ResetUnits(false); }

void CarryDensityUnit() {
    const bool lineDensity =
        program::TakesDensity(Calc.CurrentProgram) && Calc.LiquidDensityMode == words::Density;
    if (!lineDensity && Calc.CurrentProgram != program::LiquidData) return;
    const std::size_t row = lineDensity ? 6 : 9;
    Calc.UnitName[unit::UserDensity] = Calc.UnitName[row];
    Calc.UnitFactor[unit::UserDensity] = Calc.UnitFactor[row];
}

}  // namespace quillmetra
