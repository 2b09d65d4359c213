// What only a server has: several people at once, rights, and a connection that is slow or lost.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#if __has_include(<sys/wait.h>)
#include <dlfcn.h>
#include <netdb.h>
#include <unistd.h>

#include "forms/CalculationForm.h"
#include "forms/frmCompare.h"
#include "forms/frmPrintControl.h"
#include "forms/frmTRProg.h"
#include "forms/RecordInHand.h"
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "records/RecordCopy.h"
#include "records/RecordExport.h"
#include "tests/records/ServerFixture.h"

// Stands before the system's own: nobody answers the question for this name.
// NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
extern "C" int getaddrinfo(const char* node, const char* service, const addrinfo* hints, addrinfo** found) {
    static const auto real = reinterpret_cast<decltype(&getaddrinfo)>(dlsym(RTLD_NEXT, "getaddrinfo"));
    if (node != nullptr && std::string_view(node) == "silent.example")
        std::this_thread::sleep_for(std::chrono::seconds(20));
    return real(node, service, hints, found);
}

namespace quillmetra {
namespace {

using namespace std::chrono_literals;

TEST_F(ServerTest, AnothersChangeIsNamedBeforeItIsWrittenOver) {
    SaveNew("P-1");
    RecordView browser(Suite.DatabaseFile);
    EXPECT_FALSE(browser.HasNews());
    ASSERT_TRUE(Display("P-1"));
    ChangeHead("P-1", "Calc By", "somebody");
    const auto until = std::chrono::steady_clock::now() + 1s;
    bool told = false;
    while (!told && std::chrono::steady_clock::now() < until) told = browser.HasNews();
    EXPECT_TRUE(told) << "within a second";
    EXPECT_FALSE(browser.HasNews()) << "told once";

    Calc.CaseText[9] = "me";
    Calc.ChangedFlag = words::No;
    User.Boxes.clear();
    User.Answers = {Answer::Yes};
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_TRUE(ComparisonWanted());
    EXPECT_TRUE(
        User.LastText().starts_with("P-1 was changed by " + std::string(std::getenv("PGUSER")) + " at 20"));
    EXPECT_EQ(RecordView(Suite.DatabaseFile).Head().CalcBy, "somebody");
    // The form opens the comparison by itself, and nobody has changed anything from there on.
    RegisterForms();
    RecordView mine(Suite.DatabaseFile);
    ASSERT_TRUE(mine.Find("P-1") && TakeRecord(mine.Head()));
    auto& form = dynamic_cast<CalculationForm&>(LoadForm(FillCalculationForm()));
    ShowForm(form.Name());
    Suite.DefaultPaths[path::Database] = Suite.DatabasePath;
    User.Boxes.clear();
    ChangeHead("P-1", "Calc By", "another");
    User.Answers = {Answer::Yes};
    ClickControl(form.mnuSave);
    ASSERT_TRUE(IsFormLoaded("frmCompare")) << User.LastText();
    const auto& shown = dynamic_cast<frmCompare&>(LoadForm("frmCompare"));
    EXPECT_TRUE(shown.lblRecords.Caption().starts_with("P-1 here and P-1 as it is stored"))
        << shown.lblRecords.Caption();
    UnloadForm("frmCompare");
    DiscardForm(form.Name());
    ChangeHead("P-1", "Calc By", "somebody");
    // Declined, the usual question follows; then nobody has changed anything.
    User.Boxes.clear();
    User.Answers = {Answer::No, Answer::Yes};
    EXPECT_TRUE(SaveTRCalc());
    EXPECT_EQ(User.Boxes.size(), 2U);
    User.Boxes.clear();
    User.Answers = {Answer::Yes};
    EXPECT_TRUE(SaveTRCalc());
    EXPECT_EQ(User.LastText(), "Tag Number is on file\nOverwrite the existing record?");
    // Changed once more while the question stands.
    User.Boxes.clear();
    User.Answers = {Answer::Yes, Answer::No, Answer::Yes};
    int times = 0;
    User.WhileAsked = [&] {
        if (times++ == 0) ChangeHead("P-1", "Calc By", "again");
    };
    EXPECT_TRUE(SaveTRCalc());
    EXPECT_EQ(User.Boxes.size(), 3U);
    User.WhileAsked = {};
}

// What others save into an empty database, and what they change while rows are picked.
TEST_F(ServerTest, TheTableFollowsOthersAndKeepsWhatIsPicked) {
    RegisterForms();
    ShowForm("frmTRProg");
    auto& browser = dynamic_cast<frmTRProg&>(LoadForm("frmTRProg"));
    browser.OpenByName(Suite.DatabaseFile);
    browser.Follow();
    const auto follow = [&](int rows) {
        const auto until = std::chrono::steady_clock::now() + 1s;
        do browser.Follow();
        while (browser.grdRecords.RowCount() != rows && std::chrono::steady_clock::now() < until);
        EXPECT_EQ(browser.grdRecords.RowCount(), rows);
    };
    SaveNew("P-2");
    SaveNew("P-4");
    follow(3);
    EXPECT_TRUE(browser.grdRecords.Enabled());
    browser.grdRecords.PickRows({1, 2}, 2);
    SaveNew("P-1");
    follow(4);
    EXPECT_EQ(browser.grdRecords.Picked(), (std::vector<int>{2, 3}));
    EXPECT_EQ(browser.Record.txtTagNum.Text(), "P-4");
}

TEST_F(ServerTest, AReaderReadsAndIsToldWhatHeMayNot) {
    SaveNew("P-1");
    BecomeRole("quillmetra_reader", "SELECT");
    EXPECT_TRUE(Display("P-1"));
    EXPECT_EQ(ExportRecords(Suite.DatabaseFile, SuitePath(Folder / "r.csv")), 1);
    RegisterForms();
    EXPECT_TRUE(dynamic_cast<frmCompare&>(LoadForm("frmCompare")).Take("P-1", "P-1")) << User.LastText();
    User.Printing = PrinterChoice{};
    ShowForm("frmTRProg");
    ShowForm("frmPrintControl");
    auto& print = dynamic_cast<frmPrintControl&>(LoadForm("frmPrintControl"));
    ClickControl(print.cmdAll);
    ClickControl(print.cmdProceed);
    EXPECT_EQ(User.Pages.size(), 1U) << User.LastText();
    ASSERT_TRUE(Display("P-1"));
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_TRUE(User.LastText().starts_with("You have no right to do this on the server\n"))
        << User.LastText();
    EXPECT_NE(User.LastText().find("permission denied for table"), std::string::npos);
    EXPECT_THROW(OpenRecords(Suite.DatabaseFile)->TryToWrite(), RuntimeError);
    EXPECT_THROW(DeleteRecord(Suite.DatabaseFile, "P-1"), RuntimeError);
    BecomeRole("quillmetra_writer", "SELECT, INSERT, UPDATE, DELETE");
    EXPECT_NO_THROW(MakeServerDatabase(Suite.DatabaseFile, ReadServerLink(File()))) << "a link alone";
    ASSERT_TRUE(Display("P-1"));
    EXPECT_TRUE(SaveTRCalc()) << User.LastText();
    EXPECT_EQ(Sql("SELECT DISTINCT changed_by FROM " + Schema() + ".\\\"Process Calculations\\\""),
              "quillmetra_writer\n");
    EXPECT_TRUE(DeleteRecord(Suite.DatabaseFile, "P-1"));
}

// The first form had no tie of the extras to their record.
TEST_F(ServerTest, AnEarlierFormIsBroughtUpByItsOwnerAlone) {
    SaveNew("P-1");
    const std::vector<FieldValue> values = AllValues("P-1");
    const std::string pipe = PipeOnFile("P-1"), extras = Schema() + ".\\\"Calculation Extras\\\"",
                      heads = Schema() + ".\\\"Process Calculations\\\"",
                      number = "SELECT number FROM " + Schema() + ".\\\"Suite\\\"",
                      leftOver = "SELECT count(*) FROM " + extras + " WHERE \\\"Tag\\\" = 'gone'";
    Sql("ALTER TABLE " + extras + " DROP CONSTRAINT \\\"Calculation Extras_key_order_fkey\\\"; INSERT INTO " +
        extras + " VALUES ('gone', 'gone', 'Pipe', 'of no record'); UPDATE " + Schema() +
        ".\\\"Suite\\\" SET number = 1");
    const std::string own = ReadBytes(Suite.DatabaseFile);
    BecomeRole("quillmetra_writer", "SELECT, INSERT, UPDATE, DELETE");
    EXPECT_NE(Refusal().find("Ask their owner, " + std::string(std::getenv("PGUSER")) + ", to open them"),
              std::string::npos)
        << Refusal();
    // Ended in the middle, with one step taken and the next waiting, it is as it was.
    WriteData("TRDB.MDB", own);
    FILE* const other = popen(("psql -Xqc \"BEGIN; LOCK TABLE " + heads +
                               " IN SHARE MODE; SELECT pg_sleep(0.5); SELECT pg_terminate_backend(pid) FROM "
                               "pg_stat_activity WHERE application_name = 'Quillmetra'; COMMIT\" >/dev/null")
                                  .c_str(),
                              "r");
    while (Sql("SELECT count(*) FROM pg_locks WHERE mode = 'ShareLock'") == "0\n")
        std::this_thread::sleep_for(10ms);
    EXPECT_NE(Refusal(), "");
    pclose(other);
    EXPECT_EQ(Sql(number) + Sql(leftOver), "1\n1\n");
    EXPECT_EQ(Refusal(), "");
    EXPECT_EQ(Sql(number) + Sql(leftOver), "2\n0\n");
    EXPECT_EQ(AllValues("P-1"), values);
    EXPECT_EQ(PipeOnFile("P-1"), pipe);
    Sql("DELETE FROM " + heads);
    EXPECT_EQ(Sql("SELECT count(*) FROM " + extras), "0\n");
}

TEST_F(ServerTest, AHostWhoseNameNobodyFindsIsToldInTime) {
    WriteServerLink(File(), {.Host = "silent.example", .Schema = "x"});
    const auto asked = std::chrono::steady_clock::now();
    EXPECT_EQ(Refusal(), "The server cannot be reached\nsilent.example, schema x\nIt does not answer");
    EXPECT_LT(std::chrono::steady_clock::now() - asked, 5s);
}

// However many connections an act uses.
TEST_F(ServerTest, ASlowServerIsToldInTime) {
    const std::string suite = Schema() + ".\\\"Suite\\\"";
    Sql("ALTER TABLE " + suite + " RENAME TO plain; CREATE VIEW " + suite + " AS SELECT plain.* FROM " +
        Schema() + ".plain, LATERAL (SELECT pg_sleep(0.6)) AS wait");
    const auto one = OpenRecords(Suite.DatabaseFile), other = OpenRecords(Suite.DatabaseFile);
    const auto asked = std::chrono::steady_clock::now();
    const auto act = [&] {
        for (int i = 0; i < 10; ++i) (i % 2 == 0 ? one : other)->Version();
    };
    EXPECT_THROW(act(), RuntimeError);
    EXPECT_LT(std::chrono::steady_clock::now() - asked, 5s);
}

TEST_F(ServerTest, AFullDiskIsToldAndLosesNothing) {
    SaveNew("P-1");
    const std::string rows = Schema() + ".\\\"Units\\\"";
    Sql("CREATE FUNCTION " + Schema() +
        ".full() RETURNS trigger LANGUAGE plpgsql AS 'BEGIN RAISE disk_full; END'; CREATE TRIGGER full_disk "
        "BEFORE INSERT ON " +
        rows + " EXECUTE FUNCTION " + Schema() + ".full()");
    TakeFilledRecord(1, 1, "P-2");
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_TRUE(User.LastText().starts_with("The disk of the server is full\n")) << User.LastText();
    EXPECT_EQ(RowsWith("P-2"), "");
    Sql("DROP TRIGGER full_disk ON " + rows);
    EXPECT_TRUE(SaveTRCalc()) << User.LastText();
}

// A connection that the server ends is made anew by the next act; in the middle of one the act is told.
TEST_F(ServerTest, ALostConnectionLosesNothing) {
    SaveNew("P-1");
    RecordView browser(Suite.DatabaseFile);
    const std::unique_ptr<Database> writing = OpenRecords(Suite.DatabaseFile);
    auto all = std::make_unique<Transaction>(*writing);
    Sql("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE application_name = 'Quillmetra'");
    EXPECT_THROW(all->Commit(), RuntimeError);
    all.reset();
    browser.Next();
    EXPECT_EQ(browser.Head().Tag, "P-1");
    SaveNew("P-2");
    EXPECT_EQ(browser.Count(), 2);
    EXPECT_EQ(Recordset(*writing, HeadTable().Shape).RecordCount(), 2);
}

// A question outside of a transaction counts as one for the server, which has the count when a connection has
// ended.
TEST_F(ServerTest, NoActAsksAQuestionForEachCell) {
    for (int program = 1; program <= 5; ++program) SaveNew("P-" + std::to_string(program), program);
    TakeMixture("P-6");
    ASSERT_TRUE(SaveTRCalc()) << User.LastText();
    const auto asked = [] {
        Sql("SELECT pg_terminate_backend(pid, 5000) FROM pg_stat_activity WHERE application_name = "
            "'Quillmetra'");
        return std::atoi(
            Sql("SELECT xact_commit FROM pg_stat_database WHERE datname = current_database()").c_str());
    };
    RecordView browser(Suite.DatabaseFile);
    int record = 0;
    const auto tag = [&record] { return "P-" + std::to_string(++record % 6 + 1); };
    const struct {
        const char* Name;
        int Most;
        std::function<void()> Do;
    } acts[] = {
        {"open", 4, [] { EXPECT_EQ(RecordView(Suite.DatabaseFile).Count(), 6); }},
        {"move", 2,
         [&] {
             ++record % 2 == 1 ? browser.Next() : browser.Previous();
             EXPECT_EQ(browser.Position(), record % 2 + 1);
         }},
        {"find", 2, [&] { EXPECT_TRUE(browser.Find(tag()) && browser.Position() > 0); }},
        {"load", 2,
         [&] {
             Calc = CalcRecord();
             Calc.Tag = tag();
             EXPECT_TRUE(GetTRCalc());
         }},
        {"rows", 2, [&] { EXPECT_TRUE(RowStore(*OpenRecords(Suite.DatabaseFile)).Read(tag())); }},
        {"export of six", 8, [&] { ExportRecords(Suite.DatabaseFile, SuitePath(Folder / "e.csv")); }}};
    constexpr int times = 100, others = 30;  // connections, and the server's own cleaning
    for (const auto& act : acts) {
        const int before = asked();
        for (int i = 0; i < times; ++i) act.Do();
        EXPECT_LE(asked() - before, act.Most * times + others) << act.Name;
    }
}

TEST_F(ServerTest, AllRecordsGoToAFileAndBack) {
    for (int program = 1; program <= 5; ++program) SaveNew("P" + std::to_string(program), program);
    TakeMixture("\u00d6l \xff, \"1\"");
    ASSERT_TRUE(SaveTRCalc()) << User.LastText();
    const auto bytesOf = [this](const std::string& database) {
        const std::string csv = SuitePath(Folder / "all.csv");
        EXPECT_EQ(ExportRecords(database, csv), 6);
        return ReadBytes(csv);
    };
    const std::string server = Suite.DatabaseFile, file = SuitePath(Folder / "file.mdb"),
                      again = SuitePath(Folder / "again.mdb");
    MakeEmptyDatabase(file);
    MakeServerDatabase(again, NewServerLink());
    std::int64_t told = 0;
    const auto until = [&told](std::int64_t most) {
        return [&told, most](std::int64_t done, std::int64_t) { return (told = done) <= most; };
    };
    EXPECT_FALSE(CopyAllRecords(server, file, until(0)));
    EXPECT_FALSE(RecordView(file).HasRecord()) << "all or none";
    EXPECT_TRUE(CopyAllRecords(server, file, until(1000)));
    EXPECT_EQ(told, 6 + 6 + 2 + 3 + 1 + 1 + 6) << "rows of all tables";
    NamedValues(*OpenRecords(file), ExtrasTable()).Set("gone", "Pipe", "of no record");
    EXPECT_TRUE(CopyAllRecords(file, again, until(1000)));
    EXPECT_EQ(bytesOf(file), bytesOf(server));
    EXPECT_EQ(bytesOf(again), bytesOf(server));
    EXPECT_THROW(CopyAllRecords(server, again, until(1000)), RuntimeError) << "has records";
}

}  // namespace
}  // namespace quillmetra
#endif
