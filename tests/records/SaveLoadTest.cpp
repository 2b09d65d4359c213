// Records saved and read back: every field of every program, the texts that fit and those that do not, and
// what a save leaves of other rows.
#include <cmath>

#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

class SaveLoadTest : public RecordTest {};

struct ProgramCase {
    int Program;
    int UnitSet;
    const char* Rows;  // the tables that hold the record
};
constexpr ProgramCase Cases[] = {
    {1, 1, "Process Calculations;Units;Pressure Drop Calculations;Calculation Settings;"},
    {1, 4, "Process Calculations;Units;Pressure Drop Calculations;Calculation Settings;"},
    {2, 3, "Process Calculations;Units;Pressure Drop Calculations;Calculation Settings;"},
    {3, 2, "Process Calculations;Units;Waterhammer Calculations;Calculation Settings;"},
    {4, 3, "Process Calculations;Units;Fluid Data Calculations;Calculation Settings;"},
    {5, 4, "Process Calculations;Units;Fluid Data Calculations;Calculation Settings;"},
};

// Field by field: what the record gave to each table before the save it gives again after the load. The
// fields of the record are all different, so a field read into another's place shows.
TEST_F(SaveLoadTest, EveryFieldOfEveryProgramComesBack) {
    for (const ProgramCase& each : Cases) {
        SCOPED_TRACE("program " + std::to_string(each.Program) + " set " + std::to_string(each.UnitSet));
        const std::string tag = "P-" + std::to_string(each.Program * 10 + each.UnitSet);
        TakeFilledRecord(each.Program, each.UnitSet, tag);
        Calc.UnitName[0] = each.Program == 3 ? "kg" : Calc.UnitName[0];
        ASSERT_TRUE(SaveTRCalc()) << User.LastText();
        EXPECT_EQ(RowsWith(tag), each.Rows);
        const CalcRecord saved = Calc;
        std::vector<RowValues> given;
        for (const RecordTable* table : RecordTables()) given.push_back(RowOfRecord(*table));

        ASSERT_TRUE(Display(tag)) << User.LastText();
        const RecordTable* const own = ProgramTable(each.Program);
        for (std::size_t t = 0; t < given.size(); ++t) {
            const RecordTable& table = *RecordTables()[t];
            const bool inUse = &table == own || &table == &HeadTable() || &table == &UnitsTable() ||
                               &table == &SettingsTable();
            if (!inUse) continue;
            const RowValues again = RowOfRecord(table);
            for (std::size_t i = 0; i < again.size(); ++i) {
                EXPECT_EQ(given[t][i], again[i]) << table.Shape.Name << ": " << table.Fields[i].Shape.Name;
            }
        }
        EXPECT_EQ(Calc.UnitFactor[3], each.UnitSet < 3 ? 1 : 0.14504);
        EXPECT_EQ(Calc.PressureMode, words::Absolute);
        EXPECT_EQ(Calc.UnitSetName, saved.UnitSetName);
        EXPECT_EQ(Calc.NoteText[1], saved.HeadingText[8]);
        EXPECT_EQ(Calc.PipeName, each.Program <= 3 ? saved.PipeName : "") << "a fluid has no pipe";
        EXPECT_EQ(Calc.Service, saved.Service);

        // Nothing counts as changed, and a second save leaves the same bytes.
        Calc.ChangedFlag = words::Yes;
        const std::vector<FieldValue> before = AllValues(tag);
        ASSERT_TRUE(SaveTRCalc());
        EXPECT_EQ(AllValues(tag), before);
    }
}

TEST_F(SaveLoadTest, APipeCountsWhileItsFiguresDo) {
    const struct {
        int Program;
        const char* Field;
        bool Stays;
    } cases[] = {{1, "Pipe Length", true},   {1, "Pipe Size", false}, {2, "Pipe Size", false},
                 {3, "Selected Time", true}, {3, "Pipe Size", false}, {3, "Pipe Wall", false}};
    for (const auto& each : cases) {
        SaveNew("P-1", each.Program);
        const std::string pipe = Calc.PipeName;
        WriteField(*ProgramTable(each.Program), "P-1", each.Field, 7.981);
        ASSERT_TRUE(Display("P-1"));
        EXPECT_EQ(Calc.PipeName, each.Stays ? pipe : "") << each.Program << each.Field;
        ASSERT_TRUE(SaveTRCalc());
        EXPECT_EQ(PipeOnFile("P-1").empty(), !each.Stays);
    }
}

