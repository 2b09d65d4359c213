// The modulus of a pipe from a row of Modulus.txt: its range, its columns, and rows that are not whole.
#include "hammer/PipeModulus.h"

#include <vector>

#include "platform/Dialogs.h"
#include "tables/TableFiles.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class PipeModulusTest : public SuiteTest {
protected:
    static bool Load(const std::string& row, double temperature) {
        Calc.FlowTemperature = temperature;
        return LoadPipeModulus(SplitTableLine(table::Modulus, row));
    }
};

// A column on 100 (c - 1) degF that says its own place, so that the column taken can be told.
constexpr const char* Whole = "Whole                  ,7.1,100,2,3,4,5,6,7,8,9,10,11,12,1500,";

TEST_F(PipeModulusTest, TakesTheColumnsOnBothSidesOfTheTemperature) {
    const struct {
        const char* Row;
        double Temperature, Modulus;  // degF, 1e7 psi
    } cases[] = {
        {Whole, 50, 7.1},
        {Whole, 70, 7.1},
        {Whole, 99.9, 7.1},
        {Whole, 100, 100},
        {Whole, 150, 51},
        {Whole, 200, 2},
        {Whole, 250, 2.5},
        {Whole, 399.9, 3.999},
        {Whole, 1100, 11},
        {Whole, 1199.9, 11.999},
        {Whole, 1200, 12},
        {"Ends at 300            ,3,2.9,2.8,2.7,0,2.5,2.4,0,0,0,0,0,0,900,", 300, 2.7},
        {"Ends at 100            ,0.042,0.035,0,0,0,0,0,0,0,0,0,0,0,140,", 100, 0.035},
        {"Breaks off at 200      ,3,2.9,2.8", 200, 2.8},
    };
    for (const auto& each : cases) {
        EXPECT_TRUE(Load(each.Row, each.Temperature)) << each.Row << each.Temperature;
        EXPECT_NEAR(Calc.PipeModulus, each.Modulus * 1e7, 1) << each.Row << each.Temperature;
        EXPECT_EQ(Calc.PipeMaterial,
                  std::string(each.Row, 0, 23).substr(0, std::string(each.Row).find("  ")));
        EXPECT_EQ(Calc.CaseText[5], Calc.PipeMaterial);
    }
    EXPECT_TRUE(User.Boxes.empty());
    Calc.UnitFactor[27] = 0.14504;
    EXPECT_TRUE(Load(Whole, 250));
    EXPECT_EQ(Calc.CaseInput[27][1], 172366243) << "whole kPa, cut and not rounded";
}

TEST_F(PipeModulusTest, RefusesATemperatureWithoutData) {
    const struct {
        const char* Row;
        double Temperature;
        const char* Limit;
    } cases[] = {
        {Whole, 49.9, "1200"},
        {Whole, 1200.1, "1200"},
        {"A gap behind 300       ,3,2.9,2.8,2.7,0,2.5,2.4,2.3,2.2,2.1,2,1.9,1.8,900,", 301, "300"},
        {"No data at 100         ,3,,2.8,2.7,2.6,2.5,2.4,0,0,0,0,0,0,600,", 70, "0"},
        {"No data at all         ,,,,,,,,,,,,,,,,,,,,,,", 70, "-100"},
        {"Words                  ,many,many,many,many", 70, "-100"},
        {"Too short,3,2.9,2.8", 70, "-100"},
        {"", 70, "-100"},
    };
    for (const auto& each : cases) {
        ASSERT_TRUE(Load(Whole, 70));
        EXPECT_FALSE(Load(each.Row, each.Temperature));
        EXPECT_EQ(User.LastText(),
                  "Table has data for temperatures 50 to " + std::string(each.Limit) + " degF only");
        EXPECT_EQ(User.Boxes.back().Sign, Icon::Stop);
        EXPECT_EQ(Calc.PipeModulus, 0);
        EXPECT_EQ(Calc.CaseInput[27][1], 0);
        EXPECT_EQ(Calc.PipeMaterial, "");
    }
    EXPECT_EQ(User.Boxes[2].Title, "A gap behind 300");
}

// What the shipped table gives is compared with ASME B31.1, in millions of psi.
TEST_F(PipeModulusTest, TheShippedTableGivesTrueModuli) {
    const std::vector<std::string> rows = ReadTable(table::Modulus);
    const struct {
        const char* Material;
        double Temperature, Msi;
    } cases[] = {{"Carbon Steel C<=0.3%", 70, 29.5},
                 {"Carbon Steel C<=0.3%", 350, 28.0},
                 {"Austenitic Stainless", 1200, 21.2},
                 {"Gray Cast Iron", 400, 12.6},
                 {"Copper", 70, 17},
                 {"PVC", 70, 0.42}};
    for (const auto& each : cases) {
        const auto row = static_cast<std::size_t>(FindTableRow(rows, each.Material));
        EXPECT_TRUE(Load(rows[row], each.Temperature)) << each.Material;
        EXPECT_NEAR(Calc.PipeModulus, each.Msi * 1e6, 1) << each.Material;
    }
}

}  // namespace
}  // namespace quillmetra
