// Lists of calculations: what an export has written comes back, whole, to the digit; what a user's
// spreadsheet has otherwise is told.
#include "forms/Import.h"

#include <fstream>
#include <sstream>

#include "core/Programs.h"
#include "forms/RegisterForms.h"
#include "platform/WorkbookWriter.h"
#include "records/RecordExport.h"
#include "records/RecordFiles.h"
#include "records/RecordView.h"
#include "script/ScriptPlayer.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class ImportTest : public ::testing::Test {
protected:
    ImportTest() : player_(out_, errors_) { RegisterForms(); }
    void TearDown() override {
        ForgetForms();
        SetToday("");
    }

    void Play(const std::string& lines) {
        std::istringstream script(lines);
        ASSERT_EQ(player_.Play("s", script), 0) << errors_.str() << out_.str();
    }
    // Into the database in hand.
    std::string Take(const std::string& file, bool replaces = false) {
        Import import(file);
        EXPECT_TRUE(import.Run([](int, int) { return true; }));
        std::string told = import.Summary();
        for (const ImportLine& line : import.Lines()) {
            if (line.State == ImportState::Told) told_ = line.Tag + ": " + line.Text;
            if (line.State != ImportState::Changed && line.State != ImportState::Refused) continue;
            told += "\n" + std::to_string(line.Row) + " " + line.Tag + " " + Word(line.State) + " " +
                    line.Column + ": " + line.Text;
        }
        import.Save(replaces);
        return told;
    }
    std::string Path(const char* name) const { return player_.Folder() + "\\" + name; }
    std::string Export(const char* name) const {
        ExportRecords(Suite.DatabaseFile, Path(name));
        return ReadBytes(Path(name));
    }

private:
    std::ostringstream out_, errors_;

protected:
    ScriptPlayer player_;
    std::string told_;  // last
};

// A calculation of a program, and the same in four unit sets.
std::string InFourSets(int program, const std::string& name, const std::string& inputs,
                       const std::string& calculate) {
    const std::string options = "click cmdFormLayout\nclick optRoundFigures\nclick ";
    std::string lines = "new " + std::to_string(program) + "\n" + options +
                        "optMassEnglishUnits\nclick cmdOKOptions\n" + inputs + "click cmdFormLayout\n";
    for (const char* set : {"optMassEnglishUnits", "optVolEnglishUnits", "optMassSIUnits", "optVolSIUnits"}) {
        lines.append("click ").append(set).append("\nclick cmdOKOptions\n").append(calculate);
        lines.append("type txtTagNum ").append(name).append("-").append(set);
        lines.append("\nclick mnuSave\nclick cmdFormLayout\n");
    }
    return lines + "click cmdCancelOptions\nclick mnuProgram\n";
}

std::string Mixture(const char* entry, const char* one, const char* other) {
    return std::string("click ") + entry + "\npick lstFluid \"" + one +
           " \"\nclick cmdSelect\ntype txtPercent(0) 80\npick lstFluid \"" + other +
           " \"\nclick cmdSelect\nkey txtPercent(1) R\nclick cmdCalcPseudo\n";
}

// The acts of a script of tests/scripts.
std::string Included(const char* script) {
    std::ifstream file(SourceFolder() / "tests/scripts" / script);
    std::string lines;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("type")) lines += line + "\n";
    }
    return lines;
}

// Which cells of two exports differ.
std::string Differences(const std::string& a, const std::string& b) {
    std::istringstream first(a), second(b);
    std::string told, head, one, other;
    std::getline(first, head);
    std::getline(second, other);
    if (head != other) return "the heads";
    const auto cells = [](const std::string& line) {
        std::vector<std::string> parts(1);
        bool quoted = false;
        for (const char c : line) {
            quoted = quoted != (c == '"');
            c == ',' && !quoted ? parts.emplace_back() : parts.back() += c;
        }
        return parts;
    };
    while (std::getline(first, one) && std::getline(second, other)) {
        const auto heads = cells(head), was = cells(one), is = cells(other);
        for (std::size_t i = 0; i < std::min(was.size(), is.size()); ++i) {
            if (was[i] != is[i]) told += was[0] + ", " + heads[i] + ": " + was[i] + " | " + is[i] + "\n";
        }
    }
    return told;
}