// A cell that two fields of the fluid data table share must come back from the field of its fluid type.
TEST_F(SaveLoadTest, CellsOfTheFluidDataProgramsByTheirMeaning) {
    SaveNew("G-1", 5);
    const double weight = Calc.CaseInput[5][1];
    const double compressibility = Calc.CaseInput[0][1];
    {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset rows(*database, FluidDataTable().Shape);
        rows.Index("Tag_Number");
        ASSERT_TRUE(rows.Seek("G-1"));
        EXPECT_EQ(rows.Number("Case 2 MW"), weight);
        EXPECT_EQ(rows.Number("Case 2 Comp Factor"), compressibility);
        rows.Edit();
        rows.Set("Case 2 SG @ STP", FieldValue());  // as a row from elsewhere may have it
        rows.Update();
    }
    ASSERT_TRUE(Display("G-1"));
    EXPECT_EQ(Calc.CaseInput[5][1], weight);
    EXPECT_EQ(Calc.CaseInput[0][1], compressibility);
    EXPECT_EQ(Calc.FDRowLoaded, "") << "this program looks at the pair that no save writes";
}

// Column and field by their meaning: two columns that changed places in both directions would pass every
// round trip.
using Cells = std::vector<std::pair<std::string, double>>;
Cells CellsOfTheLine() {
    const bool gas = Calc.CurrentProgram == program::GasLine;
    Cells cells = {
        {"Gate Valves", Calc.FittingCount[fitting::GateValves]},
        {"Globe Valves", Calc.FittingCount[fitting::GlobeValves]},
        {"Check Valves", Calc.FittingCount[fitting::CheckValves]},
        {"90deg Ells", Calc.FittingCount[fitting::Ells90]},
        {"45deg Ells", Calc.FittingCount[fitting::Ells45]},
        {"Thru Tees", Calc.FittingCount[fitting::ThruTees]},
        {"Branch Tees", Calc.FittingCount[fitting::BranchTees]},
        {"Entrance", Calc.PipeData[pipe::Entrance]},
        {"Exit", Calc.PipeData[pipe::Exit]},
        {"Pipe Length", Calc.PipeData[pipe::Length]},
        {"Pipe Size", Calc.PipeData[pipe::InsideDiameter]},
        {"Start Elevation", Calc.PipeData[pipe::StartElevation]},
        {"End Elevation", Calc.CaseInput[input::EndElevation][0]},
        {"Equiv Length", Calc.CaseResult[result::EquivLength][0]},
        {"Pipe Material Number", Calc.PipeMaterialNumber},
    };
    const char* const cases[] = {"Case 1", "Normal", "Case 2"};
    for (std::size_t i = 0; i < 3; ++i) {
        const std::string one = std::string(cases[i]) + " ";
        const std::string other = i == 1 ? "Normal Flow " : one;
        cells.insert(cells.end(),
                     {{one + "Flow", Calc.CaseInput[gas ? input::GasFlow : input::LiquidFlow][i]},
                      {one + "Temperature", Calc.CaseInput[input::Temperature][i]},
                      {other + "Source Pressure", Calc.CaseInput[input::Pressure][i]},
                      {other + "Equip Loss", Calc.CaseInput[input::EquipLoss][i]},
                      {one + "Viscosity", Calc.CaseInput[input::Viscosity][i]},
                      {one + "MW/SG", Calc.CaseInput[gas ? input::MolecularWeight : input::FlowGravity][i]},
                      {one + "Spec Heat", Calc.CaseInput[input::RatioSpecificHeats][i]},
                      {one + "Crit Temp", Calc.CaseInput[input::CritTemperature][i]},
                      {one + "Crit Press", Calc.CaseInput[input::CritPressure][i]},
                      {one + "Loss/100", Calc.CaseResult[result::LossPer100][i]},
                      {one + "Final Pressure", Calc.CaseResult[result::FinalPressure][i]},
                      {one + "Fluid Velocity", Calc.CaseResult[result::Velocity][i]},
                      {one + "Reynolds Number", Calc.CaseResult[result::ReynoldsNumber][i]},
                      {other + "Sonic Velocity", Calc.CaseResult[result::SonicVelocity][i]}});
    }
    return cells;
}
Cells CellsOfTheHammer() {
    return {
        {"Flow", Calc.CaseInput[input::LiquidFlow][0]},
        {"Temperature", Calc.CaseInput[input::Temperature][0]},
        {"Operating Pressure", Calc.CaseInput[input::Pressure][column::Operating]},
        {"Allowable Pressure", Calc.CaseInput[input::Pressure][column::Allowable]},
        {"SG @ FTP", Calc.CaseInput[input::FlowGravity][0]},
        {"Liquid Modulus", Calc.CaseInput[input::Modulus][column::OfLiquid]},
        {"Pipe Modulus", Calc.CaseInput[input::Modulus][column::OfPipe]},
        {"Line Length", Calc.CaseInput[input::LineLength][0]},
        {"Pipe Size", Calc.CaseInput[input::PipeSize][column::InsideDiameter]},
        {"Pipe Wall", Calc.CaseInput[input::PipeSize][column::Wall]},
        {"Selected Time", Calc.CaseInput[input::SelectedTime][0]},
        {"Critical Time", Calc.HammerResult[wave::CriticalTime]},
        {"Crit Wave Velocity", Calc.HammerResult[wave::Velocity]},
        {"Crit Pressure Wave", Calc.HammerResult[wave::Pressure]},
        {"Critical Pipe Force", Calc.HammerResult[wave::Force]},
        {"Minimum Time", Calc.HammerResult[wave::MinimumTime]},
        {"Selected Time Pressure Wave", Calc.HammerResult[wave::SelectedPressure]},
        {"Selected Time Pipe Force", Calc.HammerResult[wave::SelectedForce]},
    };
}
TEST_F(SaveLoadTest, CellsOfTheLinesAndTheHammerByTheirMeaning) {
    for (const int program : {program::LiquidLine, program::GasLine, program::WaterHammer}) {
        const std::string tag = "C-" + std::to_string(program);
        SaveNew(tag, program);
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset rows(*database, ProgramTable(program)->Shape);
        rows.Index("Tag_Number");
        ASSERT_TRUE(rows.Seek(tag));
        for (const auto& [name, value] :
             program == program::WaterHammer ? CellsOfTheHammer() : CellsOfTheLine()) {
            EXPECT_EQ(rows.Number(name), value) << tag << " " << name;
        }
    }
}

