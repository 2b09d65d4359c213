// Programs and connections of a server's that are killed at random: what was acknowledged is there, whole.
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <thread>

#if __has_include(<sys/wait.h>)
#include <sys/wait.h>
#include <unistd.h>

#include "records/RecordRows.h"
#include "tests/records/ServerFixture.h"

namespace quillmetra {
namespace {

using namespace std::chrono_literals;

// The rows of head, program and settings say each how often the record was saved.
void SaveRound(int round) {
    TakeFilledRecord(1, 1, "K-1");
    Calc.CaseInput[3][0] = Calc.StdPressure = round;
    Calc.HeadingText[8] = std::to_string(round);
    Calc.FluidName = "fluid " + std::to_string(round);
    if (SaveTRCalc()) std::printf("%d\n", round);
    std::fflush(stdout);
}

const std::vector<std::string> ListedTags = {"K-1", "K-2", "K-3"};

// As an import writes its records: all in one transaction.
void ImportRound(int round) {
    const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
    Transaction all(*database);
    RowStore store(*database);
    for (const std::string& tag : ListedTags) {
        TakeFilledRecord(1, 1, tag);
        Calc.CaseInput[3][0] = Calc.StdPressure = round;
        Calc.HeadingText[8] = std::to_string(round);
        RecordRows rows;
        for (const RecordTable* table :
             {&HeadTable(), &UnitsTable(), &PressureDropTable(), &SettingsTable()}) {
            for (const auto& value : RowOfRecord(*table))
                rows.Of(*table).push_back(value.value_or(FieldValue()));
        }
        store.Write(rows);
    }
    all.Commit();
}

// An even round deletes what the one before has written.
void DeleteRound(int round) {
    round % 2 != 0 ? ImportRound(round) : void(DeleteRecords(Suite.DatabaseFile, ListedTags));
}

void PlayRound(const std::string& act, int round) {
    if (act == "save") return SaveRound(round);
    try {
        act == "import" ? ImportRound(round) : DeleteRound(round);
        std::printf("%d\n", round);
        std::fflush(stdout);
    } catch (const RuntimeError&) {
    }
}

TEST_F(ServerTest, Saver) {
    const char *const link = std::getenv("QUILLMETRA_SAVER"), *const act = std::getenv("QUILLMETRA_ACT"),
                      *const first = std::getenv("QUILLMETRA_ROUND");
    if (link == nullptr || act == nullptr || first == nullptr) GTEST_SKIP() << "the process that is killed";
    std::filesystem::copy_file(MachinePath(link), File(), std::filesystem::copy_options::overwrite_existing);
    for (int round = std::atoi(first); getppid() != 1; ++round) PlayRound(act, round);
}

// Starts the saver and reads the rounds that it acknowledges, until it is killed or has lost its server.
class KilledSaver {
public:
    KilledSaver(const std::filesystem::path& link, const char* act, int round) {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0) return;
        setenv("QUILLMETRA_SAVER", link.c_str(), 1);
        setenv("QUILLMETRA_ACT", act, 1);
        setenv("QUILLMETRA_ROUND", std::to_string(round).c_str(), 1);
        process_ = fork();
        if (process_ == 0) {
            dup2(ends[1], STDOUT_FILENO);
            execl("/proc/self/exe", "saver", "--gtest_filter=ServerTest.Saver", nullptr);
            _exit(1);
        }
        unsetenv("QUILLMETRA_SAVER");
        close(ends[1]);
        out_ = fdopen(ends[0], "r");
        Read();
    }
    int LastSaved(std::chrono::milliseconds life) {
        std::this_thread::sleep_for(life);
        kill(process_, SIGKILL);
        while (Read()) continue;
        std::fclose(out_);
        waitpid(process_, nullptr, 0);
        return last_;
    }

private:
    // The next round; what else the process tells is none.
    bool Read() {
        std::array<char, 256> line{};
        while (std::fgets(line.data(), line.size(), out_) != nullptr) {
            if (std::sscanf(line.data(), "%d\n", &last_) == 1) return true;
        }
        return false;
    }

    pid_t process_ = -1;
    FILE* out_ = nullptr;
    int last_ = 0;
};

class ServerKillTest : public ServerTest, public testing::WithParamInterface<const char*> {
protected:
    // The round that a record holds, whole; 0 for one that is not there, in any table.
    int RoundOf(const std::string& tag) {
        if (RowsWith(tag).empty()) return 0;
        User.Boxes.clear();
        EXPECT_TRUE(Display(tag)) << User.LastText();
        const int round = std::atoi(Calc.HeadingText[8].c_str());
        EXPECT_EQ(Calc.CaseInput[3][0], round);
        EXPECT_EQ(Calc.StdPressure, round);
        return round;
    }

    // Of all records of the act, which must be in one; those that are deleted are in an even one.
    int StoredRound(const std::string& act, int last) {
        const int round = RoundOf("K-1");
        if (act == "save") return round;
        for (const std::string& tag : ListedTags) EXPECT_EQ(RoundOf(tag), round) << tag;
        return act == "delete" && round == 0 ? last + last % 2 : round;
    }
};

INSTANTIATE_TEST_SUITE_P(Acts, ServerKillTest, testing::Values("save", "import", "delete"));

TEST_P(ServerKillTest, NoKillTearsARecordOrLosesWhatIsDone) {
    SaveNew("other");
    const char* const count = std::getenv("QUILLMETRA_KILLS");
    const int kills = count == nullptr ? 6 : std::atoi(count);
    std::mt19937 chance(4711);
    int last = 0;
    for (int i = 0; i < kills; ++i) {
        KilledSaver saver(File(), GetParam(), last + 1);
        const auto life = std::chrono::milliseconds(chance() % 250);
        if (i % 3 == 1) {  // the server of that connection; the others then start anew
            std::this_thread::sleep_for(life);
            Sql("SELECT pg_terminate_backend(pid) FROM pg_stat_activity WHERE application_name = "
                "'Quillmetra'");
        } else if (i % 12 == 2) {
            std::this_thread::sleep_for(life);
            const std::string pid =
                Sql("SELECT max(pid) FROM pg_stat_activity WHERE application_name = 'Quillmetra'");
            if (std::atoi(pid.c_str()) > 1) kill(std::atoi(pid.c_str()), SIGKILL);
        }
        last = std::max(last, saver.LastSaved(life));
        while (Sql("SELECT 1") != "1\n") std::this_thread::sleep_for(50ms);
        const int stored = StoredRound(GetParam(), last);
        EXPECT_GE(stored, last) << "after kill " << i;
        last = stored;
    }
    EXPECT_GT(last, kills / 2);
}

}  // namespace
}  // namespace quillmetra
#endif
