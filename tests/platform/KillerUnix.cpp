// See Killer.h. The system's writing calls stand here in place of the library's own, so that the database
// engine and the suite's file routines are counted alike.
#include <dlfcn.h>
#include <sys/sendfile.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/platform/Killer.h"

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

bool EndsBefore(int write, const KilledAct& act) {
    const pid_t child = fork();
    if (child == 0) {
        WritesLeft = write;
        act.Do(act.Folder);
        _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace quillmetra
