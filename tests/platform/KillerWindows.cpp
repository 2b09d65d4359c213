// See Killer.h. The program's own table of what it takes from the system's libraries leads here for the
// writing calls, so that the database engine and the library of the language, both within the program, are
// counted alike.
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <filesystem>

#include <gtest/gtest.h>
#include <windows.h>

#include "tests/platform/Killer.h"

namespace {

int WritesLeft = -1;  // below 0: nobody counts

// True when this is the write to die in.
bool IsLastWrite() { return WritesLeft >= 0 && WritesLeft-- == 0; }

void Die() { TerminateProcess(GetCurrentProcess(), 99); }

// An imported routine of the program; all places of that name, which may be imported twice.
template <typename Routine>
void Redirect(const char* name, Routine* mine, Routine*& former) {
    auto* const base = reinterpret_cast<std::byte*>(GetModuleHandleW(nullptr));
    const auto* const dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
    const auto* const head = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
    const DWORD table = head->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT].VirtualAddress;
    for (auto* library = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + table); library->Name != 0;
         ++library) {
        auto* names = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->OriginalFirstThunk);
        auto* places = reinterpret_cast<IMAGE_THUNK_DATA*>(base + library->FirstThunk);
        for (; names->u1.AddressOfData != 0; ++names, ++places) {
            if (IMAGE_SNAP_BY_ORDINAL(names->u1.Ordinal)) continue;
            const auto* const import =
                reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + names->u1.AddressOfData);
            if (std::strcmp(reinterpret_cast<const char*>(import->Name), name) != 0) continue;
            DWORD rights = 0;
            VirtualProtect(places, sizeof *places, PAGE_READWRITE, &rights);
            former = reinterpret_cast<Routine*>(places->u1.Function);
            places->u1.Function = reinterpret_cast<ULONGLONG>(mine);
        }
    }
}

decltype(WriteFile)* FormerWriteFile;
decltype(SetEndOfFile)* FormerSetEndOfFile;
decltype(DeleteFileW)* FormerDeleteFile;
decltype(MoveFileExW)* FormerMoveFile;
decltype(CopyFileW)* FormerCopyFile;
int (*FormerUnlink)(const wchar_t*);
int (*FormerWrite)(int, const void*, unsigned);

BOOL WINAPI CountedWriteFile(HANDLE file, LPCVOID bytes, DWORD count, LPDWORD written, LPOVERLAPPED place) {
    if (!IsLastWrite()) return FormerWriteFile(file, bytes, count, written, place);
    FormerWriteFile(file, bytes, count / 2, written, place);
    Die();
    return FALSE;
}

BOOL WINAPI CountedSetEndOfFile(HANDLE file) {
    if (IsLastWrite()) Die();
    return FormerSetEndOfFile(file);
}

BOOL WINAPI CountedDeleteFile(LPCWSTR name) {
    if (IsLastWrite()) Die();
    return FormerDeleteFile(name);
}

BOOL WINAPI CountedMoveFile(LPCWSTR from, LPCWSTR to, DWORD how) {
    if (IsLastWrite()) Die();
    return FormerMoveFile(from, to, how);
}

BOOL WINAPI CountedCopyFile(LPCWSTR from, LPCWSTR to, BOOL keep) {
    if (IsLastWrite()) Die();
    return FormerCopyFile(from, to, keep);
}

int CountedUnlink(const wchar_t* name) {
    if (IsLastWrite()) Die();
    return FormerUnlink(name);
}

int CountedWrite(int file, const void* bytes, unsigned count) {
    if (!IsLastWrite()) return FormerWrite(file, bytes, count);
    FormerWrite(file, bytes, count / 2);
    Die();
    return -1;
}

void CountWrites(int write) {
    Redirect("WriteFile", CountedWriteFile, FormerWriteFile);
    Redirect("SetEndOfFile", CountedSetEndOfFile, FormerSetEndOfFile);
    Redirect("DeleteFileW", CountedDeleteFile, FormerDeleteFile);
    Redirect("MoveFileExW", CountedMoveFile, FormerMoveFile);
    Redirect("CopyFileW", CountedCopyFile, FormerCopyFile);
    Redirect("_wunlink", CountedUnlink, FormerUnlink);
    Redirect("_write", CountedWrite, FormerWrite);
    Redirect("write", CountedWrite, FormerWrite);
    WritesLeft = write;
}

std::string Variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

// In the other process: plays the act that is asked for, and passes by all others.
bool PlayAsked(const quillmetra::KilledAct& act) {
    if (Variable("QUILLMETRA_KILL_ACT") != act.Name) return true;
    CountWrites(std::atoi(Variable("QUILLMETRA_KILL_WRITE").c_str()));
    act.Do(Variable("QUILLMETRA_KILL_FOLDER"));
    std::fflush(nullptr);
    TerminateProcess(GetCurrentProcess(), 0);
    return true;
}

// This program once more, for the test at hand alone, with its temporary files in the folder.
DWORD ExitOfAnother(const std::filesystem::path& temporary) {
    const ::testing::TestInfo* const test = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string filter = std::string(test->test_suite_name()) + "." + test->name();
    wchar_t program[32768];
    GetModuleFileNameW(nullptr, program, 32768);
    std::wstring line =
        L"\"" + std::wstring(program) + L"\" --gtest_filter=" + std::wstring(filter.begin(), filter.end());
    SetEnvironmentVariableW(L"TMP", temporary.c_str());
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    // Without a console: one of its own for each would take longer than all else.
    if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, DETACHED_PROCESS, nullptr, nullptr,
                       &start, &process) == 0) {
        return 1;
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 1;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hProcess);
    CloseHandle(process.hThread);
    return code;
}

}  // namespace

namespace quillmetra {

bool EndsBefore(int write, const KilledAct& act) {
    if (!Variable("QUILLMETRA_KILL_ACT").empty()) return PlayAsked(act);
    namespace fs = std::filesystem;
    const fs::path temporary = fs::temp_directory_path() / "quillmetra-killed";
    fs::create_directory(temporary);
    const std::string former = Variable("TMP");
    SetEnvironmentVariableA("QUILLMETRA_KILL_ACT", act.Name.c_str());
    SetEnvironmentVariableA("QUILLMETRA_KILL_WRITE", std::to_string(write).c_str());
    SetEnvironmentVariableA("QUILLMETRA_KILL_FOLDER", act.Folder.c_str());
    const DWORD code = ExitOfAnother(temporary);
    SetEnvironmentVariableA("QUILLMETRA_KILL_ACT", nullptr);
    SetEnvironmentVariableA("TMP", former.c_str());
    fs::remove_all(temporary);
    EXPECT_TRUE(code == 0 || code == 99) << code;
    return code == 0;
}

}  // namespace quillmetra