TEST_F(ImportTest, AnExportComesBackToTheDigit) {
    const std::string liquid = Included("good-case.qs") + "type txtSGFlow(0) 1\n";
    const std::string all = "click cmdCalculateAll\n", hammer = "click cmdCalculateliq\n";
    const std::string pipe =
        "click cmdPipeID\ntype txtNomSize 4\nclick cmdSearch\npick lstPipeSize 2\nclick cmdOK\n";
    const std::string line =
        "type txtInletGate 2\ntype txtInlet90Deg 3\nclick chkExit\ntype txtOutletPipeElev -20\ntype "
        "txtPipeCond 12.5\n";
    const std::string state =
        "type txtTemp(0) 80\ntype txtPressure(0) 250\ntype txtTemp(2) 0\ntype txtPressure(2) 40\n";
    Play(
        "strict off\nset-date 2026-11-20\nstart\n" +
        InFourSets(1, "L",
                   liquid + line +
                       "pick cmdService Water\ntype txtBy =Ann\ntype txtComments(0) \"a, \\\"b\\\" \xC3\xA9 "
                       "\xCE\xA9\"\n",
                   all) +
        InFourSets(1, "LT",
                   liquid + pipe +
                       "click optSource\nclick mnuPureLiquid2\npick lstFluid \"Toluene \"\nclick cmdSelect\n",
                   all) +
        InFourSets(1, "LM", liquid + Mixture("mnuMixture2", "Toluene", "Benzene"), all) +
        InFourSets(2, "G", Included("good-gas-case.qs") + line, all) +
        InFourSets(2, "GM", Included("good-gas-case.qs") + Mixture("mnuMixtures2", "Methane", "Ethane"),
                   all) +
        InFourSets(2, "GS", Included("good-gas-case.qs") + "click mnuSatSteam2\n", all) +
        InFourSets(3, "H", Included("hammer-case.qs"), hammer) +
        InFourSets(3, "HS", Included("hammer-case.qs") + hammer + "type txtSelectedTime 9\n", hammer) +
        InFourSets(4, "D", state + "click mnuLiquid1\npick lstFluid \"Toluene \"\nclick cmdSelect\n", all) +
        InFourSets(4, "DM", state + Mixture("mnuMixture1", "Toluene", "Benzene"), all) +
        InFourSets(5, "E", state + "click mnuPureGases1\npick lstFluid \"Methane \"\nclick cmdSelect\n",
                   all) +
        InFourSets(5, "EM", state + Mixture("mnuMixtures1", "Methane", "Ethane"), all) +
        InFourSets(5, "ES", "type txtTemp(0) 600\ntype txtPressure(0) 250\nclick mnuSupersteam1\n", all));
    SetToday("2026-11-26");
    const std::string first = Export("first.csv");
    EXPECT_EQ(RecordView(Suite.DatabaseFile).Count(), 52);
    EXPECT_EQ(Take(Path("first.csv")), "0 new, 0 changed, 52 equal, 0 refused");

    Suite.DatabaseFile = Path("Other\\TRDB.MDB");
    std::filesystem::create_directory(MachinePath(Path("Other")));
    MakeEmptyDatabase(Suite.DatabaseFile);
    EXPECT_EQ(Take(Path("first.csv")), "52 new, 0 changed, 0 equal, 0 refused");
    const std::string second = Export("second.csv");
    if (ReadsWorkbooks() && WritesWorkbooks()) {
        Export("second.xlsx");
        EXPECT_EQ(Take(Path("second.xlsx")), "0 new, 0 changed, 52 equal, 0 refused");
        MakeEmptyDatabase(Suite.DatabaseFile);
        EXPECT_EQ(Take(Path("second.xlsx")), "52 new, 0 changed, 0 equal, 0 refused");
        EXPECT_EQ(Differences(first, Export("third.csv")), "");
    }
    EXPECT_EQ(Differences(first, second), "");
    EXPECT_TRUE(first == second);
}

// A list beside one record: heads in any order, a row of units, and what is wrong told with its row.
class UsersLists : public ImportTest {
protected:
    UsersLists() {
        Play("strict off\nset-date 2026-11-26\nstart\nnew 1\n" + Included("good-case.qs") +
             "click cmdCalculateAll\ntype txtTagNum P-1\nclick mnuSave\nclick mnuProgram\n");
    }
    std::string List(const std::string& text, bool replaces = false) {
        std::ofstream(MachinePath(Path("list.csv")), std::ios::binary) << text;
        return Take(Path("list.csv"), replaces);
    }
    std::string Saved(const std::string& tag, const char* column) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        const std::optional<RecordRows> rows = RowStore(*database).Read(tag);
        return rows ? ValueText(rows->Value(*FindColumn(column, rows->Program()))) : "none";
    }
};

