// See ProgramPlaces.h.
#include "platform/ProgramPlaces.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
#elif defined(__APPLE__)
#include <mach-o/dyld.h>
#else
#include <unistd.h>
#endif

#include "platform/NumberText.h"
#include "platform/TextFiles.h"

namespace quillmetra {

namespace fs = std::filesystem;

namespace {
fs::path FromEnvironment(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? fs::path() : MachinePath(value);
}

#ifdef __linux__
std::string WholeFile(const char* name) {
    std::ifstream file(name);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The first field has number 1; empty where there are fewer.
std::string FieldOf(const std::string& text, int number) {
    std::istringstream fields(text);
    std::string field;
    while (number-- > 0) {
        if (!(fields >> field)) return "";
    }
    return field;
}
#endif

constexpr unsigned Utf8CodePage = 65001;

// The code page of the console until now; only Windows has any.
unsigned ShowCodePage([[maybe_unused]] unsigned page) {
#ifdef _WIN32
    const unsigned former = GetConsoleOutputCP();
    SetConsoleOutputCP(page);
    return former;
#else
    return 0;
#endif
}

// Letters reach a console whole: the library of the language takes them apart byte by byte, and by a code
// page of its own, unless it holds them back and takes them for no text.
void KeepLettersWhole([[maybe_unused]] std::FILE* stream) {
#ifdef _WIN32
    if (_isatty(_fileno(stream)) == 0) return;
    _setmode(_fileno(stream), _O_BINARY);
    std::setvbuf(stream, nullptr, _IOFBF, 4096);
#endif
}

}  // namespace

fs::path ExecutableFolder() {
#ifdef _WIN32
    wchar_t name[32768];
    const DWORD length = GetModuleFileNameW(nullptr, name, 32768);
    if (length > 0) return fs::path(std::wstring(name, length)).parent_path();
#elif defined(__APPLE__)
    std::string name(4096, '\0');
    auto size = static_cast<std::uint32_t>(name.size());
    std::error_code error;
    if (_NSGetExecutablePath(name.data(), &size) == 0) {
        return fs::weakly_canonical(fs::path(name.c_str()), error).parent_path();
    }
#else
    std::error_code error;
    const fs::path self = fs::read_symlink("/proc/self/exe", error);
    if (!error) return self.parent_path();
#endif
    return fs::current_path();
}

fs::path UserDataFolder() {
#ifdef _WIN32
    const fs::path folder = FromEnvironment("APPDATA");
#elif defined(__APPLE__)
    const fs::path folder = FromEnvironment("HOME") / "Library" / "Application Support";
#else
    const fs::path named = FromEnvironment("XDG_DATA_HOME");
    const fs::path folder = named.has_root_directory() ? named : FromEnvironment("HOME") / ".local" / "share";
#endif
    // Where there is no such place, never the folder that a program happened to be started in.
    return (folder.has_root_directory() ? folder : fs::temp_directory_path()) / "quillmetra";
}

fs::path ShippedDataFolder() { return ExecutableFolder().parent_path() / "share" / "quillmetra" / "data"; }

double ProcessAge() {
#ifdef __linux__
    constexpr int startTime = 20;  // the field after the name in brackets, in clock ticks
    const std::string stat = WholeFile("/proc/self/stat");
    const std::string ticks = FieldOf(stat.substr(stat.rfind(')') + 1), startTime);
    const std::string up = FieldOf(WholeFile("/proc/uptime"), 1);
    if (!ticks.empty() && !up.empty()) {
        return (Val(up) - Val(ticks) / static_cast<double>(sysconf(_SC_CLK_TCK))) * 1000;
    }
#elif defined(_WIN32)
    FILETIME created{}, now{}, unused{};
    GetSystemTimePreciseAsFileTime(&now);
    if (GetProcessTimes(GetCurrentProcess(), &created, &unused, &unused, &unused) != 0) {
        const auto milliseconds = [](FILETIME time) {  // of steps of 100 ns
            return (4294967296.0 * time.dwHighDateTime + time.dwLowDateTime) / 10000;
        };
        return milliseconds(now) - milliseconds(created);
    }
#endif
    static const auto start = std::chrono::steady_clock::now();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

Utf8Console::Utf8Console() : former_(ShowCodePage(Utf8CodePage)) {
    for (std::FILE* stream : {stdout, stderr}) KeepLettersWhole(stream);
}

Utf8Console::~Utf8Console() { ShowCodePage(former_); }

}  // namespace quillmetra
