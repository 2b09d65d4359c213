// Every file that the suite reads, damaged at random: cut, with other bytes, with a part again or torn out.
// A reader may refuse it in words; nothing may crash, hang, or bring in a number that is none.
// QUILLMETRA_SEED gives other damages.
#include <cmath>
#include <functional>
#include <random>
#include <sstream>

#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "fluids/GasData.h"
#include "fluids/LiquidData.h"
#include "fluids/SteamTables.h"
#include "forms/ColourSchemes.h"
#include "forms/RegisterForms.h"
#include "hammer/PipeModulus.h"
#include "records/Version5.h"
#include "script/ScriptPlayer.h"
#include "tables/PipeSizes.h"
#include "tables/TableSheet.h"
#include "tests/records/RecordFixture.h"
#include "units/UnitCatalogue.h"
#include "units/UnitLibraryFile.h"
#include "units/UserUnits.h"

namespace quillmetra {
namespace {

class Damage {
public:
    std::string Of(std::string text) {
        for (int blows = 1 + Below(3); blows > 0 && !text.empty(); --blows) Strike(text);
        return text;
    }
    int Below(std::size_t count) { return static_cast<int>(random_() % count); }

private:
    void Strike(std::string& text) {
        const auto at = static_cast<std::size_t>(Below(text.size()));
        const std::size_t length = std::min(text.size() - at, static_cast<std::size_t>(1 + Below(100)));
        switch (Below(7)) {
            case 0: text.resize(at); break;
            case 1: text.replace(at, length, length, '\xFF'); break;
            case 2: text.replace(at, length, length, '\0'); break;
            case 3: text.insert(at, text.substr(at, length)); break;
            case 4: text.erase(at, length); break;
            case 5: text.replace(at, 1, Odd[static_cast<std::size_t>(Below(Odd.size()))]); break;
            default: text[at] = static_cast<char>(text[at] ^ 1 << Below(8));
        }
    }

    const std::vector<std::string> Odd = {"1e999", "nan",  "-inf", "\"", ",",
                                          "\r\n",  "\x1A", "0",    "-",  "1e-320"};
    static unsigned Seed() {
        const char* const text = std::getenv("QUILLMETRA_SEED");
        return text == nullptr ? 20 : static_cast<unsigned>(std::atoi(text));
    }
    std::mt19937 random_{Seed()};
};

class DamagedFiles : public SuiteTest {
protected:
    static void SetUpDatabase() {
        MakeEmptyDatabase(Suite.DatabaseFile);
        for (int program = 1; program <= 5; ++program) {
            TakeFilledRecord(program, 1, "T-" + std::to_string(program));
            SaveTRCalc();
        }
    }

    // Reads the file damaged in so many ways.
    void Read(const std::filesystem::path& file, int times, const std::function<void()>& reader) {
        const std::string sound = ReadBytes(SuitePath(file));
        ASSERT_FALSE(sound.empty());
        for (int i = 0; i < times; ++i) {
            const std::string damaged = damage_.Of(sound);
            std::ofstream(file, std::ios::binary) << damaged;
            // Readers that keep a file until it changes go by its time, which is coarse.
            std::filesystem::last_write_time(
                file, std::filesystem::file_time_type::clock::now() + std::chrono::hours(i));
            Calc = CalcRecord();
            User.Boxes.clear();
            try {
                reader();
            } catch (const RuntimeError& error) {
                EXPECT_FALSE(error.Description.empty());
            }
            ASSERT_TRUE(IsRecordFinite()) << file << ", damage " << i << "\n" << damaged.substr(0, 500);
        }
    }
    void ReadData(const char* name, int times, const std::function<void()>& reader) {
        Read(DataFolder() / name, times, reader);
    }

