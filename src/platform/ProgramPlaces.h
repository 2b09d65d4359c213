// Where the machine keeps things: the executable's folder, the user's application data folder, and the
// installed data; and since when the process runs. The only place that asks the operating system about
// itself.
#pragma once

#include <filesystem>

namespace quillmetra {

// The folder of the running executable; the current folder when the machine does not tell.
std::filesystem::path ExecutableFolder();

// "quillmetra" in the folder where a user's programs keep their data.
std::filesystem::path UserDataFolder();

// The folder of the tables that are shipped with the suite, beside the executable's own folder as installed
// and in a build; it need not exist.
std::filesystem::path ShippedDataFolder();

// Milliseconds since this process was started, loading of its libraries included where the system tells
// (in steps of 10 ms), else since the first call.
double ProcessAge();

// Has a console show the suite's texts letter by letter as long as it lives.
class Utf8Console {
public:
    Utf8Console();
    ~Utf8Console();
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;

private:
    unsigned former_;
};

}  // namespace quillmetra
