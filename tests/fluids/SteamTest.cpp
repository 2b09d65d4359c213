// Steam by look-up: against published figures, on the grid and off it, its limits, and its files when they
// are missing, cut or wrong.
#include <chrono>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>
#include <limits>

#include <gtest/gtest.h>

#include "core/Words.h"
#include "fluids/SteamTables.h"
#include "platform/NumberText.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

constexpr std::size_t RowBytes = 4 * 80;

class SteamTest : public SuiteTest {
protected:
    // As a form leaves a case: entries in rows 2 and 3, absolute pressure and degF in the working layer.
    static void Enter(double pressure, double temperature, const char* kind) {
        Calc.SteamKind = kind;
        Calc.PressureMode = words::Absolute;
        Calc.BaroPressure = 14.7;
        Calc.UnitName[2] = "degF";
        Calc.UnitName[3] = "psia";
        Calc.CaseInput[2][0] = temperature;
        Calc.CaseInput[3][0] = pressure;
        Calc.FlowPressure = pressure;
        Calc.FlowTemperature = temperature;
    }

    static double DensityAt(double pressure, double temperature) {
        Enter(pressure, temperature, words::Superheated);
        return LookupSuperheatedSteam() ? Calc.Density : 0;
    }

    static double SaturatedDensityAt(double pressure) {
        Enter(pressure, 0, words::Saturated);
        return LookupSaturatedSteam() ? Calc.Density : 0;
    }

    std::filesystem::path Pressures() const { return Folder / "STEAM.txt"; }
    std::filesystem::path Records() const { return Folder / "Stm07.Dat"; }