TEST_F(SaveLoadTest, NumbersKeep32BitsAndReadAsTheirShortestText) {
    TakeFilledRecord(1, 1, "N-1");
    Calc.CaseInput[3] = {0.1, 2204.6225, 123456.789};
    Calc.PipeData[1] = 1e-7;
    Calc.FittingCount[1] = 2.5;
    Calc.FittingCount[2] = 3.5;
    Calc.CaseInput[7][0] = std::nan("");
    ASSERT_TRUE(SaveTRCalc());
    ASSERT_TRUE(Display("N-1"));
    EXPECT_EQ(Calc.CaseInput[3], (Row<double, 3>{0.1, 2204.6226, 123456.79}));
    EXPECT_EQ(Calc.PipeData[1], 1e-7);
    EXPECT_EQ(Calc.FittingCount[1], 2) << "whole numbers round to even";
    EXPECT_EQ(Calc.FittingCount[2], 4);
    EXPECT_EQ(Calc.CaseInput[7][0], 0);
}

TEST_F(SaveLoadTest, FoulingKeepsTheDigitsThatFit) {
    EXPECT_EQ(NumberToFit(33.3333, 5), "33.33");
    EXPECT_EQ(NumberToFit(100, 5), "100");
    EXPECT_EQ(NumberToFit(0.123456, 5), "0.123");
    EXPECT_EQ(NumberToFit(99.9999, 5), "100");
}

struct TextCase {
    const char* Field;
    std::size_t Longest;
    void (*Set)(const std::string&);
};
const TextCase Texts[] = {
    {"Tag", 30, [](const std::string& text) { Calc.Tag = text; }},
    {"Fluid Name", 30, [](const std::string& text) { Calc.FluidName = text; }},
    {"Program Name", 60, [](const std::string& text) { Calc.ProgramTitle = text; }},
    {"Calc By", 15, [](const std::string& text) { Calc.CaseText[8] = text; }},
    {"Manufacturer", 30, [](const std::string& text) { Calc.HeadingText[6] = text; }},
    {"Note 3", 60, [](const std::string& text) { Calc.HeadingText[10] = text; }},
    {"Pipe Material", 30, [](const std::string& text) { Calc.PipeMaterial = text; }},
    {"Flow Units", 8, [](const std::string& text) { Calc.UnitName[0] = Calc.UnitName[1] = text; }},
};

