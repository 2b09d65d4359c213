// The unit catalogue as it enters the record: library, unit rows, named sets.
#include "units/NamedUnitSets.h"

#include <gtest/gtest.h>

#include "core/Words.h"
#include "tests/SuiteFixture.h"
#include "units/UnitCatalogue.h"

namespace quillmetra {
namespace {

class UnitsTest : public SuiteTest {};

double FactorIn(int list, const std::string& name) {
    for (const UnitLine& line : Suite.UnitLibrary[static_cast<std::size_t>(list)]) {
        if (line.Name == name) return line.Factor;
    }
    return 0;
}

// Every unit that a set gives a row must be one that the row's list offers, with the same factor; else the
// unit selector shows one thing and the record holds another.
TEST_F(UnitsTest, SetsAgreeWithTheLists) {
    LoadDefaultUnits();
    for (const int set : {1, 3}) {
        Calc.FluidType = words::Liquid;
        ASSERT_TRUE(ApplyNamedUnitSet(set));
        for (const UnitRow& unit : UnitRows) {
            const auto row = static_cast<std::size_t>(unit.Row);
            // The short viscosity list and the spelling of the SI modulus are known to differ.
            const bool known = unit.Row == 26 || (unit.Row == 27 && set == 3);
            if (unit.Row < 2 || known || unit.OnMass.List == UnitRow::NoList || Calc.UnitName[row].empty())
                continue;
            EXPECT_EQ(FactorIn(unit.OnMass.List, Calc.UnitName[row]), Calc.UnitFactor[row])
                << "row " << unit.Row;
        }
    }
}

TEST_F(UnitsTest, TheLibraryIsSound) {
    LoadDefaultUnits();
    for (std::size_t list = 0; list < Suite.UnitLibrary.size(); ++list) {
        for (const UnitLine& line : Suite.UnitLibrary[list]) {
            EXPECT_LE(line.Name.size(), 8U);
            EXPECT_EQ(line.Name.empty(), line.Factor == 0) << "list " << list;
        }
        EXPECT_EQ(FactorIn(static_cast<int>(list), ""), 0);
    }
}

// The lines of a list that ship with the suite are its own: no user may write over them.
TEST_F(UnitsTest, ShippedLinesAreProtected) {
    LoadDefaultUnits();
    for (const UnitRow& row : UnitRows) {
        for (const UnitRow::Choice& choice : {row.OnMass, row.OnVolume}) {
            if (choice.List == UnitRow::NoList) continue;
            const UnitList& lines = Suite.UnitLibrary[static_cast<std::size_t>(choice.List)];
            const auto shipped = std::count_if(lines.begin(), lines.end(),
                                               [](const UnitLine& line) { return !line.Name.empty(); });
            // Two counts are known to differ from their lists.
            const long known = row.Row == unit::AbsolutePressure ? 8 : row.Row == unit::Modulus ? 2 : shipped;
            EXPECT_EQ(choice.ProtectedLines, known) << row.Quantity;
        }
    }
}

TEST_F(UnitsTest, EachSetOnEachFluid) {
    const struct {
        int Set;
        const char* FluidType;
        std::size_t FlowRow;
        const char* Flow;
        double Factor;
        const char *Basis, *Name, *System, *Pressure;
    } cases[] = {
        {1, words::Liquid, 1, "lb/h", 1, "Mas", "English mass units", "English", "psig"},
        {2, words::Liquid, 1, "USgal/m", 60, "Vol", "English volume units", "English", "psig"},
        {3, words::Liquid, 1, "kg/s", 7936.641, "Mas", "SI mass units", "SI", "kPag"},
        {4, words::Liquid, 1, "litre/s", 3600 / 3.785412, "Vol", "SI volume units", "SI", "kPag"},
        {1, words::Gas, 0, "lb/h", 1, "Mas", "English mass units", "English", "psig"},
        {2, words::Gas, 0, "sft3/m", 60, "Vol", "English volume units", "English", "psig"},
        {3, words::Gas, 0, "kg/s", 7936.641, "Mas", "SI mass units", "SI", "kPag"},
        {4, words::Gas, 0, "sdm3/s", 127.134, "Vol", "SI volume units", "SI", "kPag"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.FluidType) + " " + each.Name);
        Calc = CalcRecord();
        Calc.FluidType = each.FluidType;
        Calc.StdTemperature = 60;
        Calc.StdPressure = 14.7;
        Calc.BaroPressure = 14.5;
        Calc.UnitName[1 - each.FlowRow] = "untouched";
        const bool gas = each.FlowRow == 0;
        (gas ? Calc.Basis : Calc.LiquidBasis) = "Vol";
        ASSERT_TRUE(ApplyNamedUnitSet(each.Set));
        EXPECT_EQ(Calc.UnitName[each.FlowRow], each.Flow);
        EXPECT_DOUBLE_EQ(Calc.UnitFactor[each.FlowRow], each.Factor);
        EXPECT_EQ(Calc.UnitName[1 - each.FlowRow], "untouched");
        EXPECT_EQ(gas ? Calc.Basis : Calc.LiquidBasis, each.Basis);
        EXPECT_EQ(gas ? Calc.BasisPrevious : Calc.LiquidBasisPrevious, "Vol");
        EXPECT_EQ(Calc.UnitSetName, each.Name);
        EXPECT_EQ(Calc.UnitSystem, each.System);
        EXPECT_EQ(Calc.UnitName[3], each.Pressure);
        const bool english = Calc.UnitSystem == "English";
        EXPECT_DOUBLE_EQ(Calc.CaseInput[21][0], english ? 60 : 15.5556);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[22][0], english ? 14.7 : 101.351);
        EXPECT_DOUBLE_EQ(Calc.CaseInput[23][0], english ? 14.5 : 99.9724);
        EXPECT_EQ(Calc.StdConditions[1], 14.7);
        for (const double factor : Calc.UnitFactor) EXPECT_GT(factor, 0);
    }
}