TEST_F(UsersLists, ARowBecomesACalculationOfItsForm) {
    const std::string head =
        "Pipe,Tag,Program Number,Pipe Length,Normal Flow,Normal Temperature,Normal Flow Source "
        "Pressure,Fluid Name\n";
    EXPECT_EQ(List(head + "6 in sch 40,N-1,1,1000,100000,60,100,toluene\n"
                          "2\" K Copper,N-2,1,100,1000,60,100,Toluene\n"
                          "6 in sch 40,N-3,2,800,5000,60,100,Methane\n"
                          "6 in sch 40,N-4,2,800,5000,,100,Steam\n"),
              "4 new, 0 changed, 0 equal, 0 refused");
    EXPECT_EQ(Saved("N-1", "Pipe Size"), "6.065");
    EXPECT_EQ(Saved("N-1", "Fluid Name"), "Toluene");
    EXPECT_EQ(Saved("N-1", "Pressure Drop Normal Viscosity"), "0.621");
    EXPECT_EQ(Saved("N-1", "Calc Date"), "2026-11-26");
    EXPECT_NE(Saved("N-3", "Normal Final Pressure"), "");
    EXPECT_EQ(Saved("N-4", "Pressure Drop Normal Temperature"), "337.791");
    EXPECT_EQ(Saved("N-2", "Pipe Size"), "1.959");
    // Saturated steam with its temperature in another unit than on file, and a row that says too little.
    EXPECT_EQ(List("Tag,Normal Temperature,Program Number\n,degC,\nN-4,169.8842,2\nN-5,,1\n"),
              "1 new, 0 changed, 1 equal, 0 refused");
    EXPECT_EQ(told_, "N-5: no case has all its data: nothing is calculated");
    const std::string state = ",100000,60,100,Toluene,80,";
    EXPECT_EQ(
        List("Tag,Program Number,Pipe Size,Pipe Length,Pipe Material Number,Pipe Material,Normal Flow,Normal "
             "Temperature,Normal Flow Source Pressure,Fluid Data0,Fluid Percent0,Fluid Data1,Fluid Percent1\n"
             "M-1,1,4.026,1000,2," +
             state + "benzene,20\nM-2,1,4.026,1000,,CAST iron" + state +
             "Benzene,10\nM-3,1,4.026,1000,2,Wood" + state + "Benzene,20\nM-4,1,4.026,1000,8," + state +
             "Benzene,20\nM-5,1,4.026,1000,,CAST iron" + state + "Milk,20\n"),
        "1 new, 0 changed, 0 equal, 4 refused\n3 M-2 refused Fluid Percent0: Sum of percentages must equal "
        "100\n"
        "4 M-3 refused Pipe Material: Wood has the number 7\n5 M-4 refused Pipe Material Number: materials "
        "have "
        "the numbers 1 to 7\n6 M-5 refused Fluid Data1: Milk is not in Liquid.txt");
    EXPECT_EQ(Saved("M-1", "Pipe Material") + Saved("M-1", "Normal MW/SG") + Saved("M-1", "Fluid Name"),
              "Tubing0.8747Mixture");
}