// Characters count, not bytes; what is too long is refused by name before anything is written.
TEST_F(SaveLoadTest, TextsEmptyLongestAndTooLong) {
    for (int program = 1; program <= 5; ++program) {
        for (const TextCase& each : Texts) {
            if (program > 3 && std::string(each.Field) == "Pipe Material") continue;  // there is no pipe
            const char* const letter = program % 2 == 0 ? "x" : "\u00fc";
            SCOPED_TRACE(std::string(each.Field) + letter + std::to_string(program));
            std::string text;
            for (std::size_t i = 0; i < each.Longest; ++i) text += letter;

            TakeFilledRecord(program, 1, "T-1");
            each.Set(text + letter);
            User.Boxes.clear();
            EXPECT_FALSE(SaveTRCalc());
            ASSERT_EQ(User.Boxes.size(), 1U);
            EXPECT_EQ(User.LastText(), std::string("The field '") + each.Field + "' holds at most " +
                                           std::to_string(each.Longest) + " characters");
            EXPECT_EQ(User.Boxes[0].Title, Suite.DatabaseFile);
            EXPECT_EQ(RowsWith(Calc.Tag), "");

            TakeFilledRecord(program, 1, "T-1");
            each.Set(text);
            EXPECT_TRUE(SaveTRCalc()) << User.LastText();
            const RowValues head = RowOfRecord(HeadTable());
            const RowValues own = RowOfRecord(*ProgramTable(program));
            ASSERT_TRUE(Display(Calc.Tag));
            EXPECT_EQ(RowOfRecord(HeadTable()), head);
            EXPECT_EQ(RowOfRecord(*ProgramTable(program)), own);
            DeleteRecord(Suite.DatabaseFile, Calc.Tag);
        }
    }
    for (int program = 1; program <= 5; ++program) {
        TakeFilledRecord(program, 1, "T-2" + std::to_string(program));
        for (const TextCase& each : Texts) {
            if (std::string(each.Field) != "Tag") each.Set("");
        }
        ASSERT_TRUE(SaveTRCalc());
        ASSERT_TRUE(Display("T-2" + std::to_string(program)));
        EXPECT_EQ(Calc.FluidName + Calc.ProgramTitle + Calc.CaseText[8] + Calc.HeadingText[6], "");
    }
    User.Boxes.clear();
    TakeFilledRecord(1, 1, "T-3");
    Calc.CaseInput[3][0] = 1e39;
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_NE(User.LastText().find("'Case 1 Source Pressure' holds no number above"), std::string::npos);
}

TEST_F(SaveLoadTest, TagsAreTrimmedAndTakeNoNoticeOfCase) {
    SaveNew("  p-1 ");
    EXPECT_EQ(Calc.Tag, "p-1");
    TakeFilledRecord(1, 1, "P-1");
    Calc.PipeData[1] = 4711;
    const std::vector<FieldValue> before = AllValues("p-1");
    User.Boxes.clear();
    User.Answers = {Answer::No};
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_EQ(User.LastText(), "Tag Number is on file\nOverwrite the existing record?");
    EXPECT_EQ(User.Boxes[0].Title, "Calculation Save");
    EXPECT_EQ(AllValues("p-1"), before);
    EXPECT_EQ(Calc.PipeData[1], 4711) << "the record in hand stays";
    User.Answers = {Answer::Yes};
    EXPECT_TRUE(SaveTRCalc());
    EXPECT_EQ(RecordView(Suite.DatabaseFile).Tags(), std::vector<std::string>{"P-1"});

    Calc.Tag = "   ";
    User.Boxes.clear();
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_EQ(User.LastText(), "Each record must have a unique Tag number");
}

// A record without its own row could not be shown again: it is written whatever was detected.
TEST_F(SaveLoadTest, NoSaveLeavesARecordWithoutItsRow) {
    for (const int program : {1, 2, 3, 4, 5}) {
        SCOPED_TRACE(program);
        TakeFilledRecord(program, 1, "NEW");
        TakeSaved();  // as a form does that opens for a new calculation
        Calc.TagSaved.clear();
        ASSERT_TRUE(SaveTRCalc());  // typed, never calculated; overwrites that of the program before
        const double typed = Calc.CaseInput[3][0];
        EXPECT_TRUE(HasRow(*ProgramTable(program), "NEW"));
        EXPECT_EQ(RowsWith("NEW"), "Process Calculations;Units;" + ProgramTable(program)->Shape.Name +
                                       ";Calculation Settings;")
            << "rows of the overwritten record's program are gone";
        ASSERT_TRUE(Display("NEW"));
        EXPECT_EQ(Calc.CaseInput[3][0], typed);
    }
}

