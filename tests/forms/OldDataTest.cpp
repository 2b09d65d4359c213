// Records of version 5, written here byte by byte, and what the browser's menu makes of them.
#include <bit>
#include <cmath>
#include <fstream>

#include "core/Programs.h"
#include "core/Words.h"
#include "forms/RegisterForms.h"
#include "platform/SafeFiles.h"
#include "platform/UserActs.h"
#include "records/LoadRecord.h"
#include "records/RecordFiles.h"
#include "records/RecordView.h"
#include "tests/OnServer.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class FindingHost : public FakeHost {
public:
    std::deque<std::string> Files;
    std::optional<std::string> FileDialog(const FileQuestion&) override {
        if (Files.empty()) return std::nullopt;
        const std::string file = Files.front();
        Files.pop_front();
        return file;
    }
};

class OldRecord {
public:
    explicit OldRecord(int program) {
        Word(0, program);
        Word(2, 5);
        Word(4, 3);
        Text(6, "Vol");
        Text(9, "Mas");
        for (std::size_t row = 0; row < 28; ++row) {
            Single(12 + 4 * row, 1 + 0.25F * static_cast<float>(row));
            for (std::size_t i = 0; i < 3; ++i) {
                Single(124 + 112 * i + 4 * row, 0.1F + static_cast<float>(100 * i + row));
            }
            Name(row, "unit " + std::to_string(row));
        }
        Name(3, "psia");
        Name(2, std::string("degC\0xyz", 8));
        for (const auto& [row, name] : {std::pair{21, "degC"}, {22, "bara"}, {23, "bara"}}) {
            Name(static_cast<std::size_t>(row), name);
        }
        for (std::size_t i = 0; i < 6; ++i) Single(684 + 4 * i, 10.1F + static_cast<float>(i));
        Single(696, 2);
        Single(700, 7);
    }

    std::string Bytes = std::string(921, '\0');

    void Word(std::size_t at, int value) { Little(at, static_cast<std::uint32_t>(value), 2); }
    void Single(std::size_t at, float value) { Little(at, std::bit_cast<std::uint32_t>(value), 4); }
    void Name(std::size_t row, std::string name) {
        name.resize(8, ' ');
        Text(460 + 8 * row, name);
    }
    void Text(std::size_t at, const std::string& text) { Bytes.replace(at, text.size(), text); }
    OldRecord& Counts(std::size_t width) {
        for (std::size_t i = 0; i < 14; ++i) {
            const int count = static_cast<int>(i) + 1;
            width == 2 ? Word(708 + 2 * i, count) : Single(708 + 4 * i, static_cast<float>(count));
        }
        Text(708 + 14 * width, "remarks");
        return *this;
    }

private:
    void Little(std::size_t at, std::uint32_t value, int size) {
        for (int i = 0; i < size; ++i) Bytes[at++] = static_cast<char>(value >> 8 * i & 0xFF);
    }
};

class OldData : public SuiteTest {
protected:
    OldData() {
        RegisterForms();
        StartUp(SuitePath(Folder));
        OnServer() ? MakeServerDatabase(Database(), NewServerLink()) : MakeEmptyDatabase(Database());
        std::string headings = "\"old\", title";
        for (int line = 2; line <= 9; ++line) headings += "\r\nold " + std::to_string(line);
        WriteData("HEADINGS.DAT", headings);
        WriteData("TRHDG.txt", "now 1\r\nnow 2\r\n");
    }

    std::string Database() const { return DatabaseFileOf(SuitePath(DataFolder())); }
    std::string FileOf(const char* name) const { return SuitePath(DataFolder() / name); }

    void Convert(const std::string& records, const std::string& tags) {
        WriteData("OBXDAT.DAT", records);
        WriteData("OBXDAT.TAG", tags);
        Host.Files = {FileOf("OBXDAT.DAT"), FileOf("HEADINGS.DAT")};
        Choose();
    }
    static void Choose() { ClickControl(ControlOf("frmTRProg", "mnuConvertRandom")); }

