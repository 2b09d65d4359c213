// Every unit of every list against its definition in SI units, to the digits that its factor carries. The
// definitions are written down here a second time, from the standards, so that a wrong digit of a factor, or
// a unit in a wrong list, shows.
#include <cmath>
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "platform/NumberText.h"
#include "tests/SuiteFixture.h"
#include "units/NamedUnitSets.h"
#include "units/Temperature.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {
namespace {

class UnitDefinitions : public SuiteTest {
protected:
    UnitDefinitions() { LoadDefaultUnits(); }
};

constexpr double Pound = 0.45359237;  // kg, 1959
constexpr double Inch = 0.0254;       // m, 1959
constexpr double Foot = 12 * Inch;
constexpr double CubicFoot = Foot * Foot * Foot;
constexpr double Gallon = 231 * Inch * Inch * Inch;      // US
constexpr double Psi = Pound * 9.80665 / (Inch * Inch);  // Pa, by the standard acceleration of 1901

using Definitions = std::map<std::string, double>;

const Definitions Masses = {{"lb", Pound},           {"kg", 1},
                            {"tonne", 1000},         {"g", 0.001},
                            {"UKton", 2240 * Pound}, {"USton", 2000 * Pound}};
const Definitions Volumes = {{"USgal", Gallon},     {"litre", 0.001}, {"ft3", CubicFoot},
                             {"UKgal", 0.00454609}, {"m3", 1},        {"bbl", 42 * Gallon},
                             {"cm3", 1e-6}};
const Definitions GasVolumes = {{"sft3", CubicFoot}, {"sdm3", 0.001}, {"sm3", 1}, {"Msft3", 1e6 * CubicFoot}};
const Definitions Rates = {{"/s", 1}, {"/m", 1.0 / 60}, {"/h", 1.0 / 3600}, {"/d", 1.0 / 86400}};  // 1/s
// Columns of mercury at 60 degF and of water at 68 degF.
const Definitions Pressures = {{"psi", Psi},       {"kPa", 1000}, {"at", 101325},
                               {"inhg", 3376.85},  {"MPa", 1e6},  {"inH2O", 248.84},
                               {"mmhg", 133.3224}, {"bar", 1e5},  {"kg/cm2", 98066.5}};
const Definitions Densities = {
    {"lb/ft3", Pound / CubicFoot}, {"kg/m3", 1}, {"g/cm3", 1000}, {"lb/in3", Pound / (Inch * Inch * Inch)}};
const Definitions Lengths = {{"in", Inch}, {"mm", 0.001}, {"cm", 0.01}, {"ft", Foot}, {"m", 1}};
const Definitions Velocities = {{"ft/s", Foot}, {"m/s", 1}};
const Definitions Viscosities = {{"cp", 0.001}, {"Pa.s", 1}, {"mPa.s", 0.001}};  // Pa s

const struct {
    std::size_t List;
    const Definitions* Units;
    std::string Base;
    bool Ending;  // "g" or "a" follows the name
} Lists[] = {
    {0, &Masses, "lb", false},       {1, &Volumes, "USgal", false},    {2, &GasVolumes, "sft3", false},
    {3, &Rates, "/h", false},        {5, &Pressures, "psi", true},     {6, &Pressures, "psi", false},
    {7, &Viscosities, "cp", false},  {8, &Pressures, "psi", true},     {9, &Densities, "lb/ft3", false},
    {10, &Pressures, "psi", true},   {12, &Lengths, "in", false},      {13, &Pressures, "psi", true},
    {14, &Lengths, "in", false},     {15, &Velocities, "ft/s", false}, {16, &Lengths, "ft", false},
    {17, &Viscosities, "cp", false}, {18, &Pressures, "psi", false},   {20, &Viscosities, "cp", false},
};

// What is known to be off by more than the last digit, by how much of itself.
const std::map<std::pair<std::size_t, std::string>, double> KnownDeviations = {
    {{0, "kg"}, -5.5e-8},  // 2.2046225, of which the last digit should be 6
    {{0, "tonne"}, -5.5e-8},
    {{0, "g"}, -5.5e-8},
    {{12, "m"}, 6.0e-4},  // 39.3937 for 39.3701; no row uses this list
};

// Half a unit of the last decimal that a factor is written with.
double HalfDigit(double factor) {
    const std::string text = Str(factor);
    const std::size_t point = text.find('.');
    return point == std::string::npos ? 0.5
                                      : 0.5 * std::pow(10.0, -static_cast<double>(text.size() - point - 1));
}

// Kinematic viscosities have placeholders, which the fluid's density replaces.
bool IsPlaceholder(std::size_t list, const std::string& name) {
    return list == 7 && (name == "cs" || name == "m2/s");
}

TEST_F(UnitDefinitions, EveryFactorToItsDigits) {
    std::set<std::size_t> seen = {4, 11, 19};  // two of temperature, see below, and an empty one
    std::size_t deviations = 0;
    for (const auto& each : Lists) {
        seen.insert(each.List);
        for (const UnitLine& line : Suite.UnitLibrary[each.List]) {
            if (line.Name.empty() || IsPlaceholder(each.List, line.Name)) continue;
            const std::string name = each.Ending ? line.Name.substr(0, line.Name.size() - 1) : line.Name;
            ASSERT_TRUE(each.Units->contains(name)) << each.List << " " << line.Name;
            const double exact = each.Units->at(name) / each.Units->at(each.Base);
            const auto known = KnownDeviations.find({each.List, line.Name});
            if (known == KnownDeviations.end()) {
                EXPECT_NEAR(line.Factor, exact, HalfDigit(line.Factor) * 1.0001)
                    << each.List << " " << line.Name;
            } else {
                ++deviations;
                EXPECT_NEAR(line.Factor / exact - 1, known->second, std::fabs(known->second) * 0.02)
                    << line.Name;
            }
        }
    }
    EXPECT_EQ(deviations, KnownDeviations.size());
    EXPECT_EQ(seen.size(), Suite.UnitLibrary.size());
}

TEST_F(UnitDefinitions, PressureStemsAreThePressures) {
    for (const UnitLine& stem : Suite.PressureStem) {
        if (stem.Name.empty()) continue;
        ASSERT_TRUE(Pressures.contains(stem.Name)) << stem.Name;
        EXPECT_NEAR(stem.Factor, Pressures.at(stem.Name) / Psi, HalfDigit(stem.Factor) * 1.0001) << stem.Name;
    }
}

// What the unit rows hold beside the lists.
TEST_F(UnitDefinitions, CompositeUnitsAndRows) {
    const struct {
        const char* Name;
        double Factor, Exact;
    } flows[] = {
        {"kg/s", NamedUnitSets[2].Liquid.Factor, 3600 / Pound},
        {"kg/s", NamedUnitSets[2].Gas.Factor, 3600 / Pound},
        {"USgal/m", NamedUnitSets[1].Liquid.Factor, 60},
        {"sft3/m", NamedUnitSets[1].Gas.Factor, 60},
        {"litre/s", NamedUnitSets[3].Liquid.Factor, 3.6 / Gallon},
        {"sdm3/s", NamedUnitSets[3].Gas.Factor, 3.6 / CubicFoot},
    };
    for (const auto& each : flows) EXPECT_NEAR(each.Factor / each.Exact, 1, 1e-5) << each.Name;
    // One btu/lb is 2.326 kJ/kg by definition.
    EXPECT_NEAR(UnitRows[16].SIFactor, 1 / 2.326, HalfDigit(UnitRows[16].SIFactor));
}

}  // namespace
}  // namespace quillmetra