    static std::string Bytes(const std::filesystem::path& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static void Replace(const std::filesystem::path& path, std::string_view bytes) {
        std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
        // The clock of a disk may stand between two writes.
        static int writes = 0;
        const auto now = std::filesystem::file_time_type::clock::now();
        std::filesystem::last_write_time(path, now + std::chrono::seconds(++writes));
    }

    // Overwrites one value of the records.
    void Spoil(std::size_t row, std::size_t property, std::size_t place, float value) const {
        std::string bytes = Bytes(Records());
        std::memcpy(&bytes[row * RowBytes + property * 80 + place * 4], &value, sizeof value);
        Replace(Records(), bytes);
    }

    void ExpectNoSteam(const char* title) {
        const double before = Calc.CaseInput[9][0];
        for (const char* kind : {words::Saturated, words::Superheated}) {
            Enter(100, 500, kind);
            EXPECT_EQ(GetSteamData(), SteamOutcome::Refused);
            EXPECT_EQ(Calc.CaseInput[9][0], before);
            EXPECT_EQ(Calc.FlowTemperature, 500);
            ASSERT_FALSE(User.Boxes.empty());
            EXPECT_EQ(User.Boxes.back().Title, title);
            EXPECT_FALSE(User.LastText().empty());
        }
    }
};

std::vector<std::vector<std::string>> ReadCsv(const std::string& name) {
    std::ifstream file(SourceFolder() / "tools" / "reference" / name);
    std::vector<std::vector<std::string>> rows;
    std::string line;
    std::getline(file, line);
    while (std::getline(file, line)) {
        std::vector<std::string>& row = rows.emplace_back();
        for (std::size_t start = 0; start <= line.size();) {
            const std::size_t end = std::min(line.find(',', start), line.size());
            row.push_back(line.substr(start, end - start));
            start = end + 1;
        }
    }
    return rows;
}

// --- Published figures -------------------------------------------------------------------------------------

struct Point {
    double Pressure;     // psia
    double Temperature;  // degF, 0 for saturated steam
    double Density;      // lb/ft3
    double Sonic;        // ft/s
    double Saturation;   // degF
};

// The international industrial formulation of 1997 for steam (IAPWS-IF97, regions 2 and 4), which the steam
// tables in print are computed from; the files themselves come from IAPWS-95. Specific volumes agree with
// the printed ones: 26.29 ft3/lb saturated at 15 psia, 4.432 at 100, 0.4461 at 1000, 0.1882 at 2000; 4.936 at
// 100 psia and 400 degF, 0.8308 at 1000 psia and 1000 degF.
constexpr Point PublishedPoints[] = {
    {15, 0, 0.0380298, 1550.32, 212.988},
    {50, 0, 0.117411, 1605.00, 280.993},
    {100, 0, 0.225612, 1631.80, 327.817},
    {500, 0, 1.07741, 1650.73, 467.047},
    {1000, 0, 2.24184, 1606.97, 544.652},
    {2000, 0, 5.31380, 1465.74, 635.853},
    {15, 300, 0.0334376, 1653.33, 212.988},
    {100, 400, 0.202602, 1726.63, 327.817},
    {200, 600, 0.326959, 1915.80, 381.813},
    {600, 800, 0.840067, 2060.90, 0},
    {1000, 1000, 1.20368, 2214.91, 0},
    {1500, 900, 2.04004, 2088.59, 596.267},
    {2000, 700, 4.01688, 1713.51, 635.853},
    {2000, 1000, 2.53294, 2164.11, 635.853},
    // Between the lowest temperature and the first column.
    {5, 205, 0.0126961, 1552.51, 0},
    {10, 220, 0.0249417, 1564.92, 0},
};

TEST_F(SteamTest, AgreesWithThePublishedTables) {
    for (const Point& point : PublishedPoints) {
        SCOPED_TRACE(std::to_string(point.Pressure) + " psia, " + std::to_string(point.Temperature));
        Enter(point.Pressure, point.Temperature,
              point.Temperature == 0 ? words::Saturated : words::Superheated);
        ASSERT_EQ(GetSteamData(), SteamOutcome::Found) << User.LastText();
        EXPECT_NEAR(Calc.Density / point.Density, 1, 0.01);
        // The ratio is there for the sonic velocity, sqrt(k p v).
        const double sonic =
            std::sqrt(Calc.RatioSpecificHeats * 32.174 * 144 * point.Pressure / Calc.Density);
        EXPECT_NEAR(sonic / point.Sonic, 1, 0.01);
        if (point.Saturation != 0) {
            EXPECT_NEAR(Calc.SaturationTemperature, point.Saturation, 0.5);
        }
        if (point.Temperature != 0) {
            EXPECT_EQ(Calc.FlowTemperature, point.Temperature);
        }
    }
    EXPECT_TRUE(User.Boxes.empty());
}

// Viscosity of saturated steam by IAPWS 2008, cp, and latent heats of the printed tables, Btu/lb.
TEST_F(SteamTest, ViscosityAndLatentHeat) {
    const struct {
        double Pressure, Viscosity, LatentHeat;
    } points[] = {{14.696, 0.012231, 970.1}, {100, 0.014452, 888.6}, {1000, 0.018843, 650.6}};
    for (const auto& point : points) {
        Enter(point.Pressure, 0, words::Saturated);
        ASSERT_EQ(GetSteamData(), SteamOutcome::Found);
        EXPECT_NEAR(Calc.Viscosity / point.Viscosity, 1, 0.01) << point.Pressure;
        EXPECT_NEAR(Calc.LatentHeatAtFlow / point.LatentHeat, 1, 0.025) << point.Pressure;
        EXPECT_EQ(Calc.LatentHeatBP, 970.3);
        EXPECT_EQ(Calc.NormalBoilingPoint, 212);
    }
    EXPECT_NEAR(SaturatedSteamLatentHeat(212), 970.3 * 1.01, 1e-9);
    EXPECT_EQ(SaturatedSteamLatentHeat(705.4 + 1e-9), 0);
    EXPECT_EQ(SaturatedSteamLatentHeat(900), 0);
    Enter(100, 500, words::Superheated);
    ASSERT_EQ(GetSteamData(), SteamOutcome::Found);
    EXPECT_EQ(Calc.LatentHeatAtFlow, 0) << "superheated steam shows none";
}

// --- The files ---------------------------------------------------------------------------------------------

TEST_F(SteamTest, RecordsHoldTheReferenceFigures) {
    const std::string bytes = Bytes(Records());
    ASSERT_EQ(bytes.size(), 99 * RowBytes);
    std::string pressures;
    for (const auto& row : ReadCsv("steam_pressures.csv")) pressures += row[1] + "\r\n";
    EXPECT_EQ(Bytes(Pressures()), pressures);

    std::size_t compared = 0;
    for (const char* name : {"steam_table.csv", "steam_isentropic_exponent.csv"}) {
        const bool exponent = name != std::string("steam_table.csv");
        for (const auto& row : ReadCsv(name)) {
            const auto number = static_cast<std::size_t>(std::stoi(row[0]));
            const auto property = static_cast<std::size_t>(std::stoi(row[2]));
            if ((property == 1) != exponent) continue;  // the ratio is the isentropic exponent
            float record[20];
            std::memcpy(record, &bytes[((4 * (number - 1) + 1 + property) - 1) * 80], sizeof record);
            EXPECT_EQ(record[0], 0);
            EXPECT_EQ(record[19], 0);
            for (std::size_t i = 1; i <= 18; ++i) {
                EXPECT_EQ(record[i], std::stof(row[i + 2])) << name << " " << row[0] << " " << i;
                ++compared;
            }
        }
    }
    EXPECT_EQ(compared, 99U * 4 * 18);
}

TEST_F(SteamTest, MeetsTheGrid) {
    // A pressure on a row and a temperature on a column give the figure of the file.
    EXPECT_DOUBLE_EQ(DensityAt(104, 400),
                     1 / static_cast<double>(std::stof(ReadCsv("steam_table.csv")[36 * 4][7])));
    EXPECT_DOUBLE_EQ(DensityAt(15000, 1500), 1 / static_cast<double>(0.068891F));
    // The lowest row stands alone for what lies below it.
    for (const double pressure : {0.5, 0.3, 1e-9}) {
        EXPECT_DOUBLE_EQ(SaturatedDensityAt(pressure), 1 / static_cast<double>(641.299F)) << pressure;
        EXPECT_DOUBLE_EQ(DensityAt(pressure, 340), 1 / static_cast<double>(952.488F)) << pressure;
    }
    // Nothing is left over from the look-up before.
    SaturatedDensityAt(2000);
    EXPECT_DOUBLE_EQ(SaturatedDensityAt(0.4), 1 / static_cast<double>(641.299F));
    // Halfway between rows and columns: the mean of the four corners.
    const double corners = 1 / DensityAt(104, 500) + 1 / DensityAt(104, 600) + 1 / DensityAt(117.94, 500) +
                           1 / DensityAt(117.94, 600);
    EXPECT_NEAR(1 / DensityAt(110.97, 550) / (corners / 4), 1, 1e-6);
    // Above the critical pressure a row has no saturation: the first column alone.
    EXPECT_DOUBLE_EQ(DensityAt(5000, 220), 1 / static_cast<double>(0.016639F));
    // A zero counts as it stands from the critical pressure on: there is no steam below 700 degF in the row
    // of 3208.2 psia.
    EXPECT_NEAR(1 / DensityAt(3229.1, 645), (0.0226388 + 0.9 * (0.025178 - 0.0226388)) / 2, 1e-6);
}

// Columns that lie between the saturation temperatures of two rows, and entries up to a degree too cold,
// must not take a zero for a volume.
TEST_F(SteamTest, NearSaturationIsNearSaturatedSteam) {
    for (int step = 0; step < 3250; ++step) {
        const double pressure = 3 * std::pow(1.002, step);  // up to 1981 psia
        const double saturated = SaturatedDensityAt(pressure);
        const double temperature = Calc.FlowTemperature;
        for (const double above : {-0.95, -0.5, -0.05, 0.0, 0.05, 0.5}) {
            if (temperature + above < SteamLowestTemperature) continue;
            const double density = DensityAt(pressure, temperature + above);
            ASSERT_NEAR(density / saturated, 1, 0.02) << pressure << " psia, " << above << " above";
        }
    }
}

TEST_F(SteamTest, KeptUntilTheyChange) {
    const double before = SaturatedDensityAt(104);
    const auto time = std::filesystem::last_write_time(Records());
    Spoil(36, 0, 2, 1);
    std::filesystem::last_write_time(Records(), time);
    EXPECT_EQ(SaturatedDensityAt(104), before) << "same time and size: not read again";
    std::filesystem::last_write_time(Records(), time + std::chrono::seconds(1));
    EXPECT_DOUBLE_EQ(SaturatedDensityAt(104), 1);
    // A file that goes is missed, and found when it comes back.
    const std::string bytes = Bytes(Pressures());
    std::filesystem::remove(Pressures());
    EXPECT_EQ(SaturatedDensityAt(104), 0);
    Replace(Pressures(), bytes);
    EXPECT_DOUBLE_EQ(SaturatedDensityAt(104), 1);
    // Another program folder has files of its own.
    Suite.DefaultPaths[5] = SuitePath(SourceFolder() / "data");
    EXPECT_EQ(SaturatedDensityAt(104), before);
}

constexpr const char* FileTitle = "Program default drive and path file";

TEST_F(SteamTest, FilesThatCannotBeUsed) {
    const std::string pressures = Bytes(Pressures()), records = Bytes(Records());
    for (const auto& path : {Pressures(), Records()}) {
        const std::string bytes = Bytes(path);
        std::filesystem::remove(path);
        ExpectNoSteam(FileTitle);
        EXPECT_EQ(User.LastText(), "The steam files cannot be used: File not found");
        std::filesystem::create_directory(path);
        ExpectNoSteam(FileTitle);
        std::filesystem::remove(path);
        Replace(path, bytes);
    }
    for (const std::string& text : {std::string(), std::string("-5\r\n-3\r\n"),
                                    pressures.substr(0, pressures.find("\r\n91\r\n") + 2)}) {
        Replace(Pressures(), text);
        ExpectNoSteam(FileTitle);
    }
    Replace(Pressures(), pressures);
    EXPECT_EQ(DensityAt(15000.01, 1000), 0) << "past the last pressure";

    // 100 psia lies between the rows 36 and 37.
    const std::size_t needed = 37 * RowBytes;
    for (const std::size_t length : {std::size_t{0}, needed - 1}) {
        Replace(Records(), records.substr(0, length));
        ExpectNoSteam(FileTitle);
    }
    Replace(Records(), records.substr(0, needed));
    EXPECT_GT(SaturatedDensityAt(100), 0);
    EXPECT_EQ(DensityAt(15000, 1500), 0);

    constexpr float infinite = std::numeric_limits<float>::infinity();
    for (const float value : {0.F, -infinite, std::numeric_limits<float>::quiet_NaN()}) {
        for (const std::size_t property : {0UL, 1UL, 2UL}) {
            Replace(Records(), records);
            for (const std::size_t row : {35UL, 36UL}) {
                for (const std::size_t place : {2UL, 6UL}) Spoil(row, property, place, value);
            }
            ExpectNoSteam("Gas Calculation");
            EXPECT_EQ(User.LastText(), "Fluid properties cannot be calculated");
        }
    }
    // A saturation temperature that meets its column.
    Replace(Records(), records);
    Spoil(35, 0, 1, 500);
    Spoil(35, 0, 5, 0);
    DensityAt(100, 500);
    EXPECT_TRUE(std::isfinite(Calc.Density) && std::isfinite(Calc.CaseInput[9][0]));
}

// --- Limits and the record ---------------------------------------------------------------------------------

TEST_F(SteamTest, LimitsAreTold) {
    const char* sup = words::Superheated;
    const char* sat = words::Saturated;
    const struct {
        const char *Kind, *Mode, *PressureUnit, *TemperatureUnit;
        double PressureFactor, Pressure, Temperature;  // as entered
        double Psia, DegF;
        const char *Title, *Text;
        SteamOutcome Outcome;
        Icon Sign;
    } cases[] = {
        {sat, "Psia", "psia", "degF", 1, 3208.21, 0, 3208.21, 0, "Saturated Steam",
         "Flow pressure 3208.21 psia cannot exceed\n Critical pressure 3208.2 psia", SteamOutcome::Refused,
         Icon::Stop},
        {sat, "Psig", "psig", "degF", 1, 3193.6, 0, 3208.3, 0, "Saturated Steam",
         "Flow pressure 3193.6 psig cannot exceed\n Critical pressure 3193.5 psig", SteamOutcome::Refused,
         Icon::Stop},
        {sat, "Psig", "kPag", "degC", 0.14504, 23000, 0, 3350.62, 0, "Saturated Steam",
         "Flow pressure 23000 kPag cannot exceed\n Critical pressure 22018.1 kPag", SteamOutcome::Refused,
         Icon::Stop},
        {sup, "Psia", "psia", "degF", 1, 15001, 900, 15001, 900, "Superheated Steam",
         "Maximum pressure on file is 15000 psia", SteamOutcome::Refused, Icon::Stop},
        {sup, "Psig", "psig", "degF", 1, 15000, 900, 15014.7, 900, "Superheated Steam",
         "Maximum pressure on file is 15000 psig", SteamOutcome::Refused, Icon::Stop},
        {sup, "Psia", "psia", "degF", 1, 5, 199.9, 5, 199.9, "Superheat Temperature",
         "Table is limited to a range of 200 degF to 1500 degF", SteamOutcome::Cleared, Icon::Stop},
        {sup, "Psia", "psia", "degC", 1, 5, 816, 5, 1500.8, "Superheat Temperature",
         "Table is limited to a range of 93.34 degC to 816 degC", SteamOutcome::Cleared, Icon::Stop},
        {sup, "Psia", "psia", "degR", 1, 5, 600, 5, 140.33, "Superheat Temperature",
         "Table is limited to a range of 661 degR to 1960 degR", SteamOutcome::Cleared, Icon::Stop},
        {sup, "Psia", "psia", "degK", 1, 5, 2000, 5, 3140.33, "Superheat Temperature",
         "Table is limited to a range of 368 degK to 1089 degK", SteamOutcome::Cleared, Icon::Stop},
        {sup, "Psia", "psia", "degF", 1, 14.696, 210.9, 14.696, 210.9,
         "Minimum Temperature below 1.315  is the Saturated Temperature",
         "Superheat temp 210.9 degF must be greater than the Saturated temp. 211.954 degF",
         SteamOutcome::Cleared, Icon::None},
        {sup, "Psia", "psia", "degC", 1, 14.696, 98.9, 14.696, 210.02,
         "Minimum Temperature below 1.315  is the Saturated Temperature",
         "Superheat temp 98.9 degC must be greater than the Saturated temp. 99.9744 degC",
         SteamOutcome::Cleared, Icon::None},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Text);
        Enter(each.Pressure, each.Temperature, each.Kind);
        Calc.PressureMode = each.Mode;
        Calc.UnitName[3] = each.PressureUnit;
        Calc.UnitFactor[3] = each.PressureFactor;
        Calc.UnitName[2] = each.TemperatureUnit;
        Calc.FlowPressure = each.Psia;
        Calc.FlowTemperature = each.DegF;
        Calc.CaseInput[9][0] = 7;
        User.Boxes.clear();
        EXPECT_EQ(GetSteamData(), each.Outcome);
        ASSERT_EQ(User.Boxes.size(), 1U);
        EXPECT_EQ(User.Boxes[0].Title, each.Title);
        EXPECT_EQ(User.Boxes[0].Text, each.Text);
        EXPECT_EQ(User.Boxes[0].Sign, each.Sign);
        EXPECT_EQ(Calc.CaseInput[9][0], each.Outcome == SteamOutcome::Cleared ? 0 : 7);
        EXPECT_EQ(Calc.FlowTemperature, each.DegF);
        Calc.UnitFactor[3] = 1;
    }
}