// Another program has the record open too and saves it in its own way, or takes a row out: a save that
// changes a comment alone must not put its units beside the other's numbers.
TEST_F(SaveLoadTest, ASaveLeavesNothingOfAnotherProgramsRecord) {
    const auto other = [](const RecordTable& table, const char* field) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset rows(*database, table.Shape);
        rows.Index("Tag_Number");
        rows.Seek("M-1");
        if (*field == '\0') return rows.Delete();
        rows.Edit();
        rows.Set(field, 4711.0);
        rows.Update();
    };
    TakeMixture("M-1");
    ASSERT_TRUE(SaveTRCalc());
    const std::vector<FieldValue> saved = AllValues("M-1");
    for (const bool reopened : {false, true}) {
        if (reopened) Display("M-1");
        for (const RecordTable* table : {&UnitsTable(), &PressureDropTable(), &MixtureTable()}) {
            for (const char* field : {table->Fields[1].Shape.Name == "Fluid Type" ? "Pipe Length" : "", ""}) {
                other(*table, field);
                EXPECT_TRUE(SaveTRCalc());
                EXPECT_EQ(AllValues("M-1"), saved) << table->Shape.Name << field << reopened;
            }
        }
    }
    // The spelling of the tag goes to every row.
    Calc.Tag = "m-1";
    ASSERT_TRUE(SaveTRCalc());
    for (const FieldValue& value : AllValues("M-1")) EXPECT_NE(value, FieldValue("M-1"));
}

// The form shows no results of a case whose inputs were changed; the database keeps none either.
TEST_F(SaveLoadTest, BlankedResultsAreNotSaved) {
    TakeFilledRecord(1, 1, "B-1");
    Calc.ResultsClearable[1] = words::No;
    ASSERT_TRUE(SaveTRCalc());
    const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
    Recordset rows(*database, PressureDropTable().Shape);
    rows.Index("Tag_Number");
    ASSERT_TRUE(rows.Seek("B-1"));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(rows.Value("Normal Final Pressure")));
    EXPECT_EQ(rows.Number("Case 2 Final Pressure"), Calc.CaseResult[1][2]);
    EXPECT_NE(rows.Number("Equiv Length"), 0);
    // Calculated again with the same outcome, the row is written anew.
    Calc.ResultsClearable[1] = words::Yes;
    MarkCalculated();
    ASSERT_TRUE(SaveTRCalc());
    ASSERT_TRUE(rows.Seek("B-1"));
    EXPECT_EQ(rows.Number("Normal Final Pressure"), Calc.CaseResult[1][1]);
}

TEST_F(SaveLoadTest, AnEmptyTemperatureIsNoZero) {
    TakeFilledRecord(1, 3, "Z-1");
    Calc.CaseInput[2] = {0, 0, 20};
    Calc.TemperatureBlank = {0, 1, 0};
    ASSERT_TRUE(SaveTRCalc());
    ASSERT_TRUE(Display("Z-1"));
    EXPECT_EQ(Calc.TemperatureBlank, (Row<int, 3>{0, 1, 0}));
}

// --- Mixtures ----------------------------------------------------------------------------------------------

TEST_F(SaveLoadTest, MixturesKeepTheirComponents) {
    TakeMixture("M-1");
    ASSERT_TRUE(SaveTRCalc()) << User.LastText();
    ASSERT_TRUE(Display("M-1"));
    EXPECT_EQ(Calc.MixtureFlag, words::Yes);
    EXPECT_EQ(Calc.MixtureCount, 15);
    EXPECT_EQ(Calc.FluidData[15], "Fluid 15,1.5,2,");
    EXPECT_EQ(Calc.FluidPercent[15], 6.25);
    EXPECT_EQ(Calc.FluidData[16], "");

    // A gap in front hides no component behind it.
    TakeMixture("M-2");
    Calc.FluidData[0].clear();
    std::fill(Calc.FluidData.begin() + 3, Calc.FluidData.end(), "");
    ASSERT_TRUE(SaveTRCalc() && Display("M-2"));
    EXPECT_EQ(Calc.MixtureCount, 3);

    // The mixture's key is shorter: no tag may be cut to it.
    TakeMixture(std::string(26, 't'));
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_EQ(User.LastText(), "The field 'Tag' holds at most 25 characters");
    TakeMixture(std::string(25, 't'));
    EXPECT_TRUE(SaveTRCalc());

    // A record that is a mixture no more loses the row, but only after the question.
    ASSERT_TRUE(Display("M-1"));
    Calc.MixtureFlag = words::No;
    User.Answers = {Answer::No};
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_TRUE(HasRow(MixtureTable(), "M-1"));
    EXPECT_TRUE(SaveTRCalc());
    EXPECT_FALSE(HasRow(MixtureTable(), "M-1"));
    EXPECT_EQ(Calc.OtherCalcs, "PDXXXXXX");
}

