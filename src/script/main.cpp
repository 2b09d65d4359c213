// quillmetra-script: plays a script against the suite, without a display.
#include <cstdio>
#include <iostream>
#include <string>

#include "core/Version.h"
#include "forms/RegisterForms.h"
#include "platform/ProgramPlaces.h"
#include "script/ScriptCommands.h"
#include "script/ScriptPlayer.h"

namespace {

void PrintHelp() {
    std::puts(
        "Usage: quillmetra-script FILE\n"
        "Plays a script of one command a line; FILE \"-\" is standard input.\n"
        "Ends with 0, or with 1 at the first line that fails.\n\n"
        "Commands:");
    for (const quillmetra::ScriptCommand& command : quillmetra::ScriptCommands()) {
        const std::string usage = std::string(command.Name) + " " + command.Usage;
        std::printf("  %-50s %s\n", usage.c_str(), command.Effect);
    }
    std::puts("\nOptions:\n  --help     prints this\n  --version  prints the version");
}

}  // namespace

int main(int count, char** arguments) {
    const std::string what = count == 2 ? arguments[1] : "";
    if (what == "--help") {
        PrintHelp();
        return 0;
    }
    if (what == "--version") {
        std::printf("quillmetra-script %s\n", quillmetra::version::Text);
        return 0;
    }
    if (what.empty() || (what.size() > 1 && what.starts_with('-'))) {
        std::fputs("Usage: quillmetra-script FILE, or --help\n", stderr);
        return 1;
    }
    const quillmetra::Utf8Console console;
    quillmetra::RegisterForms();
    return quillmetra::ScriptPlayer(std::cout, std::cerr).Play(what);
}
