// What marks a record, and which of its rows, as changed; and what must not.
#include "records/ChangeDetection.h"

#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

class ChangeDetectionTest : public RecordTest {};

// The words that are "Yes" after a detection.
std::string Marked() {
    std::string marked;
    const auto add = [&marked](const char* name, const std::string& word) {
        if (word == words::Yes) marked += std::string(name) + " ";
    };
    add("record", Calc.RecordChanged);
    add("PD", Calc.SavePDRow);
    add("FD", Calc.SaveFDRow);
    add("WH", Calc.SaveWHRow);
    add("MX", Calc.MixtureSave);
    return marked;
}

struct Change {
    const char* What;
    int Program;
    void (*Make)();
    const char* Marks;
};

const Change Changes[] = {
    {"nothing", 1, [] {}, ""},
    {"input", 1, [] { Calc.CaseInput[27][2] += 1; }, "record PD "},
    {"input", 2, [] { Calc.CaseInput[0][0] += 1; }, "record PD "},
    {"input", 3, [] { Calc.CaseInput[10][0] += 1; }, "record WH "},
    {"input", 4, [] { Calc.CaseInput[9][1] += 1; }, "record FD "},
    {"input", 5, [] { Calc.CaseInput[5][2] += 1; }, "record FD "},
    {"standard conditions", 1,
     [] {
         Calc.CaseInput[21][0] += 1;
         Calc.CaseInput[23][2] += 1;
         Calc.UnitFactor[22] += 1;
         Calc.UnitName[22] = "bara";
     },
     ""},
    {"barometer", 1, [] { Calc.BaroPressure += 0.5; }, "record "},
    {"reserved input", 1, [] { Calc.CaseInput[28][0] += 1; }, ""},
    {"unit factor", 4, [] { Calc.UnitFactor[20] *= 2; }, "record FD "},
    {"unit name", 3, [] { Calc.UnitName[27] = "bar"; }, "record WH "},
    {"blanks around a unit", 3, [] { Calc.UnitName[27] += "  "; }, ""},
    {"result", 1, [] { Calc.CaseResult[1][0] += 1; }, "record PD "},
    {"loss per 100", 1, [] { Calc.CaseResult[0][0] += 1; }, ""},
    {"blanked result", 2, [] { Calc.ResultsClearable[2] = words::No; }, "record PD "},
    {"blanked properties", 4, [] { Calc.ResultsClearable[1] = words::No; }, "record FD "},
    {"result of another program", 4, [] { Calc.CaseResult[1][0] += 1; }, ""},
    {"pipe", 1, [] { Calc.PipeData[3] += 1; }, "record PD "},
    {"fitting", 2, [] { Calc.FittingCount[7] += 1; }, "record PD "},
    {"fouling", 1, [] { Calc.PipeFouling += 1; }, "record PD "},
    {"material", 1, [] { Calc.PipeMaterial = "Brass"; }, "record PD "},
    {"pipe of the same diameter", 2, [] { Calc.PipeName = "6 in sch 40"; }, "record "},
    {"service", 1, [] { Calc.Service = "Water - pump suction"; }, "record "},
    {"direction", 2, [] { Calc.PressureDirection = 1; }, "record PD "},
    {"direction", 4, [] { Calc.PressureDirection = 1; }, ""},
    {"hammer result", 3, [] { Calc.HammerResult[18] += 1; }, "record WH "},
    {"hammer result", 1, [] { Calc.HammerResult[18] += 1; }, ""},
    {"printed texts", 3, [] { Calc.CaseUnitsText[2] = "by"; }, "record "},
    {"printed texts", 1, [] { Calc.CaseUnitsText[2] = "by"; }, ""},
    {"approved by", 3, [] { Calc.CaseText[9] = "new"; }, "record WH "},
    {"approved by", 1, [] { Calc.CaseText[9] = "new"; }, "record PD "},
    {"date", 5, [] { Calc.CaseText[10] = "12/01/2026"; }, "record FD "},
    {"data date", 5, [] { Calc.CaseText[text::DataDate] = "12/01/2026"; }, "record FD "},
    {"the usual barometer, kept as none", 1,
     [] {
         Calc.BaroPressure = 0;
         Calc.BaroPressureSaved = 14.7;
     },
     ""},
    {"fluid name", 2, [] { Calc.FluidName = "Air"; }, "record PD "},
    {"liquid basis", 1, [] { Calc.LiquidBasis = words::Volume; }, "record PD "},
    {"liquid basis of a gas", 2, [] { Calc.LiquidBasis = words::Volume; }, ""},
    {"heading", 5, [] { Calc.HeadingText[9] = "new"; }, "record "},
    {"heading not stored", 5, [] { Calc.HeadingText[11] = "new"; }, ""},
    {"calculated", 1, [] { Calc.RecordUpdated = words::Yes; }, "record "},
    {"component", 2,
     [] {
         Calc.MixtureFlag = words::Yes;
         Calc.FluidPercent[15] = 3;
     },
     "record MX "},
    {"component of no mixture", 2, [] { Calc.FluidPercent[15] = 3; }, ""},
    {"tag", 1, [] { Calc.Tag = "OTHER"; }, "record PD "},
    {"tag", 4, [] { Calc.Tag = "OTHER"; }, "record FD "},
    {"tag of a gas", 5, [] { Calc.Tag = "OTHER"; }, "record "},
    {"tag of a mixture", 3,
     [] {
         Calc.Tag = "OTHER";
         Calc.MixtureFlag = words::Yes;
     },
     "record WH MX "},
    {"blanks around the tag", 1, [] { Calc.Tag += " "; }, ""},
};

TEST_F(ChangeDetectionTest, EachChangeMarksItsRows) {
    for (int program = 1; program <= 5; ++program) SaveNew("P" + std::to_string(program), program);
    for (const Change& each : Changes) {
        SCOPED_TRACE(each.What + std::string(" in program ") + std::to_string(each.Program));
        ASSERT_TRUE(Display("P" + std::to_string(each.Program)));
        each.Make();
        DetectChanges();
        EXPECT_EQ(Marked(), "") << "nothing was entered since the load";
        Calc.ChangedFlag = words::No;
        DetectChanges();
        EXPECT_EQ(Marked(), each.Marks);
        EXPECT_EQ(Calc.RecordUpdated, "");

        // What was marked is saved whole: the record reads back as it stands, and counts as unchanged.
        ASSERT_TRUE(SaveTRCalc()) << User.LastText();
        const RowValues given = RowOfRecord(*ProgramTable(each.Program));
        EXPECT_EQ(Marked(), "");
        Calc.ChangedFlag = words::No;
        DetectChanges();
        EXPECT_EQ(Marked(), "");
        const std::string tag = Calc.Tag;
        ASSERT_TRUE(Display(tag));
        const bool isLossAlone = std::string(each.What) == "loss per 100";
        EXPECT_EQ(RowOfRecord(*ProgramTable(each.Program)) == given, !isLossAlone);
        DeleteRecord(Suite.DatabaseFile, tag);
        SaveNew("P" + std::to_string(each.Program), each.Program);
    }
}

// A refused save leaves the record as changed as it was.
TEST_F(ChangeDetectionTest, ARefusedSaveForgetsNothing) {
    SaveNew("P-1");
    Calc.ChangedFlag = words::No;
    Calc.RecordUpdated = words::Yes;
    User.Answers = {Answer::No};
    EXPECT_FALSE(SaveTRCalc());
    DetectChanges();
    EXPECT_EQ(Marked(), "record ");
}

}  // namespace
}  // namespace quillmetra
