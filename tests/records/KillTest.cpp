// A child process is killed at every write that an act makes to the disk, in the middle of the write. What it
// leaves must open, be sound, and hold the former or the new state.
#include "records/Backups.h"
#include "tests/platform/Killer.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

class KillTest : public RecordTest {
protected:
    using State = std::vector<std::vector<FieldValue>>;
    static constexpr const char* Tags[] = {"P-1", "P-2", "P-3"};

    KillTest() {
        SaveNew("P-1", 1);
        SaveNew("P-2", 3);
        Calc.PipeData[1] = 1;
        kept_ = Folder / "kept";
        fs::copy(DataFolder(), kept_, fs::copy_options::recursive);
    }

    // Opens the file anew, as the next start of the suite would.
    State StateOfFile() {
        EXPECT_EQ(OpenRecords(Suite.DatabaseFile)->Fault(), "");
        State state;
        for (const char* tag : Tags) state.push_back(AllValues(tag));
        return state;
    }

    void PutBack() {
        fs::remove_all(DataFolder());
        fs::copy(kept_, DataFolder(), fs::copy_options::recursive);
    }

    KilledAct Killed(const std::string& name, const std::function<void()>& act) const {
        return {name, Suite.DatabasePath, [act](const std::string& folder) {
                    Suite.DatabasePath = folder;
                    Suite.DatabaseFile = DatabaseFileOf(folder);
                    act();
                }};
    }

    static void BackupsAreSound() {
        for (const Backup& each : BackupsOf(Suite.DatabaseFile))
            EXPECT_EQ(OpenRecords(each.File)->Fault(), "");
    }

    // Kills the act at its first, second, ... write until it comes to its end, and checks what is left.
    int KillAtEveryWrite(
        const std::string& name, const std::function<void()>& act,
        const std::function<void()>& check = [] {}) {
        const State former = StateOfFile();
        act();
        const State done = StateOfFile();
        EXPECT_NE(former, done);
        for (int writes = 0;; ++writes) {
            PutBack();
            const bool ended = EndsBefore(writes, Killed(name, act));
            const State left = StateOfFile();
            EXPECT_TRUE(left == former || left == done) << "killed at write " << writes;
            check();
            if (ended) {
                EXPECT_EQ(left, done);
                return writes;
            }
            if (::testing::Test::HasFailure()) return writes;
            // The act that was killed can be done again.
            act();
            EXPECT_EQ(StateOfFile(), done) << "again after write " << writes;
        }
    }

private:
    fs::path kept_;
};

TEST_F(KillTest, SaveOfANewRecordAndOverAnother) {
    SetToday("2026-11-30");  // of which there is no backup yet
    const auto save = [](const char* tag, int program) {
        TakeFilledRecord(program, 3, tag);
        Calc.CaseInput[3][0] = 777;
        SaveTRCalc();
    };
    EXPECT_GT(KillAtEveryWrite(
                  "new", [&] { save("P-3", 2); }, BackupsAreSound),
              10);
    PutBack();
    EXPECT_GT(KillAtEveryWrite("over", [&] { save("P-2", 4); }), 10) << "over a record of another program";
}

TEST_F(KillTest, Delete) {
    const auto remove = [] { DeleteRecord(Suite.DatabaseFile, "P-2"); };
    EXPECT_GT(KillAtEveryWrite("delete", remove), 10);
}

TEST_F(KillTest, Restore) {
    const auto restore = [] { RestoreBackup(Suite.DatabaseFile, BackupsOf(Suite.DatabaseFile).back().File); };
    EXPECT_GT(KillAtEveryWrite("restore", restore, BackupsAreSound), 10);
}

TEST_F(KillTest, CreateOverADatabase) {
    EXPECT_GT(KillAtEveryWrite("create", [] { CreateDB(true); }), 10);
}

TEST_F(KillTest, Compact) {
    // A compact changes no record; the file's length tells whether it came about.
    DeleteRecord(Suite.DatabaseFile, "P-2");
    const auto compact = [] { CompactDB(Suite.DatabasePath); };
    const State state = StateOfFile();
    for (int writes = 0;; ++writes) {
        const bool ended = EndsBefore(writes, Killed("compact", compact));
        ASSERT_EQ(StateOfFile(), state) << "killed at write " << writes;
        const std::string backup = SuitePath(DataFolder() / "TRDB.BAK");
        ASSERT_TRUE(!FileExists(backup) || OpenRecords(backup)->Fault().empty());
        if (ended) {
            EXPECT_GT(writes, 5);
            EXPECT_TRUE(FileExists(backup));
            EXPECT_FALSE(FileExists(SuitePath(DataFolder() / "Temp.mdb")));
            break;
        }
    }
}

}  // namespace
}  // namespace quillmetra