// Values are taken in the units of the list, or refused: never in others.
TEST_F(UsersLists, UnitsAreNotPassedOver) {
    List(
        "Tag,Normal Temperature,Normal Flow Source Pressure,Normal MW/SG\n-,degC,bara,kg/m3\nP-1,0,1.2,998\n",
        true);
    EXPECT_EQ(Saved("P-1", "Normal Temperature") + " " + Saved("P-1", "Normal Flow Source Pressure") +
                  Saved("P-1", "Pressure Units") + " " + Saved("P-1", "Normal MW/SG"),
              "32 2.7048psig 0.99899215");
    List("Tag,Program Number,Normal Flow\nP-1,103,12\n", true);
    EXPECT_EQ(Saved("P-1", "Flow Units") + Saved("P-1", "Normal Flow"), "kg/s12");
    List("Tag,Program Number,Normal Flow,Pipe Size\n,,kg/h,in\nP-1,101,45000,4.026\n", true);
    EXPECT_EQ(Saved("P-1", "Flow Units") + Saved("P-1", "Normal Flow") + Saved("P-1", "Pipe Size"),
              "lb/h99208.0164.026");
    const std::string line = ",102,4.026,1000,300,60,100,0.9,1,200,60,100,";
    List(
        "Tag,Program Number,Pipe Size,Pipe Length,Case 1 Flow,Case 1 Temperature,Case 1 Source Pressure,Case "
        "1 MW/SG,"
        "Pressure Drop Case 1 Viscosity,Normal Flow,Normal Temperature,Normal Flow Source Pressure,Normal "
        "MW/SG,Normal "
        "Viscosity\nV-1" +
        line + "0.8,1\nV-2" + line + "0.9,1\n");
    const std::string one = "0 new, 0 changed, 0 equal, 1 refused\n";
    const std::pair<std::string, std::string> lists[] = {
        {"Tag,Normal Flow\n,[kg/s]\nP-1,5\n",
         one + "3 P-1 refused Flow Units: [kg/s] is no unit of the library"},
        {"Tag,Normal MW/SG\n,kg/l\nP-1,0.9\n",
         one + "3 P-1 refused Density Units: kg/l is no unit of the library"},
        {"Tag,Pressure Factor,Normal Flow Source Pressure\n,,kPag\nP-1,1,50\n",
         one + "3 P-1 refused Pressure Factor: 1 is no factor of kPag"},
        {"Tag,Flow Units,Flow Factor\nP-1,lb/h,7\n",
         one + "2 P-1 refused Flow Units: 7 is no factor of lb/h"},
        {"Tag,Pressure Units,Pressure Factor\nP-1,kPag,1\n",
         one + "2 P-1 refused Pressure Units: 1 is no factor of kPag"},
        {"Tag,Basis\nP-1,Vol\n", one + "2 P-1 refused Basis: lb/h is a flow by mass"},
        {"Tag,Fluid Type\nP-1,Gas\n", one + "2 P-1 refused Fluid Type: Gas in a program of Liquid"},
        {"Tag,Program Number\nP-1,199\n",
         one + "2 P-1 refused Program Number: \"199\" is of none of the unit sets 1 to 5"},
        {"Tag,Program Number\nP-2,105\n",
         one + "2 P-2 refused Program Number: there is no unit set of the user"},
        {"Tag;Data Date;Normal Flow\nP-1;03/04/2026;1,5\n",
         one + "2 P-1 refused Data Date: \"03/04/2026\" may have its day or its month first: write it as "
               "2026-11-26"},
        {"Tag;Normal Flow\nP-1;1.000\n", one + "2 P-1 refused Normal Flow: \"1.000\" is no number: its sign "
                                               "may be of decimals or of thousands"},
        {"Tag,Calc By\n\"P\n1\",Ann\n",
         one + "2  refused Tag: a line break or another character that does not show"},
        {"Tag,Normal Flow\n,lb/h\nV-1,100000\nV-2,100000\n",
         "0 new, 1 changed, 0 equal, 1 refused\n3 V-1 refused Normal Flow: mass becomes volume here by a "
         "gravity that is "
         "another one: give it in the unit on file\n4 V-2 changed Normal Flow: 222.10318, was 200; and 4 "
         "more"}};
    for (const auto& [text, told] : lists) EXPECT_EQ(List(text), told);
    EXPECT_EQ(List("Tag,Program Number\nP-1,102\n"), one + "2 P-1 refused : Need flow SG to convert");
    EXPECT_EQ(Suite.ConvertedFigures, Figures::Ask);
    EXPECT_THROW(List("Tag,Barometric Pressure\n,kPa\nP-1,101.3\n"), RuntimeError);
}