    static bool IsRecordFinite() {
        const auto finite = [](double value) { return std::isfinite(value); };
        const auto all = [&](const auto& row) { return std::all_of(row.begin(), row.end(), finite); };
        const auto each = [](auto... values) { return (std::isfinite(values) && ...); };
        if (!each(Calc.Density, Calc.MolecularWeight, Calc.CritPressure, Calc.CritTemperature,
                  Calc.SGAtStandard, Calc.FlowingSG, Calc.VaporPressure, Calc.FluidViscosity,
                  Calc.PressureCorrection, Calc.CompressFactor, Calc.LatentHeatAtFlow,
                  Calc.NormalBoilingPoint, Calc.Viscosity1, Calc.Viscosity2, Calc.ViscosityTemp1,
                  Calc.ViscosityTemp2, Calc.LiquidCp60, Calc.GasCp1, Calc.LatentHeatRefValue,
                  Calc.BulkModulusBase, Calc.PipeModulus, Calc.StdTemperature, Calc.StdPressure,
                  Calc.BaroPressure, Calc.PipeInsideDiameter, Calc.PipeWallThickness, Calc.RatioSpecificHeats,
                  Calc.SaturationTemperature, Calc.PipeFouling))
            return false;
        return std::all_of(Calc.CaseInput.begin(), Calc.CaseInput.end(), all) &&
               std::all_of(Calc.CaseResult.begin(), Calc.CaseResult.end(), all) && all(Calc.HammerResult) &&
               all(Calc.PipeData) && all(Calc.FittingCount) && all(Calc.UnitFactor) &&
               all(Calc.FluidPercent) && all(Suite.UserLiquidUnitFactor) && all(Suite.UserGasUnitFactor);
    }

