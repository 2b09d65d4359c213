// Starting with whatever files a folder holds: paths, colours, standard conditions, headings, shipped tables.
#include "core/StartUp.h"

#include <fstream>
#include <sstream>

#include "core/Words.h"
#include "forms/frmTRProg.h"
#include "forms/LoadDefaults.h"
#include "forms/RegisterForms.h"
#include "platform/ProgramPlaces.h"
#include "platform/UserActs.h"
#include "records/RecordFiles.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

class StartUpTest : public SuiteTest {
protected:
    StartUpTest() { RegisterForms(); }

    void Write(const fs::path& path, std::string_view bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    static std::string Read(const fs::path& path) {
        std::stringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        return text.str();
    }
    void Start() {
        ResetForms();
        RegisterForms();
        Calc = CalcRecord();
        Suite = SuiteState();
        StartUp(SuitePath(Folder));
    }
};

TEST_F(StartUpTest, AnEmptyFolderShowsTheBrowserWithoutAWord) {
    fs::remove_all(DataFolder());
    Start();
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    EXPECT_TRUE(LoadedForm("frmTRProg")->Visible());
    EXPECT_EQ(Suite.VersionText.substr(0, 4), "Ver.");
    EXPECT_EQ(Suite.VersionText.substr(Suite.VersionText.size() - 3), ".  ");
    for (std::size_t i = 1; i <= 4; ++i) EXPECT_EQ(Suite.DefaultPaths[i], SuitePath(Folder) + "\\TRData");
    EXPECT_EQ(Suite.HelpFile, SuitePath(Folder) + "\\VOTR.HLP");
    for (std::size_t slot = 1; slot <= 12; ++slot) EXPECT_EQ(Suite.Colours[slot], DefaultColours[slot - 1]);
    EXPECT_FALSE(fs::exists(DataFolder())) << "nothing is written before there is something to keep";
}

// Without a box, on the path that it lies on, and with the default path as it was.
TEST_F(StartUpTest, TheDatabaseOfTheLastRunOpensAgain) {
    Start();
    auto& browser = dynamic_cast<frmTRProg&>(*LoadedForm("frmTRProg"));
    const std::string usual = Suite.DefaultPaths[1], other = SuitePath(Folder / "other");
    for (const std::string& folder : {usual, other}) {
        fs::create_directories(MachinePath(folder));
        MakeEmptyDatabase(DatabaseFileOf(folder));
        browser.Dispatch([&] { browser.OpenAgain(DatabaseFileOf(folder)); });
        EXPECT_EQ(browser.OpenFile(), DatabaseFileOf(folder)) << browser.Status();
        EXPECT_EQ(browser.optBrouseDB.Checked(), folder == other);
        browser.Dispatch([&] { browser.cmdDBClose_Click(); });
        EXPECT_EQ(Suite.DefaultPaths[1], usual);
    }
    EXPECT_EQ(browser.Recent(), (frmTRProg::Files{DatabaseFileOf(other), DatabaseFileOf(usual)}));
    std::ofstream(MachinePath(DatabaseFileOf(other))) << "words";
    for (const std::string& file : {DatabaseFileOf(other), other + "\\none\\TRDB.MDB"}) {
        browser.Dispatch([&] { browser.OpenAgain(file); });
        EXPECT_TRUE(browser.Status().starts_with("Not opened again: " + file)) << browser.Status();
        EXPECT_TRUE(browser.OpenFile().empty());
        EXPECT_EQ(Suite.DefaultPaths[1], usual);
    }
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
}

TEST_F(StartUpTest, PathsComeFromAWholeFileOnly) {
    const struct {
        const char* Content;
        bool Whole;
    } cases[] = {
        {"\"d:\\db\"\r\n\"d:\\units\"\r\n\"d:\\heads\"\r\n\"d:\\data, all\"\r\n", true},
        {"\"d:\\db\"\n\"d:\\units\"\n\"d:\\heads\"\n\"d:\\data, all\"", true},
        {"\"d:\\db\"\r\n\"d:\\units\"\r\n\"d:\\heads\"\r\n", false},
        {"\"d:\\db\",\"d:\\units\"\x1A,\"d:\\heads\",\"d:\\data, all\"", false},
        {"", false},
    };
    for (const auto& each : cases) {
        Write(Folder / "trdrv.TXT", each.Content);
        Start();
        EXPECT_EQ(Suite.DefaultPaths[1], each.Whole ? "d:\\db" : SuitePath(Folder) + "\\TRData")
            << each.Content;
        EXPECT_EQ(Suite.DefaultPaths[4], each.Whole ? "d:\\data, all" : SuitePath(Folder) + "\\TRData");
        EXPECT_EQ(Suite.DefaultPaths[5], SuitePath(Folder));
        Suite.DefaultPaths[4] = "chosen since";
        ReadDefaultPaths(3);
        EXPECT_EQ(Suite.DefaultPaths[4], "chosen since");
    }
    // A folder under the file's name is no file, and stops nobody.
    fs::remove(Folder / "trdrv.TXT");
    fs::create_directory(Folder / "TRDRV.txt");
    Start();
    EXPECT_EQ(Suite.DefaultPaths[4], SuitePath(Folder) + "\\TRData");
    EXPECT_TRUE(User.Boxes.empty());
}

TEST_F(StartUpTest, EachFileIsReadFromItsOwnPath) {
    std::string paths;
    for (int i = 1; i <= 4; ++i) {
        const fs::path folder = Folder / std::to_string(i);
        const std::string line = std::to_string(i) + "\r\n";
        fs::create_directory(folder);
        paths += "\"" + SuitePath(folder) + "\"\r\n";
        Write(folder / "TRHDG.txt", line);
        Write(folder / "TRSTP.TXT", line);
        std::string twelve;
        for (int slot = 0; slot < 12; ++slot) twelve += line;
        Write(folder / "TRcolr.txt", twelve);
    }
    Write(Folder / "TRDRV.txt", paths);
    Start();
    LoadHeadings();
    LoadDefaults();
    EXPECT_EQ(Suite.Colours[1], 4U);
    EXPECT_EQ(Calc.HeadingText[1], "3");
    EXPECT_EQ(Calc.StdTemperature, 2);
    EXPECT_EQ(Suite.DefaultPaths[path::Database], SuitePath(Folder / "1"));
}

TEST_F(StartUpTest, ColoursComeFromTwelveLinesOnly) {
    const std::string eleven = " 1\r\n 2\r\n 3\r\n 4\r\n 5\r\n 6\r\n 7\r\n 8\r\n 9\r\n 10\r\n 11\r\n";
    WriteData("TRcolr.txt", eleven);
    Start();
    EXPECT_EQ(Suite.Colours[1], DefaultColours[0]) << "a half-read file leaves nothing behind";
    WriteData("TRcolr.txt", eleven + " 12\r\n");
    Start();
    EXPECT_EQ(Suite.Colours[1], 1U);
    EXPECT_EQ(Suite.Colours[12], 12U);
    WriteData("TRcolr.txt", "1,2,3,4,5,6,7,8,9,10,11,-1,13\n");
    Start();
    EXPECT_EQ(Suite.Colours[12], 0xFFFFFFFFU) << "kept as it stands";
    SaveColours();
    Start();
    EXPECT_EQ(Suite.Colours[12], 0xFFFFFFFFU);
    for (const char* last : {"red", "1e300", ""}) {
        WriteData("TRcolr.txt", eleven + last + "\r\n");
        Start();
        EXPECT_EQ(Suite.Colours[1], DefaultColours[0]) << last;
    }
}

TEST_F(StartUpTest, StandardConditionsAreReadAsFarAsTheyGo) {
    const struct {
        const char* Content;
        double Temperature, Pressure, Barometer;
    } cases[] = {
        {" 60\r\n 14.696\r\n 14.2\r\nYes\r\nYes\r\nYes\r\n", 60, 14.696, 14.2},
        {"0\n0\n0\n", 60, 14.7, 14.7},
        {"-10\n-1\n-1\n", -10, 14.7, 14.7},
        {"59", 59, 14.7, 14.7},
        {"59\r\n14.5\r\n  ", 59, 14.5, 14.7},
        {"59\n\n\n\n", 59, 14.7, 14.7},
        {"sixty,1e999,nan", 60, 14.7, 14.7},
        {"", 60, 14.7, 14.7},
    };
    for (const auto& each : cases) {
        WriteData("TRSTP.TXT", each.Content);
        Calc = CalcRecord();
        LoadDefaults();
        EXPECT_EQ(Calc.StdTemperature, each.Temperature) << each.Content;
        EXPECT_EQ(Calc.StdPressure, each.Pressure) << each.Content;
        EXPECT_EQ(Calc.BaroPressure, each.Barometer) << each.Content;
        EXPECT_EQ(Calc.CaseInput[21][0], each.Temperature);
        EXPECT_EQ(Calc.CaseInput[22][0], each.Pressure);
        EXPECT_EQ(Calc.CaseInput[23][0], each.Barometer);
        EXPECT_TRUE(Suite.HideFlowStatus.empty()) << "the words last as long as the process";
    }
    fs::remove(DataFolder() / "TRSTP.TXT");
    Calc = CalcRecord();
    LoadDefaults();
    EXPECT_EQ(Calc.BaroPressure, 0) << "without a file nothing changes";
    RestoreStandardConditions();
    EXPECT_EQ(Calc.BaroPressure, 14.7);
    EXPECT_EQ(Calc.UnitName[23], "psia");
}

TEST_F(StartUpTest, StandardConditionsAreWrittenPressureFirst) {
    fs::create_directory(Folder / "units");
    Suite.DefaultPaths[2] = SuitePath(Folder / "units");  // read from here
    Calc.StdTemperature = 60;
    Calc.StdPressure = 14.7;
    Calc.BaroPressure = 14.2;
    Suite.HideFlowStatus = words::Yes;
    SaveStandardConditions();
    EXPECT_EQ(Read(DataFolder() / "TRSTP.TXT"), " 14.7\r\n 60\r\n 14.2\r\n\r\n\r\nYes\r\n");
    EXPECT_FALSE(fs::exists(Folder / "units" / "TRSTP.TXT"));
    // Where nothing can be written, the words still hold and nobody is told.
    Suite.DefaultPaths[4] = SuitePath(DataFolder() / "Liquid.txt");
    SaveStandardConditions();
    EXPECT_TRUE(User.Boxes.empty());
}

TEST_F(StartUpTest, HeadingsAreSevenLinesAtMost) {
    WriteData("TRHDG.txt", "Works, north\r\n\"Unit 3\"\r\n\r\nD\r\nE\r\nF\r\nG\r\nH\r\n");
    LoadHeadings();
    EXPECT_EQ(Calc.HeadingText[1], "Works, north");
    EXPECT_EQ(Calc.HeadingText[2], "\"Unit 3\"") << "lines are read whole";
    EXPECT_EQ(Calc.HeadingText[3], "");
    EXPECT_EQ(Calc.HeadingTextSaved[7], "G");
    EXPECT_EQ(Calc.HeadingText[8], "");
    WriteData("TRHDG.txt", "New");
    LoadHeadings();
    EXPECT_EQ(Calc.HeadingText[1], "New");
    EXPECT_EQ(Calc.HeadingText[4], "D") << "a short file ends the reading, it clears nothing";
}

TEST_F(StartUpTest, TheBrowserHidesAndBringsBackThePrompts) {
    Start();
    auto& entry = dynamic_cast<MenuItem&>(ControlOf("frmTRProg", "mnuDoNotShow"));
    ClickControl(entry);
    EXPECT_TRUE(entry.Checked());
    for (const std::string* word :
         {&Suite.HideFluidReminder, &Suite.HideRoundReminder, &Suite.HideFlowStatus}) {
        EXPECT_EQ(*word, words::Yes);
    }
    Suite.HideFlowStatus.clear();
    OpenMenu(dynamic_cast<MenuItem&>(ControlOf("frmTRProg", "mnuOptions")));
    EXPECT_FALSE(entry.Checked()) << "one of them is shown again";
    ClickControl(entry);
    ClickControl(entry);
    EXPECT_TRUE(Suite.HideFluidReminder.empty());
    EXPECT_NE(Read(DataFolder() / "TRSTP.TXT").find("\r\n\r\n\r\n\r\n"), std::string::npos);
}

}  // namespace
}  // namespace quillmetra