// Nothing half done: neither of a list that was stopped nor over what somebody else has saved meanwhile.
TEST_F(UsersLists, AllOrNothing) {
    Calc.LiquidUnitSet = 0;  // as in a run that opened no form
    EXPECT_EQ(List("Tag,Program Number,Normal Flow\nP-1,1,100000\n"), "0 new, 0 changed, 1 equal, 0 refused");
    std::ofstream(MachinePath(Path("list.csv"))) << "Tag,Normal Flow\nP-1,110000\nP-2,1\n";
    Import stopped(Path("list.csv"));
    EXPECT_FALSE(stopped.Run([](int done, int all) { return all == 3 && done < 1; }));
    Import late(Path("list.csv"));
    EXPECT_TRUE(late.Run([](int, int) { return true; }));
    EXPECT_EQ(List("Tag,Calc By\nP-1,Ann\n", true).substr(0, 16), "0 new, 1 changed");
    EXPECT_THROW(late.Save(true), RuntimeError);
    EXPECT_EQ(Saved("P-1", "Normal Flow") + Saved("P-1", "Calc By"), "100000Ann");
    std::istringstream over("import @TRData @list.csv @List.csv");
    EXPECT_EQ(player_.Play("s", over), 1);
    EXPECT_EQ(ReadBytes(Path("list.csv")), "Tag,Calc By\nP-1,Ann\n");
}

TEST_F(UsersLists, WhatIsWrongIsToldWithRowAndColumn) {
    const std::string head =
        "Tag,Program Number,Pipe,Pipe Size,Pipe Length,Gate Valves,Pipe Material,Normal Flow,Normal "
        "Temperature,"
        "Normal Flow Source Pressure,Fluid Name,Normal MW/SG,Normal Viscosity,Data Date,Calc By\n";
    struct Case {
        std::string Row, Told;
    };
    const std::string line = "1,,4.026,1000,,,", state = "100000,60,100,";
    const Case cases[] = {
        {"P-1," + line + state + ",1,1,,", ""},
        {"," + line + state + ",1,1,,", "Tag: the row has no tag"},
        {"A,,,4.026,1000,,," + state + ",1,1,,",
         "Program Number: a new record needs the number of its program, 1 to 5"},
        {"B,7,,4.026,1000,,," + state + ",1,1,,", "Program Number: \"7\" is none of the programs 1 to 5"},
        {"C,1,,four,1000,,," + state + ",1,1,,", "Pipe Size: \"four\" is no number"},
        {"D,1,,-4,1000,,," + state + ",1,1,,", "Pipe Size: Pipe inside diameter must be > zero"},
        {"E," + line + state + ",1,0,,", "Normal Viscosity: Viscosity must be greater than zero"},
        {"F," + line + "100000,-500,100,,1,1,,",
         "Normal Temperature: Flow Temperature must be greater than -459.67"},
        {"G," + line + state + ",1,1,31.31.2026,", "Data Date: \"31.31.2026\" is no date"},
        {"H," + line + state + ",1,1,,A name that is too long",
         "Calc By: The field 'Calc By' holds at most 15 characters"},
        {"p-1," + line + state + ",1,1,,", "Tag: row 2 has this tag already"},
        {"I," + line + "\"1,000\",60,100,,1,1,,",
         "Normal Flow: \"1,000\" is no number: its sign may be of decimals or of thousands"},
        {"J," + line + "100000,60,-20,,1,1,,",
         "Normal Flow Source Pressure: Pressure must be greater than minus 14.7"},
        {"K," + line + "-5,60,100,,1,1,,", "Normal Flow: Flow must be greater than zero"},
        {"L,1,,4.026,1000,1.5,," + state + ",1,1,,", "Gate Valves: \"1.5\" is no whole number"},
        {"M,1,,4.026,1000,,Cheese," + state + ",1,1,,",
         "Pipe Material: Cheese is none of the pipe materials"},
        {"N,1,6 in sch 40,4.026,1000,,," + state + ",1,1,,",
         "Pipe: 6 in sch 40 has an inside diameter of 6.065, not of 4.026"},
        {"O,1,6 in sch 41,,1000,,," + state + ",1,1,,",
         "Pipe: 6 in sch 41 is in no table of pipe, which have names as 6 in sch 40"},
        {"Q," + line + state + "Milk,,,,",
         "Fluid Name: Milk is not in Liquid.txt; another fluid needs its properties in the list"},
        {"R," + line + "100000,60,1e999,,1,1,,", "Normal Flow Source Pressure: \"1e999\" is no number"},
        {"S," + line + "3e38,60,1e30,,1,1,,",
         ": The field 'Normal Reynolds Number' holds no number above 3.402823E+38"}};
    std::string list = head, told;
    int row = 1, refused = 0;
    for (const Case& each : cases) {
        list += each.Row + "\n";
        ++row;
        if (each.Told.empty()) continue;
        ++refused;
        told += "\n" + std::to_string(row) + " " + each.Row.substr(0, each.Row.find(',')) + " refused " +
                each.Told;
    }
    EXPECT_EQ(List(list), "0 new, 0 changed, 1 equal, " + std::to_string(refused) + " refused" + told);
}

