// The database file as a whole: foreign files, create, compact, repair, delete, copy, the browser's view.
#include "records/RecordFiles.h"

#include <chrono>
#include <csignal>
#include <functional>

#include <sqlite3.h>
// Users, groups, limits: not on every system.
#if __has_include(<sys/resource.h>)
#define HAS_USERS
#include <grp.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "platform/NumberText.h"
#include "platform/SafeFiles.h"
#include "records/Backups.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

#ifdef HAS_USERS
// What another user finds, who does not own the files: the outcome of an act in a process of his. Without the
// right to become another one the user stays, and is no administrator.
bool AsAnotherUser(const std::function<bool()>& act) {
    constexpr unsigned nobody = 65534;
    const pid_t child = fork();
    if (child == 0) {
        const bool changed =
            geteuid() != 0 || (setgroups(0, nullptr) == 0 && setgid(nobody) == 0 && setuid(nobody) == 0);
        _exit(changed && act() ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}
#endif

constexpr const char* Invalid = "Open failed (Database invalid)";

class RecordFilesTest : public RecordTest {
protected:
    RecordFilesTest() { Database::BusyMilliseconds = 20; }
    ~RecordFilesTest() override { Database::BusyMilliseconds = 5000; }

    std::string Bytes() const { return ReadBytes(SuitePath(File())); }

    // Runs statements on the file behind the suite's back.
    void Engine(const std::string& sql) const {
        sqlite3* engine = nullptr;
        sqlite3_open(SuitePath(File()).c_str(), &engine);
        sqlite3_create_collation(
            engine, "KEYORDER", SQLITE_UTF8, nullptr, [](void*, int m, const void* a, int n, const void* b) {
                return std::string_view(static_cast<const char*>(a), static_cast<std::size_t>(m))
                    .compare({static_cast<const char*>(b), static_cast<std::size_t>(n)});
            });
        char* error = nullptr;
        ASSERT_EQ(sqlite3_exec(engine, sql.c_str(), nullptr, nullptr, &error), SQLITE_OK) << error;
        sqlite3_close(engine);
    }

    static std::string FailureOf(const std::function<void()>& act) {
        try {
            act();
        } catch (const RuntimeError& error) {
            return error.Description;
        }
        return "";
    }
    static std::string OpenFailure() {
        return FailureOf([] { OpenRecords(Suite.DatabaseFile); });
    }

    std::vector<std::string> FilesBeside() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(DataFolder())) {
            const std::string name = entry.path().filename().string();
            if (name.starts_with("TRDB-") && name.ends_with(".BAK")) continue;  // kept of a day
            if (name.starts_with("TRDB") || name.starts_with("Temp")) names.push_back(name);
        }
        std::sort(names.begin(), names.end());
        return names;
    }
};

// What only a file has, and no server.
class FileAloneTest : public RecordFilesTest {};

TEST_F(FileAloneTest, ForeignFilesAreRefusedAndLeftAsTheyAre) {
    const std::string own = Bytes();
    fs::remove(File());
    EXPECT_EQ(OpenFailure(), Invalid) << "no file";
    EXPECT_FALSE(fs::exists(File())) << "opening makes none";

    std::string otherEngine("\0\1\0\0Another Engine\0", 19);
    otherEngine.resize(4096);
    std::string otherKind = own;
    otherKind[68] = 'X';
    for (const std::string& bytes : {std::string(), std::string("tag,flow\r\n"), otherEngine, otherKind,
                                     own.substr(0, 60), std::string(8192, '\xff')}) {
        WriteData("TRDB.MDB", bytes);
        EXPECT_EQ(OpenFailure(), Invalid);
        TakeFilledRecord(1, 1, "P-1");
        EXPECT_FALSE(SaveTRCalc());
        EXPECT_EQ(User.LastText(), Invalid);
        EXPECT_EQ(Bytes(), bytes);
        EXPECT_EQ(FilesBeside(), std::vector<std::string>{"TRDB.MDB"});
    }
    std::string newer = own;
    newer[63] = 2;
    WriteData("TRDB.MDB", newer);
    EXPECT_EQ(OpenFailure(), failure::DatabaseNewer().Description);
    EXPECT_EQ(Bytes(), newer);

    WriteData("TRDB.MDB", own);
    Engine("DROP TABLE \"Units\"");
    EXPECT_EQ(OpenFailure(), Invalid) << "a table is missing";
    fs::remove(File());
    fs::create_directory(File());
    EXPECT_EQ(OpenFailure(), Invalid) << "a folder";
}