TEST_F(UnitsTest, ANumberThatIsNoSetChangesNothing) {
    Calc.FluidType = words::Liquid;
    ApplyNamedUnitSet(2);
    for (const int set : {0, UserUnitSet, -1, 99}) EXPECT_FALSE(ApplyNamedUnitSet(set));
    EXPECT_EQ(Calc.UnitName[1], "USgal/m");
    EXPECT_EQ(Calc.LiquidUnitSet, 2);
    EXPECT_EQ(Calc.LiquidBasisPrevious, "Mas");
}

TEST_F(UnitsTest, PressureModeGivesTheEnding) {
    LoadDefaultUnits();
    Calc.PressureMode = words::Absolute;
    Suite.PressureStem[10] = {"torr", 0.019337};
    ApplyPressureSuffix();
    EXPECT_EQ(Suite.UnitLibrary[5][1].Name, "psia");
    EXPECT_EQ(Suite.UnitLibrary[5][9].Name, "kg/cm2a");
    EXPECT_EQ(Suite.UnitLibrary[5][10].Name, "torra");
    Suite.PressureStem[10] = {};
    ResetSIUnits();
    EXPECT_EQ(Calc.UnitName[3], "kPaa");
    EXPECT_EQ(Calc.UnitName[24], "kPag") << "the second gauge pressure stays gauge";
    EXPECT_EQ(Calc.UnitName[27], "kpa");
    EXPECT_EQ(UnitRowCaption(3), "Absolute pressure");
    Calc.PressureMode = words::Gauge;
    ApplyPressureSuffix();
    EXPECT_EQ(Suite.UnitLibrary[5][1].Name, "psig");
    EXPECT_EQ(Suite.UnitLibrary[5][10].Name, "");
    EXPECT_EQ(UnitRowCaption(3), "Gauge &pressure");
}

// The formulas that read the density unit from row 5 give right numbers only with it there.
TEST_F(UnitsTest, RowFiveCarriesTheDensityUnit) {
    const struct {
        int Program;
        const char* Mode;
        double Factor;
    } cases[] = {{1, words::Density, 0.062428},
                 {3, words::Density, 0.062428},
                 {4, words::Gravity, 0.062428},
                 {1, words::Gravity, 1},
                 {2, words::Density, 1}};
    for (const auto& each : cases) {
        Calc = CalcRecord();
        Calc.CurrentProgram = each.Program;
        Calc.FluidType = each.Program == 2 ? words::Gas : words::Liquid;
        Calc.LiquidDensityMode = each.Mode;
        ApplyNamedUnitSet(3);
        EXPECT_EQ(Calc.UnitFactor[5], each.Factor) << each.Program << each.Mode;
        EXPECT_EQ(Calc.UnitName[5], each.Factor == 1 ? "" : "kg/m3");
    }
}

}  // namespace
}  // namespace quillmetra