TEST_F(UsersLists, OfARecordThatIsThereTheListSaysWhatChanges) {
    EXPECT_EQ(
        List("Tag,Normal Flow\nP-1,110000\n"),
        "0 new, 1 changed, 0 equal, 0 refused\n2 P-1 changed Normal Flow: 110000, was 100000; and 4 more");
    EXPECT_EQ(Saved("P-1", "Normal Flow"), "100000");  // without consent
    EXPECT_EQ(
        List("Normal Flow;Tag\n110000,5;P-1\n", true),
        "0 new, 1 changed, 0 equal, 0 refused\n2 P-1 changed Normal Flow: 110000.5, was 100000; and 4 more");
    EXPECT_EQ(Saved("P-1", "Normal Flow"), "110000.5");
    EXPECT_EQ(Saved("P-1", "Normal Viscosity"), "1");
    EXPECT_EQ(Saved("P-1", "Calc Date"), "2026-11-26");
    EXPECT_EQ(List("Tag,Normal Flow,Calc By\nUnits,kg/s,\nP-1,12.6,=Ann\n", true),
              "0 new, 1 changed, 0 equal, 0 refused\n3 P-1 changed Calc By: =Ann, was nothing; and 5 more");
    EXPECT_EQ(Saved("P-1", "Flow Units") + Saved("P-1", "Normal Flow"), "lb/h100001.68");
    EXPECT_EQ(List("Tag,Program Number,Pipe Size,Pipe Length,Normal Flow,Normal Temperature,Normal Flow "
                   "Source Pressure,Fluid Name\n"
                   ",,mm,m,m3/h,degC,bara,\nN-1,1,102.3,300,40,20,8,Water\n"),
              "1 new, 0 changed, 0 equal, 0 refused");
    EXPECT_EQ(Saved("N-1", "Flow Units") + Saved("N-1", "Pressure Units") + Saved("N-1", "Basis") +
                  Saved("N-1", "Normal Final Pressure"),
              "m3/hbaraVol7.483");
    EXPECT_EQ(List("Tag,Length & Elevation Units\nP-1,m\n", true),
              "0 new, 1 changed, 0 equal, 0 refused\n2 P-1 changed Length & Elevation Units: m, was ft; and "
              "4 more");
    EXPECT_EQ(Saved("P-1", "Pipe Length"), "304.78513");
    List("Tag,Pipe,Fluid Name\nP-1,4 in sch 80,Toluene\n", true);
    EXPECT_EQ(Saved("P-1", "Pipe") + Saved("P-1", "Pipe Size") + Saved("P-1", "Normal Viscosity"),
              "4 in sch 803.8260.621");
    List("Tag,Pipe Size,Normal Temperature\nP-1,3.9,80\n", true);  // the fluid follows its temperature
    EXPECT_EQ(Saved("P-1", "Pipe") + Saved("P-1", "Normal Viscosity"), "0.5417");
    List("Tag,Normal Temperature,Normal Viscosity\nP-1,60,0.5417\n", true);
    EXPECT_EQ(Saved("P-1", "Normal Viscosity") + told_.substr(0, 30), "0.621P-1: the list has the properti");
    List("Tag,Normal Temperature\nP-1,80\n", true);
    List("Tag,Pipe,Normal Temperature\nP-1,4 in sch 80,80\n", true);
    List("Tag,Pipe Size,Normal Temperature\n,mm,degC\nP-1,3.826,80\n", true);  // the same numbers
    EXPECT_EQ(Saved("P-1", "Pipe") + Saved("P-1", "Pipe Size").substr(0, 5) + " " +
                  Saved("P-1", "Normal Temperature") + " " + Saved("P-1", "Normal Viscosity"),
              "0.150 176 0.3169");
    List("Tag,Pipe,Normal Temperature\nP-1,4 in sch 80,80\n", true);
    // Which pipe it needs, and that there is none.
    const std::string sizes = "start\nsizes @TRData P-1 2 \"Liquid - centrifugal suction\"";
    Play(sizes);
    EXPECT_FALSE(player_.Differs);
    Play(sizes + " .049 \"Instrument and sanitary tube\"");
    EXPECT_TRUE(player_.Differs);
}

}  // namespace
}  // namespace quillmetra