TEST_F(FileAloneTest, ReadOnlyLockedAndCutFiles) {
    for (const char* tag : {"P-1", "P-3"}) SaveNew(tag);
    fs::permissions(File(), fs::perms::owner_read);
    EXPECT_TRUE(Display("P-1"));
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_EQ(User.LastText(), "The database is write-protected\n" + SuitePath(File()));
    fs::permissions(File(), fs::perms::owner_read | fs::perms::owner_write);

    sqlite3* other = nullptr;
    sqlite3_open(SuitePath(File()).c_str(), &other);
    sqlite3_exec(other, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    TakeFilledRecord(1, 1, "P-2");
    EXPECT_FALSE(SaveTRCalc());
    const std::string locked = "The database is locked by another program\n" + SuitePath(File());
    EXPECT_EQ(User.LastText(), locked);
    EXPECT_EQ(FailureOf([] { CreateDB(true); }), locked) << "nobody's database goes while he writes";
    const std::vector<Backup> backups = BackupsOf(Suite.DatabaseFile);
    ASSERT_EQ(backups.size(), 1U);
    EXPECT_EQ(FailureOf([&] { RestoreBackup(Suite.DatabaseFile, backups[0].File); }), locked);
    EXPECT_EQ(BackupsOf(Suite.DatabaseFile).size(), 1U) << "nothing was put aside";
    Database::BusyMilliseconds = 200;
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(FailureOf([] { OpenRecords(Suite.DatabaseFile); }), locked);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(390)) << "waited for once";
    EXPECT_EQ(FailureOf([] { RepairDB(Suite.DatabasePath); }), locked);
    Database::BusyMilliseconds = 20;
    EXPECT_EQ(Calc.ChangedFlag, words::Yes) << "still to be saved";
    sqlite3_close(other);
    EXPECT_TRUE(SaveTRCalc());

    const std::string whole = Bytes();
    for (std::size_t length = 100; length < whole.size(); length += 4099) {
        WriteData("TRDB.MDB", whole.substr(0, length));
        const std::string failure = FailureOf([&] {
            RecordView view(Suite.DatabaseFile);
            Display("P-1");
        });
        EXPECT_TRUE(failure.empty() || failure == Invalid) << failure;
    }
}

#ifdef HAS_USERS
// Rights of the file are those of the people who work with it, whoever compacts, repairs or creates it anew.
TEST_F(FileAloneTest, RightsAreKeptAndAsked) {
    fs::permissions(File(), fs::perms(0660));
    for (const char* tag : {"P-1", "P-2"}) SaveNew(tag);
    const std::string backup = BackupsOf(Suite.DatabaseFile).front().File;
    EXPECT_EQ(fs::status(MachinePath(backup)).permissions(), fs::perms(0660));
    const bool isRoot = geteuid() == 0;
    const auto damage = [&] { WriteData("TRDB.MDB", Bytes().replace(20, 8, "damaged!")); };
    const std::function<void()> acts[] = {[&] { RestoreBackup(Suite.DatabaseFile, backup); },
                                          [] { CompactDB(Suite.DatabasePath); },
                                          [&] {
                                              damage();
                                              RepairDB(Suite.DatabasePath);
                                          },
                                          [] { CreateDB(true); }};
    for (const auto& act : acts) {
        fs::permissions(File(), fs::perms(0664));
        ASSERT_TRUE(!isRoot || chown(File().c_str(), 7, 12) == 0);
        act();
        struct stat rights {};
        ASSERT_EQ(stat(File().c_str(), &rights), 0);
        EXPECT_EQ(rights.st_mode & 0777, 0664);
        EXPECT_TRUE(!isRoot || (rights.st_uid == 7 && rights.st_gid == 12));
    }
    // A file that belongs to somebody else, in a folder where everybody may put files.
    fs::permissions(Folder, fs::perms(0777));
    fs::permissions(DataFolder(), fs::perms(0777));
    fs::permissions(File(), fs::perms(isRoot ? 0644 : 0444));
    const std::string denied = "Path/File access error\n" + SuitePath(File()) + "\nPermission denied";
    EXPECT_TRUE(AsAnotherUser(
        [&] { return IsWriteProtected(File()) && RecordView(Suite.DatabaseFile).Count() == 0; }));
    EXPECT_TRUE(AsAnotherUser([&] { return FailureOf([] { CompactDB(Suite.DatabasePath); }) == denied; }));
    EXPECT_TRUE(AsAnotherUser([&] {
        User.Answers = {Answer::No};
        return !CreateDB(true);
    })) << "asks once more";
    EXPECT_TRUE(AsAnotherUser([&] {
        TakeFilledRecord(1, 1, "P-2");
        return !SaveTRCalc() && User.LastText().starts_with("The database is write-protected");
    }));
    fs::permissions(File(), fs::perms(isRoot ? 0600 : 0));
    EXPECT_TRUE(AsAnotherUser([&] { return OpenFailure() == denied; }));
    fs::permissions(File(), fs::perms(0600));
    damage();
    fs::permissions(File(), fs::perms(isRoot ? 0644 : 0444));
    EXPECT_TRUE(AsAnotherUser([&] { return FailureOf([] { RepairDB(Suite.DatabasePath); }) == denied; }));
}

