// A child process is killed at every write that an act makes to the disk, in the middle of the write. What it
// leaves must open, be sound, and hold the former or the new state.
//
// The system's writing calls stand here in place of the library's own, so that the database engine and the
// suite's file routines are counted alike.
#include <functional>

#include <dlfcn.h>
#include <sys/sendfile.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/records/RecordFixture.h"

namespace {

int WritesLeft = -1;  // below 0: nobody counts

// True when this is the write to die in.
bool IsLastWrite() { return WritesLeft >= 0 && WritesLeft-- == 0; }

[[noreturn]] void Die() { _exit(99); }

template <typename Call>
Call* Library(const char* name) {
    return reinterpret_cast<Call*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

extern "C" {

ssize_t pwrite64(int file, const void* bytes, size_t count, off64_t place) {
    static auto* const call = Library<ssize_t(int, const void*, size_t, off64_t)>("pwrite64");
    if (IsLastWrite()) {
        call(file, bytes, count / 2, place);
        Die();
    }
    return call(file, bytes, count, place);
}

ssize_t pwrite(int file, const void* bytes, size_t count, off_t place) {
    return pwrite64(file, bytes, count, place);
}

ssize_t sendfile64(int to, int from, off64_t* place, size_t count) {
    static auto* const call = Library<ssize_t(int, int, off64_t*, size_t)>("sendfile64");
    if (IsLastWrite()) {
        call(to, from, place, count / 2);
        Die();
    }
    return call(to, from, place, count);
}

ssize_t sendfile(int to, int from, off_t* place, size_t count) { return sendfile64(to, from, place, count); }

int ftruncate64(int file, off64_t length) {
    static auto* const call = Library<int(int, off64_t)>("ftruncate64");
    if (IsLastWrite()) Die();
    return call(file, length);
}

int ftruncate(int file, off_t length) { return ftruncate64(file, length); }

int unlink(const char* path) noexcept {
    static auto* const call = Library<int(const char*)>("unlink");
    if (IsLastWrite()) Die();
    return call(path);
}

int rename(const char* from, const char* to) noexcept {
    static auto* const call = Library<int(const char*, const char*)>("rename");
    if (IsLastWrite()) Die();
    return call(from, to);
}

}  // extern "C"

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

    // Kills the act at its first, second, ... write until it comes to its end, and checks what is left.
    int KillAtEveryWrite(
        const std::function<void()>& act, const std::function<void()>& check = [] {}) {
        const State former = StateOfFile();
        act();
        const State done = StateOfFile();
        EXPECT_NE(former, done);
        for (int writes = 0;; ++writes) {
            PutBack();
            const pid_t child = fork();
            if (child == 0) {
                WritesLeft = writes;
                act();
                _exit(0);
            }
            int status = 0;
            waitpid(child, &status, 0);
            const State left = StateOfFile();
            EXPECT_TRUE(left == former || left == done) << "killed at write " << writes;
            check();
            if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
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
    const auto save = [](const char* tag, int program) {
        TakeFilledRecord(program, 3, tag);
        Calc.CaseInput[3][0] = 777;
        SaveTRCalc();
    };
    EXPECT_GT(KillAtEveryWrite([&] { save("P-3", 2); }), 10);
    PutBack();
    EXPECT_GT(KillAtEveryWrite([&] { save("P-2", 4); }), 10) << "over a record of another program";
}

TEST_F(KillTest, Delete) {
    const auto remove = [] { DeleteRecord(Suite.DatabaseFile, "P-2"); };
    EXPECT_GT(KillAtEveryWrite(remove), 10);
}

TEST_F(KillTest, CreateOverADatabase) {
    EXPECT_GT(KillAtEveryWrite([] { CreateDB(true); }), 10);
}

TEST_F(KillTest, Compact) {
    // A compact changes no record; the file's length tells whether it came about.
    DeleteRecord(Suite.DatabaseFile, "P-2");
    const auto compact = [] { CompactDB(Suite.DatabasePath); };
    const State state = StateOfFile();
    for (int writes = 0;; ++writes) {
        const pid_t child = fork();
        if (child == 0) {
            WritesLeft = writes;
            compact();
            _exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_EQ(StateOfFile(), state) << "killed at write " << writes;
        const std::string backup = SuitePath(DataFolder() / "TRDB.BAK");
        ASSERT_TRUE(!FileExists(backup) || OpenRecords(backup)->Fault().empty());
        if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
            EXPECT_GT(writes, 5);
            EXPECT_TRUE(FileExists(backup));
            EXPECT_FALSE(FileExists(SuitePath(DataFolder() / "Temp.mdb")));
            break;
        }
    }
}

}  // namespace
}  // namespace quillmetra