// --- Option codes ------------------------------------------------------------------------------------------

TEST_F(SaveLoadTest, OptionCodesOfSteamDensityAndPressure) {
    TakeFilledRecord(5, 1, "S-1");
    Calc.SteamKind = words::Superheated;
    Calc.FluidDataSource.clear();
    ASSERT_TRUE(SaveTRCalc());
    EXPECT_EQ(Calc.OtherCalcs, "XXFDXXSU");
    EXPECT_EQ(Calc.CalcOption, "SGABNXXX");
    ASSERT_TRUE(Display("S-1"));
    EXPECT_EQ(Calc.SteamKind, words::Superheated);
    EXPECT_EQ(Calc.FluidDataSource, "");

    TakeFilledRecord(1, 3, "D-1");
    Calc.LiquidDensityMode = words::Density;
    ASSERT_TRUE(SaveTRCalc());
    EXPECT_EQ(Calc.CalcOption, "DNABLXXX");
    ASSERT_TRUE(Display("D-1"));
    EXPECT_EQ(Calc.LiquidDensityMode, words::Density);
    EXPECT_EQ(Calc.UnitName[5], "kg/m3") << "the row that the conversions of a density read";
    EXPECT_EQ(Calc.UnitFactor[9], Calc.UnitFactor[6]);
}

TEST_F(SaveLoadTest, RecordsFromElsewhere) {
    SaveNew("OLD");
    const std::string fluid = Calc.FluidName;
    {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset head(*database, HeadTable().Shape);
        head.Index("Tag_Number");
        head.Seek("OLD");
        head.Edit();
        head.Set("Program Number", 1.0);  // of an early version: the program alone
        head.Set("Calc Option", "XXXXXXXX");
        head.Set("Other Calcs", FieldValue());
        head.Update();
        for (const RecordTable* table : {&PressureDropTable(), &UnitsTable(), &SettingsTable()}) {
            Recordset rows(*database, table->Shape);
            rows.Index("Tag_Number");
            rows.Seek("OLD");
            rows.Delete();
        }
    }
    User.Boxes.clear();
    ASSERT_TRUE(Display("OLD"));
    ASSERT_EQ(User.Boxes.size(), 2U);
    EXPECT_EQ(User.Boxes[0].Text, "Cannot find OLD in Units Table");
    EXPECT_EQ(User.Boxes[1].Text, "Cannot find OLD in PD Table");
    EXPECT_EQ(User.Boxes[1].Title, "Tag Number Search");
    EXPECT_EQ(Calc.CurrentProgram, 1);
    EXPECT_EQ(Calc.FluidName, fluid) << "from the head";
    EXPECT_EQ(Calc.LiquidDensityMode, words::Gravity);
    EXPECT_EQ(Calc.PressureMode, words::Gauge);
    EXPECT_EQ(Calc.OtherCalcs, words::NoCodes);
    EXPECT_EQ(Calc.UnitFactor[3], 1);
    EXPECT_EQ(Calc.StdTemperature, 60);

    User.Boxes.clear();
    EXPECT_FALSE(Display("NONE"));
    EXPECT_EQ(User.LastText(), "Cannot find NONE in Calculation Table");
}

// A row whose fields are all empty, and one of a program that there is none of.
TEST_F(SaveLoadTest, EmptyFieldsAreZeroAndNoText) {
    const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
    for (const RecordTable* table : RecordTables()) {
        Recordset rows(*database, table->Shape);
        for (const char* tag : {"E-1", "E-2"}) {
            rows.AddNew();
            rows.Set("Tag", tag);
            if (table == &HeadTable() && tag == std::string("E-1")) rows.Set("Program Number", 401.0);
            rows.Update();
        }
    }
    EXPECT_TRUE(Display("E-1"));
    EXPECT_EQ(Calc.CaseInput[4][2], 0);
    EXPECT_EQ(Calc.FluidName, "");
    for (const double factor : Calc.UnitFactor) EXPECT_GT(factor, 0);
    EXPECT_FALSE(Display("E-2"));
    EXPECT_EQ(User.LastText(), "Not found");
}

}  // namespace
}  // namespace quillmetra