#endif

// A database without the table of settings, as one made elsewhere, opens and gets it with the first save.
TEST_F(FileAloneTest, SettingsTableComesWithTheFirstSave) {
    Engine("DROP TABLE \"Calculation Settings\"");
    SaveNew("P-1");
    ASSERT_TRUE(Display("P-1"));
    EXPECT_EQ(Calc.PressureDirection, 2);
    EXPECT_EQ(Calc.DataMode, words::DensityData);
    EXPECT_EQ(Calc.CaseInput[21][0], 68);
}

TEST_F(RecordFilesTest, NamesOfTheDatabase) {
    for (const char* name : {"TRDB.MDB", "C:\\data\\trdb.mdb", "/x/TrDb.Mdb"})
        EXPECT_TRUE(IsDatabaseName(name));
    for (const char* name : {"", "OLDTRDB.MDB", "TRDB.BAK", "TRDB.MDB.txt"})
        EXPECT_FALSE(IsDatabaseName(name));
    EXPECT_EQ(FolderOf("/a/b\\TRDB.MDB"), "/a/b");
}

TEST_F(FileAloneTest, CreateAsksAndReplaces) {
    SaveNew("P-1");
    Calc.MessageTitle = "Database TRDB.MDB";
    User.Boxes.clear();
    User.Answers = {Answer::No};
    EXPECT_FALSE(CreateDB(false));
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(User.Boxes[0].Text,
              "New database will Replace Existing DataBase\n0n " + Suite.DatabasePath + "\n\nOK?");
    EXPECT_EQ(User.Boxes[0].Title, "Create New Database File");
    EXPECT_EQ(User.Boxes[0].Default, Answer::No);
    EXPECT_TRUE(HasRow(HeadTable(), "P-1"));
    // What a crash left beside the former database must not be taken for the new one's.
    WriteData("TRDB.MDB-journal", "left behind");
    EXPECT_TRUE(CreateDB(true));
    EXPECT_EQ(User.LastText(), "New database TRDB.MDB created\non " + Suite.DatabasePath);
    EXPECT_FALSE(RecordView(Suite.DatabaseFile).HasRecord());
    EXPECT_EQ(FilesBeside(), std::vector<std::string>{"TRDB.MDB"});
}

TEST_F(FileAloneTest, CompactKeepsRecordsAndOneBackup) {
    for (int i = 0; i < 40; ++i) SaveNew("P-" + std::to_string(i), i % 5 + 1);
    for (int i = 10; i < 40; ++i) DeleteRecord(Suite.DatabaseFile, "P-" + std::to_string(i));
    const std::vector<FieldValue> kept = AllValues("P-7");
    const std::uintmax_t before = fs::file_size(File());
    WriteData("Temp.mdb", "left behind");
    WriteData("TRDB.BAK", "former backup");
    CompactDB(Suite.DatabasePath);
    EXPECT_LT(fs::file_size(File()), before);
    EXPECT_EQ(fs::file_size(DataFolder() / "TRDB.BAK"), before);
    EXPECT_EQ(FilesBeside(), (std::vector<std::string>{"TRDB.BAK", "TRDB.MDB"}));
    EXPECT_EQ(AllValues("P-7"), kept);
    EXPECT_EQ(RecordView(Suite.DatabaseFile).Count(), 10);
    // A backup of the day that cannot be made is told once and keeps nobody from saving.
    SetToday("2026-11-25");
    fs::create_directories(DataFolder() / "TRDB-2026-11-25.BAK.new" / "in the way");
    SaveNew("P-99");
    EXPECT_EQ(BackupTrouble().find(". There is no backup of today: The database, or a file"), 0U);
    SaveNew("P-100");
    EXPECT_EQ(BackupTrouble(), "");
}