    Damage damage_;
};

TEST_F(DamagedFiles, Tables) {
    const auto each = [this](const std::vector<std::string>& rows, const std::function<void()>& parse) {
        for (int i = 0; i < 10 && !rows.empty(); ++i) {
            Calc.FluidOk = words::FluidPicked;
            Calc.CurrentProgram = 4;
            Calc.FlowTemperature = 100;
            Calc.FlowPressure = 100;
            Calc.FluidRow = rows[static_cast<std::size_t>(damage_.Below(rows.size()))];
            parse();
            ASSERT_TRUE(IsRecordFinite()) << Calc.FluidRow;
        }
    };
    ReadData("Liquid.txt", 150, [&] {
        LoadTable(table::Liquid);
        each(ReadFluidRows(words::Liquid), [] {
            ParseLiquidRow();
            ProcessLiquidData();
        });
    });
    ReadData("Gas.txt", 150, [&] {
        LoadTable(table::Gas);
        each(ReadFluidRows(words::Gas), [] {
            ParseGasRow();
            Calc.CurrentProgram = 5;
            ProcessGasData();
        });
        each(ReadFluidRows(words::Gas), ParseGasRowForMixture);
    });
    ReadData("W-PIPE.TXT", 150, [] {
        LoadTable(table::Pipe);
        for (const char* size : {"1", "4", "24"}) {
            for (const std::string& line : FindPipeSizes(size)) TakePipeRow(line);
        }
    });
    ReadData("Modulus.txt", 150, [] {
        for (const TableFields& row : LoadTable(table::Modulus).Rows) {
            Calc.FlowTemperature = 250;
            try {
                LoadPipeModulus(row);
            } catch (const RuntimeError&) {
                Calc.PipeModulus = 0;
            }
        }
    });
}

TEST_F(DamagedFiles, Settings) {
    const std::string folder = SuitePath(DataFolder());
    const std::string drive = "\"" + folder + "\"\r\n";
    std::ofstream(Folder / "TRDRV.txt", std::ios::binary) << drive + drive + drive + drive;
    Read(Folder / "TRDRV.txt", 100, [] { ReadDefaultPaths(); });
    Suite.DefaultPaths.fill(folder);
    WriteData("TRSTP.TXT", "60\r\n14.7\r\n14.6\r\n\r\nYes\r\n\r\n");
    ReadData("TRSTP.TXT", 200, ReadStandardConditions);
    WriteData("TRHDG.txt", "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n7\r\n8\r\n9\r\n10\r\n");
    ReadData("TRHDG.txt", 50, LoadHeadings);
    Suite.UserLiquidUnitFactor.fill(2);
    Suite.UserGasUnitFactor.fill(3);
    WriteUserUnits();
    ReadData("TRUNS.txt", 200, [] {
        ReadUserUnits();
        TakeUserUnitSet();
    });
    LoadDefaultUnits();
    WriteUnitLibrary();
    ReadData("TRLib.TXT", 200, [] {
        ReadUnitLibrary();
        for (const UnitList& list : Suite.UnitLibrary) {
            for (const UnitLine& line : list) ASSERT_TRUE(std::isfinite(line.Factor)) << line.Name;
        }
    });
    RegisterForms();
    std::string colours;
    for (const std::uint32_t colour : DefaultColours) colours += std::to_string(colour) + "\r\n";
    WriteData("TRColr.txt", colours);
    ReadData("TRColr.txt", 30, [this] {
        Boot(SuitePath(Folder));
        for (int slot = 1; slot <= 12; ++slot) EXPECT_LE(SlotColour(slot), 0xFFFFFFU);
    });
}

TEST_F(DamagedFiles, Steam) {
    int found = 0;
    for (const char* name : {"STEAM.txt", "Stm07.Dat"}) {
        Read(Folder / name, 60, [&found] {
            for (const double pressure : {1.0, 250.0, 3000.0, 9000.0}) {
                Calc.UnitName[2] = "degF";
                Calc.FlowPressure = pressure;
                Calc.FlowTemperature = 500;
                found += LookupSaturatedSteam() ? 1 : 0;
                Calc.FlowTemperature = 900;
                LookupSuperheatedSteam();
            }
        });
        std::filesystem::copy_file(SourceFolder() / "data" / name, Folder / name,
                                   std::filesystem::copy_options::overwrite_existing);
    }
    EXPECT_GT(found, 50) << "too badly damaged to be read at all";
}

TEST_F(DamagedFiles, Databases) {
    Suite.DatabaseFile = DatabaseFileOf(SuitePath(DataFolder()));
    SetUpDatabase();
    int loaded = 0;
    ReadData("TRDB.MDB", 150, [&loaded] {
        RecordView view(Suite.DatabaseFile);
        for (int i = 0; i < 6 && view.HasRecord(); ++i, view.Next()) {
            TakeFluidType(view.Head().FluidType, view.Head().ProgramNumber);
            Calc.Tag = view.Head().Tag;
            loaded += GetTRCalc() ? 1 : 0;
            ASSERT_TRUE(IsRecordFinite());
        }
    });
    EXPECT_GT(loaded, 100) << "too badly damaged to be read at all";
    ReadData("TRDB.MDB", 20, [] { RepairDB(FolderOf(Suite.DatabaseFile)); });
}

TEST_F(DamagedFiles, RecordsOfVersion5) {
    WriteData("OBXDAT.DAT", std::string(3 * Version5File::RecordSize, '\1'));
    ReadData("OBXDAT.DAT", 300, [this] {
        const Version5File file(ReadBytes(SuitePath(DataFolder() / "OBXDAT.DAT")));
        for (int i = 0; i < file.Count(); ++i) {
            file.Take(i);
            ASSERT_TRUE(IsRecordFinite());
        }
    });
}

TEST_F(DamagedFiles, Scripts) {
    RegisterForms();
    const std::string script = ReadBytes(SuitePath(SourceFolder() / "examples" / "liquid-line.qs"));
    int failed = 0;
    for (int i = 0; i < 60; ++i) {
        std::istringstream lines(damage_.Of(script));
        std::ostringstream out, errors;
        failed += ScriptPlayer(out, errors).Play("damaged", lines);
    }
    EXPECT_GT(failed, 10);
}

}  // namespace
}  // namespace quillmetra