TEST_F(SteamTest, TheLimitsThemselvesAreInside) {
    for (const auto& [pressure, temperature] :
         {std::pair(3208.2, 1500.0), std::pair(15000.0, 200.0), std::pair(14.696, 211.0)}) {
        Enter(pressure, temperature, words::Superheated);
        EXPECT_EQ(GetSteamData(), SteamOutcome::Found) << pressure;
    }
    Enter(3208.2, 0, words::Saturated);
    EXPECT_EQ(GetSteamData(), SteamOutcome::Found);
    EXPECT_NEAR(Calc.SaturationTemperature, 705.4783, 1e-4);
    for (const double pressure : {0.0, -5.0, std::nan("")}) {
        for (const char* kind : {words::Saturated, words::Superheated}) {
            Enter(pressure, 500, kind);
            EXPECT_EQ(GetSteamData(), SteamOutcome::NoPressure);
            EXPECT_FALSE(LookupSaturatedSteam());
            EXPECT_FALSE(LookupSuperheatedSteam());
        }
    }
    EXPECT_EQ(DensityAt(100, 1500.1), 0) << "past the last column";
    EXPECT_TRUE(User.Boxes.empty());
}

TEST_F(SteamTest, RowsOfTheCaseInTheirUnits) {
    const auto row = [](std::size_t index) { return Calc.CaseInput[index][2]; };
    Enter(14.696, 0, words::Saturated);
    Calc.CaseIndex = 2;
    Calc.UnitName[12] = "degR";
    ASSERT_EQ(GetSteamData(), SteamOutcome::Found);
    EXPECT_NEAR(row(2), 211.954, 1e-9);
    EXPECT_EQ(row(5), 18.015);
    EXPECT_EQ(row(7), 0.01223);
    EXPECT_EQ(row(9), 0.03731);
    EXPECT_EQ(row(10), 1.315);
    EXPECT_EQ(row(11), 3208.2);
    EXPECT_EQ(row(12), 1165.4);
    EXPECT_EQ(Calc.CritTemperature, 1165.4);
    EXPECT_EQ(Calc.CaseInput[9][0], 0) << "only the case in hand";

    Calc.UnitName[2] = "degC";
    Calc.UnitFactor[9] = 0.062428;
    Calc.UnitFactor[11] = 0.14504;
    for (const auto& [unit, value] : {std::pair("degK", 647.0), std::pair("degF", 705.5),
                                      std::pair("degC", 374.0), std::pair("own", 2330.0)}) {
        Calc.UnitName[12] = unit;
        Calc.UnitFactor[12] = unit == std::string("own") ? 2 : 1;
        ASSERT_EQ(GetSteamData(), SteamOutcome::Found);
        EXPECT_EQ(row(12), value);
    }
    EXPECT_NEAR(row(2), 99.9744, 1e-9);
    EXPECT_NEAR(row(9), 0.5979, 1e-3);
    EXPECT_NEAR(row(11), 22119.4, 0.1);

    // A kinematic unit takes the molecular weight for the density.
    Calc.UnitName[7] = "cs";
    ASSERT_TRUE(LookupSaturatedSteam());
    const double centistokes = row(7);
    EXPECT_NEAR(centistokes, 0.01223 * 23588 / 18.015, 0.01);
    Calc.UnitName[7] = "m2/s";
    ASSERT_TRUE(LookupSaturatedSteam());
    EXPECT_NEAR(row(7) / centistokes, 1e-6, 1e-10);
}

// A record that is loaded is known as saturated or superheated by the saturation temperature alone.
TEST_F(SteamTest, FindsTheSaturationTemperatureAlone) {
    Enter(100, 555, words::Saturated);
    Calc.SteamFindMode = words::FindSaturation;
    ASSERT_TRUE(LookupSaturatedSteam());
    EXPECT_NEAR(Calc.SaturationTemperature, 327.8, 0.5);
    EXPECT_EQ(Calc.FlowTemperature, 555);
    EXPECT_EQ(Calc.Density, 0);
    EXPECT_EQ(Calc.CaseInput[9][0], 0);
    Calc.UnitName[2] = "degK";
    ASSERT_TRUE(LookupSaturatedSteam());
    EXPECT_NEAR(Calc.SaturationTemperature, (327.8 + 459.67) / 1.8, 0.3);
}

}  // namespace
}  // namespace quillmetra