#ifdef HAS_USERS
// No file may grow for the life of this, as on a disk that is full.
class FullDisk {
public:
    explicit FullDisk(std::uintmax_t size) : former_(std::signal(SIGXFSZ, SIG_DFL)) {
        OutliveFileSizeLimit();
        getrlimit(RLIMIT_FSIZE, &limit_);
        const rlimit full{size, limit_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &limit_);
        std::signal(SIGXFSZ, former_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit limit_{};
    void (*former_)(int);
};

TEST_F(FileAloneTest, AFullDiskLosesNothing) {
    for (int i = 0; i < 30; ++i) SaveNew("P-" + std::to_string(i), i % 5 + 1);
    int refused = 0;
    {
        const FullDisk full(fs::file_size(File()));
        for (int i = 30; i < 45; ++i) {
            TakeFilledRecord(i % 5 + 1, 1, "P-" + std::to_string(i));
            if (!SaveTRCalc()) ++refused;
        }
        EXPECT_TRUE(User.LastText().starts_with("The disk reports an error\n" + SuitePath(File())));
        EXPECT_GT(refused, 0);
        EXPECT_EQ(Calc.ChangedFlag, words::Yes) << "still to be saved";
    }
    const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
    EXPECT_EQ(database->Fault(), "");
    EXPECT_EQ(Recordset(*database, HeadTable().Shape).RecordCount(), 45 - refused);
    EXPECT_TRUE(SaveTRCalc()) << "once there is room";
}

#endif

TEST_F(RecordFilesTest, DeleteTakesAllRowsOfATag) {
    EXPECT_FALSE(DeleteRecord(Suite.DatabaseFile, "P-1"));
    EXPECT_EQ(User.LastText(), "Database is empty");
    SaveNew("P-1", 3);
    SaveNew("P-2", 5);  // the words of the record in hand tell of another program
    EXPECT_TRUE(DeleteRecord(Suite.DatabaseFile, "p-1"));
    EXPECT_EQ(RowsWith("P-1") + PipeOnFile("P-1"), "");
    EXPECT_NE(RowsWith("P-2"), "");
    EXPECT_TRUE(DeleteRecord(Suite.DatabaseFile, "NONE")) << "passed over silently";
    // Deleted under an open form, the record is written whole by its next save.
    EXPECT_TRUE(DeleteRecord(Suite.DatabaseFile, "P-2"));
    EXPECT_TRUE(SaveTRCalc());
    EXPECT_TRUE(HasRow(FluidDataTable(), "P-2"));
    // An extra whose head somebody else has deleted goes with the next save.
    SaveNew("P-3");
    {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset heads(*database, HeadTable().Shape);
        heads.Index("Tag_Number");
        ASSERT_TRUE(heads.Seek("P-3"));
        heads.Delete();
    }
    EXPECT_EQ(PipeOnFile("P-3") == "", OnServer());  // which does it at once
    SaveNew("P-4");
    EXPECT_EQ(PipeOnFile("P-3"), "");
    EXPECT_NE(PipeOnFile("P-4"), "");
}

TEST_F(RecordFilesTest, SaveToAnotherDatabase) {
    SaveNew("P-1");
    const std::vector<FieldValue> saved = AllValues("P-1");
    fs::create_directory(Folder / "one");
    Suite.DatabasePath = SuitePath(Folder / "one");
    Suite.DatabaseFile = DatabaseFileOf(Suite.DatabasePath);
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_EQ(User.LastText(), Invalid) << "a save makes no database";
    CreateDB(true);
    EXPECT_TRUE(SaveTRCalc());
    EXPECT_EQ(AllValues("P-1"), saved);
    CopyRecord(Suite.DatabaseFile, "P-1", "P-2");
    for (const char* tag : {"P-1", "P-2"}) EXPECT_TRUE(PipeOnFile(tag).ends_with("|" + Calc.PipeName));
    // A folder whose name differs in capitals alone is another one where the machine says so.
    fs::create_directory(Folder / "ONE");
    Suite.DatabasePath = SuitePath(Folder / "ONE");
    EXPECT_EQ(IsSameFile(Suite.DatabaseFile, DatabaseFileOf(Suite.DatabasePath)), fs::exists(Folder / "oNE"));
    EXPECT_TRUE(IsSameFile(Suite.DatabaseFile, SuitePath(Folder / "one/../one/trdb.mdb")));
}

// Another program compacts while this one has the file open: what is open is then no file any more, or the
// system keeps it and the other one is told.
TEST_F(FileAloneTest, AFileThatIsReplacedMeanwhile) {
    for (const char* tag : {"P-1", "P-2", "P-3"}) SaveNew(tag);
    RecordView view(Suite.DatabaseFile);
    view.Next();
    const std::unique_ptr<Database> open = OpenRecords(Suite.DatabaseFile);
    if (!OpenFilesCanBeReplaced) {
        const std::string held = "Path/File access error\n" + SuitePath(File()) + "\nPermission denied";
        EXPECT_EQ(FailureOf([] { CompactDB(Suite.DatabasePath); }), held);
        EXPECT_EQ(FailureOf([] { CreateDB(true); }), held);
        EXPECT_EQ(view.Count(), 3);
        EXPECT_EQ(FilesBeside(), (std::vector<std::string>{"TRDB.BAK", "TRDB.MDB"}));
        return;
    }
    CompactDB(Suite.DatabasePath);
    EXPECT_THROW(Transaction all(*open), RuntimeError) << "a row would go into the file that is gone";
    DeleteRecord(Suite.DatabaseFile, "P-3");
    EXPECT_EQ(view.Count(), 2);
    EXPECT_EQ(view.Head().Tag, "P-2");
    CompactDB(Suite.DatabasePath);
    view.Previous();
    EXPECT_EQ(view.Head().Tag, "P-1");
    // Asked whether to overwrite, the user takes his time.
    User.WhileAsked = [&] { CompactDB(Suite.DatabasePath); };
    TakeFilledRecord(1, 1, "P-1");
    EXPECT_FALSE(SaveTRCalc());
    EXPECT_EQ(User.LastText(), failure::DatabaseReplaced().Description);
    User.WhileAsked = {};
    EXPECT_TRUE(SaveTRCalc());
}

TEST_F(RecordFilesTest, TheBrowsersView) {
    RecordView empty(Suite.DatabaseFile);
    empty.Next();
    EXPECT_EQ(empty.Position(), 0);
    for (const char* tag : {"b-2", "A-1", "\u00c4-1", "B-1", "\u00e4-2"}) SaveNew(tag);
    RecordView view(Suite.DatabaseFile);
    EXPECT_EQ(view.Tags(), (std::vector<std::string>{"A-1", "B-1", "b-2", "\u00c4-1", "\u00e4-2"}));
    view.Previous();
    EXPECT_EQ(view.Head().Tag, "A-1");
    view.Next();
    view.Next();
    EXPECT_EQ(view.Head().Tag, "b-2");
    EXPECT_EQ(view.Position(), 3);
    EXPECT_EQ(view.Head().Calculation, "Pressure drop");
    EXPECT_EQ(view.Head().CalcDate, "11/24/2026");
    view.Last();
    view.Next();
    EXPECT_EQ(view.Head().Tag, "\u00e4-2");
    EXPECT_TRUE(view.Find(" \u00e4-1"));
    EXPECT_EQ(view.Position(), 4);
    EXPECT_FALSE(view.Find("C"));
    EXPECT_EQ(view.Head().Tag, "\u00c4-1") << "stays where it was";
    EXPECT_EQ(view.StartingWith("b"), (std::pair<std::size_t, std::size_t>{1, 3}));
    EXPECT_EQ(view.StartingWith("\u00c4"), (std::pair<std::size_t, std::size_t>{3, 5}));

    SaveNew("C");
    EXPECT_EQ(view.Count(), 6) << "others' saves are noticed";
    for (const auto& [tag, next] : {std::pair{"B-1", "b-2"}, std::pair{"\u00e4-2", "\u00c4-1"}}) {
        view.Find(tag);
        DeleteRecord(Suite.DatabaseFile, tag);
        view.LeaveDeleted();
        EXPECT_EQ(view.Head().Tag, next);
    }
}

TEST_F(RecordFilesTest, OutdatedRecords) {
    struct Dates {
        const char *Tag, *Data, *Calculated;
    };
    for (const Dates& each : {Dates{"1", "01/02/2026", "01/01/2026"}, Dates{"2", "", "01/01/2026"},
                              Dates{"3", "01/02/2026", ""}, Dates{"4", "2/1/26", "12/31/25"},
                              Dates{"5", "1/1/2026", "01/01/2026"}, Dates{"6", "someday", "01/01/2026"},
                              Dates{"7", "1/1/29", "12/31/30"}, Dates{"8", "12/31/30", "1/1/29"}}) {
        TakeFilledRecord(1, 1, each.Tag);
        Calc.CaseText[11] = each.Data;
        Calc.CaseText[10] = each.Calculated;
        ASSERT_TRUE(SaveTRCalc());
    }
    RecordView view(Suite.DatabaseFile);
    std::string found;
    for (bool start = true; view.NextOutdated(start); start = false) found += view.Head().Tag;
    EXPECT_EQ(found, "147") << "29 stands for 2029, 30 for 1930";
    EXPECT_EQ(view.Head().Tag, "7");
}

}  // namespace
}  // namespace quillmetra
