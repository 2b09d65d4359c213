// See ProgramPlaces.h.
#include "platform/ProgramPlaces.h"

#include <cstdlib>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#endif

namespace quillmetra {

namespace fs = std::filesystem;

namespace {
fs::path FromEnvironment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? fs::path() : fs::path(value);
}
}  // namespace

fs::path ExecutableFolder() {
#ifdef _WIN32
    wchar_t name[32768];
    const DWORD length = GetModuleFileNameW(nullptr, name, 32768);
    if (length > 0) return fs::path(std::wstring(name, length)).parent_path();
#else
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    if (!error) return self.parent_path();
#endif
    return fs::current_path();
}

fs::path UserDataFolder() {
#ifdef _WIN32
    return FromEnvironment("APPDATA") / "quillmetra";
#else
    const fs::path named = FromEnvironment("XDG_DATA_HOME");
    if (named.is_absolute()) return named / "quillmetra";
    const fs::path home = FromEnvironment("HOME");
    return (home.empty() ? fs::temp_directory_path() : home / ".local" / "share") / "quillmetra";
#endif
}

fs::path ShippedDataFolder() { return ExecutableFolder().parent_path() / "share" / "quillmetra" / "data"; }

}  // namespace quillmetra