    bool WasTold(const std::string& part) const {
        return std::any_of(Host.Boxes.begin(), Host.Boxes.end(),
                           [&](const MessageBox& box) { return box.Text.find(part) != std::string::npos; });
    }
    std::string Saved() const {
        RecordView view(Database());
        std::string tags;
        for (const std::string& tag : view.Tags()) tags += tag + " ";
        return tags;
    }
    void Get(const std::string& tag) {
        RecordView view(Database());
        ASSERT_TRUE(view.Find(tag));
        ResetRecord();
        Suite.DatabaseFile = Database();
        Calc.Tag = tag;
        TakeFluidType(view.Head().FluidType, view.Head().ProgramNumber);
        ASSERT_TRUE(GetTRCalc());
    }

    FindingHost Host;
};

TEST_F(OldData, EveryFieldThatTheDatabaseHoldsComesOver) {
    for (const std::size_t width : {2U, 4U}) {
        std::string records;
        for (int program = 1; program <= 5; ++program) records += OldRecord(program).Counts(width).Bytes;
        MakeEmptyDatabase(Database());
        Convert(records,
                " P-1 \r\nP-2\r\nP-3\r\nP-4\r\nP-\x80"
                "5\r\n\x1A");
        EXPECT_EQ(Host.LastText(), "Conversion Complete!");
        EXPECT_EQ(Suite.RecordTotal, 5);
        EXPECT_EQ(Calc.Tag, "");
        for (int program = 1; program <= 5; ++program) {
            SCOPED_TRACE(std::to_string(width) + " bytes, program " + std::to_string(program));
            Get(program == 5 ? "P-\u20AC5" : "P-" + std::to_string(program));
            EXPECT_EQ(Calc.CurrentProgram, program);
            EXPECT_EQ(Calc.ProgramTitle, FindProgram(program)->Title);
            EXPECT_EQ(Calc.FluidType, FindProgram(program)->FluidType);
            EXPECT_EQ(Calc.FluidType == words::Gas ? Calc.Basis : Calc.LiquidBasis,
                      Calc.FluidType == words::Gas ? "Vol" : "Mas");
            EXPECT_EQ(Calc.PressureMode, words::Absolute);
            EXPECT_EQ(Calc.UnitName[2], "degC");
            EXPECT_EQ(Calc.UnitName[7], "unit 7");
            EXPECT_EQ(Calc.UnitFactor[7], 2.75);
            EXPECT_EQ(Calc.CaseInput[2][0], 2.1);
            EXPECT_EQ(Calc.CaseInput[3][0], 3.1);
            EXPECT_EQ(Calc.HeadingText[6], "old 6");
            EXPECT_EQ(Calc.HeadingText[7], "old 7");
            EXPECT_FLOAT_EQ(static_cast<float>(Calc.StdTemperature), 21.1F * 1.8F + 32);
            EXPECT_FLOAT_EQ(static_cast<float>(Calc.StdPressure), 22.1F * 6.5F);
            if (program == 3) {
                EXPECT_EQ(Calc.CaseInput[18][2], 218.1);
            }
            if (program > 3) {
                EXPECT_EQ(Calc.CaseInput[11][2], 211.1);
            }
            if (program > 2) continue;
            EXPECT_EQ(Calc.CaseInput[7][2], 207.1);
            EXPECT_EQ(Calc.CaseInput[25][0], 25.1);
            EXPECT_EQ(Calc.PipeData, (PipeValues{0, 10.1, 11.1, 12.1, 2, 1, 0}));
            for (std::size_t i = 1; i <= 7; ++i) EXPECT_EQ(Calc.FittingCount[i], static_cast<double>(i));
            EXPECT_EQ(Calc.PipeMaterial, "Cast iron");
            EXPECT_EQ(Calc.PipeFouling, 5);
        }
    }
    LineReader headings(FileOf("TRHDG.txt"));
    std::vector<std::string> lines;
    for (std::string line; headings.Next(line);) lines.push_back(line);
    ASSERT_EQ(lines.size(), 12U);
    EXPECT_EQ(lines[0], "\"old\", title");
    EXPECT_EQ(lines[7], "old 8");
    EXPECT_EQ(lines[8], "");
}

TEST_F(OldData, ABadRecordDoesNotStopTheRun) {
    const std::string good = OldRecord(1).Counts(4).Bytes;
    OldRecord nonsense(4);
    nonsense.Bytes.replace(6, 900, 900, '\xFF');
    const auto of = [](int program) { return OldRecord(program).Counts(4).Bytes; };
    const struct {
        std::string Records, Tags, Saved, Told;
        std::deque<Answer> Answers;
    } cases[] = {
        {good + good.substr(0, 920), "A\nB\n", "A ", "ends in the middle of a record", {}},
        {good + good + good, "A\n\n", "A ", "Each record must have a unique Tag number", {}},
        {good + good, "\nB", "B ", "Not saved:\nrecord 1, without a tag", {}},
        {good + good, std::string(31, 'x') + "\nB", "B ", "'Tag' holds at most 30", {}},
        {good + good, "A\na\n", "A ", "record 2, a", {Answer::Yes}},
        {good + good,
         "A\na\n",
         "A ",
         "Tag Number a is on file\nOverwrite the existing record?",
         {Answer::Yes}},
        {of(0) + good + of(6) + of(-1), "Z\nA\nX\nY", "A ", "3 records are of programs", {}},
        {of(0) + good, "Z\nA", "A ", "1 record is of a program", {}},
        {nonsense.Bytes + good, "N\nA\n", "A N ", "Conversion Complete!", {}},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Told);
        MakeEmptyDatabase(Database());
        Host.Boxes.clear();
        Host.Answers = each.Answers;
        Convert(each.Records, each.Tags);
        EXPECT_EQ(Saved(), each.Saved);
        EXPECT_TRUE(WasTold(each.Told)) << Host.LastText();
        EXPECT_EQ(Host.LastText(), "Conversion Complete!");
    }
    Get("N");
    for (const auto& row : Calc.CaseInput) {
        for (const double value : row) EXPECT_TRUE(std::isfinite(value));
    }
    for (const double factor : Calc.UnitFactor) EXPECT_GT(factor, 0);
    for (const std::string& bytes : {std::string(), good.substr(0, 920)}) {
        Convert(bytes, "A");
        EXPECT_TRUE(Host.LastText().starts_with("There is no whole record in\n"));
    }
}

// A database that cannot be written is found out before anything is written, and once.
TEST_F(OldData, ADatabaseThatCannotBeWrittenIsLeftAlone) {
    std::string records;
    for (int i = 0; i < 5; ++i) records += OldRecord(1).Bytes;
    std::filesystem::permissions(DataFolder() / "TRDB.MDB", std::filesystem::perms::owner_read);
    Convert(records, "A\nB\nC\nD\nE");
    EXPECT_EQ(Host.Boxes.size(), 4U);
    EXPECT_TRUE(Host.LastText().starts_with("The database is write-protected\n"));
    EXPECT_EQ(ReadBytes(FileOf("TRHDG.txt")), "now 1\r\nnow 2\r\n");
    if (!OpenFilesCanBeReplaced) return;  // then nobody can take it away either
    // It is protected in the middle of the run, when the first record that is on file already asks.
    std::filesystem::permissions(DataFolder() / "TRDB.MDB", std::filesystem::perms::owner_all);
    Convert(records.substr(0, 921), "A");
    Host.Boxes.clear();
    Host.Answers = {Answer::Yes, Answer::Yes};
    Host.WhileAsked = [&] {
        if (Host.LastText().find("is on file") == std::string::npos) return;
        std::filesystem::rename(DataFolder() / "TRDB.MDB", DataFolder() / "away");
    };
    Convert(records, "A\nB\nC\nD\nE");
    Host.WhileAsked = {};
    EXPECT_EQ(Host.LastText(), "The conversion was stopped");
    EXPECT_TRUE(WasTold("Not saved:\nrecord 1, A"));
    EXPECT_FALSE(WasTold("record 2, B"));
}

// One count above zero decides for the whole file; what fits neither width reads as singles.
TEST_F(OldData, WidthOfTheCountsIsThatOfTheFile) {
    const std::string none = OldRecord(1).Bytes;
    OldRecord odd(1);
    odd.Single(708, 2);
    odd.Single(712, 1e9F);
    const struct {
        std::string Records;
        double First, Second;  // of the last record
    } cases[] = {
        {none, 0, 0},
        {OldRecord(1).Counts(4).Bytes + none, 0, 0},
        {none + OldRecord(1).Counts(2).Bytes, 1, 2},
        {none + OldRecord(1).Counts(4).Bytes, 1, 2},
        {none + odd.Bytes, 2, 0},
    };
    for (const auto& each : cases) {
        MakeEmptyDatabase(Database());
        Convert(each.Records, each.Records.size() > 921 ? "A\nB" : "B");
        Get("B");
        EXPECT_EQ(Calc.FittingCount[1], each.First);
        EXPECT_EQ(Calc.FittingCount[2], each.Second);
    }
}

TEST_F(OldData, PressureModeFollowsTheUnit) {
    for (const auto& [unit, mode] :
         {std::pair{"psig", words::Gauge}, {"kPaa", words::Absolute}, {"", words::Gauge}}) {
        OldRecord record(2);
        record.Name(3, unit);
        MakeEmptyDatabase(Database());
        Convert(record.Bytes, "A");
        Get("A");
        EXPECT_EQ(Calc.PressureMode, mode);
    }
}

TEST_F(OldData, CancelAndWrongFilesChangeNothing) {
    WriteData("OBXDAT.DAT", OldRecord(1).Bytes);
    const std::string data = FileOf("OBXDAT.DAT");
    const struct {
        std::deque<std::string> Files;
        Answer First;
        const char* Last;
    } cases[] = {
        {{data, FileOf("HEADINGS.DAT")}, Answer::No, "Before conversion"},
        {{}, Answer::Yes, "Step 1 - Find"},
        {{FileOf("OBXDAT.TAG")}, Answer::Yes, "Must find file named OBXDAT.DAT"},
        {{FileOf("MYOBXDAT.DAT")}, Answer::Yes, "Must find file named OBXDAT.DAT"},
        {{data}, Answer::Yes, "Step 2, Find"},
        {{data, FileOf("TRHDG.txt")}, Answer::Yes, "Must find file named headings.dat"},
        {{data, FileOf("HEADINGS.DAT")}, Answer::Yes, "OBXDAT.TAG"},  // the tags are missing
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.Last);
        Host.Files = each.Files;
        Host.Answers = {each.First};
        Choose();
        EXPECT_NE(Host.LastText().find(each.Last), std::string::npos) << Host.LastText();
        EXPECT_EQ(Saved(), "");
        EXPECT_EQ(ReadBytes(FileOf("TRHDG.txt")), "now 1\r\nnow 2\r\n");
    }
}

TEST_F(OldData, RunEndsWhenTheUserHasEnough) {
    std::string records;
    for (int i = 0; i < 50; ++i) records += OldRecord(1).Bytes;
    Host.Answers = {Answer::Yes, Answer::No};
    Convert(records, "");
    EXPECT_TRUE(WasTold("20 records could not be saved so far"));
    EXPECT_EQ(Host.LastText(), "The conversion was stopped");
    EXPECT_TRUE(WasTold("record 20, without a tag"));
    Host.Boxes.clear();
    Host.Answers = {Answer::Yes, Answer::Yes, Answer::Yes};
    Convert(records, "");
    EXPECT_TRUE(WasTold("record 50, without a tag"));
    Host.EscapePressed = true;
    Convert(records, "A\nB\n");
    EXPECT_EQ(Saved(), "");
}

// An open view shows the records that came, and without a database one is made on agreement.
TEST_F(OldData, BrowserShowsWhatCame) {
    ClickControl(ControlOf("frmTRProg", "cmdDBOpen"));
    Convert(OldRecord(2).Bytes, "A");
    EXPECT_EQ(ControlOf("frmTRProg", "txtTagNum").Text(), "A");
    ClickControl(ControlOf("frmTRProg", "cmdDBClose"));
    std::filesystem::remove(DataFolder() / "TRDB.MDB");
    Host.Answers = {Answer::Yes, Answer::No};
    Convert(OldRecord(2).Bytes, "A");
    EXPECT_FALSE(FileExists(Database()));
    EXPECT_EQ(ReadBytes(FileOf("TRHDG.txt")).substr(0, 5), "\"old\"");  // of the first conversion
    Convert(OldRecord(2).Bytes, "B");
    EXPECT_EQ(Saved(), "B ");
}

}  // namespace
}  // namespace quillmetra
