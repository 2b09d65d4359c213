// quillmetra-script: plays a script against the suite, without a display.
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "core/Version.h"
#include "forms/RegisterForms.h"
#include "platform/ProgramPlaces.h"
#include "script/ScriptCommands.h"
#include "script/ScriptPlayer.h"

namespace {

constexpr int Failed = 2;
constexpr std::string_view Recalculation = "--recalculate";

void PrintHelp() {
    std::puts(
        "Usage: quillmetra-script FILE\n"
        "Plays a script of one command a line; FILE \"-\" is standard input.\n"
        "Ends with 0, or with 1 at the first line that fails.\n\n"
        "   or: quillmetra-script --recalculate DATABASE [--report FILE] [--fluids] [--save] [--folder "
        "PATH]\n"
        "Calculates all records of a database anew. Ends with 0 when no result has changed, with 1 when one\n"
        "has or a calculation told something, with 2 when it could not be done.\n\n"
        "Commands:");
    for (const quillmetra::ScriptCommand& command : quillmetra::ScriptCommands()) {
        const std::string usage = std::string(command.Name) + " " + command.Usage;
        std::printf("  %-50s %s\n", usage.c_str(), command.Effect);
    }
    std::puts("\nOptions:\n  --help     prints this\n  --version  prints the version");
}

std::string Quoted(const std::string& text) {
    std::string quoted = "\"";
    for (const char c : text) quoted.append(c == '"' || c == '\\' ? 1 : 0, '\\').append(1, c);
    return quoted + "\"";
}

struct Order {
    std::string Database, Report, Folder;
    bool Fluids = false, Saves = false;
};

// False, after a word, for an option that there is not.
bool Take(Order& order, const std::vector<std::string>& options) {
    for (std::size_t i = 0; i < options.size(); ++i) {
        const std::string& option = options[i];
        const bool hasValue = i + 1 < options.size();
        if (option == "--fluids") {
            order.Fluids = true;
        } else if (option == "--save") {
            order.Saves = true;
        } else if (hasValue && (option == "--report" || option == "--folder")) {
            (option == "--report" ? order.Report : order.Folder) = options[++i];
        } else {
            std::fprintf(stderr, "What is %s? --help tells\n", option.c_str());
            return false;
        }
    }
    return true;
}

// As a script of two or three lines.
int Recalculate(quillmetra::ScriptPlayer& player, const Order& order) {
    const char* what = order.Saves ? "save" : "";
    if (order.Fluids) what = order.Saves ? "fluids+save" : "fluids";
    std::string lines = order.Folder.empty() ? "" : "folder " + Quoted(order.Folder) + "\n";
    lines += "start\nrecalculate " + Quoted(order.Database) + " " + Quoted(order.Report) + " " + Quoted(what);
    std::istringstream script(lines);
    if (player.Play(std::string(Recalculation), script) != 0) return Failed;
    return player.Differs ? 1 : 0;
}

}  // namespace

int main(int count, char** arguments) {
    const std::string what = count >= 2 ? arguments[1] : "";
    if (what == "--help") {
        PrintHelp();
        return 0;
    }
    if (what == "--version") {
        std::printf("quillmetra-script %s\n", quillmetra::version::Text);
        return 0;
    }
    const bool recalculates = what == Recalculation && count > 2;
    if (what.empty() || (!recalculates && (count > 2 || (what.size() > 1 && what.starts_with('-'))))) {
        std::fputs("Usage: quillmetra-script FILE, or --help\n", stderr);
        return 1;
    }
    const quillmetra::Utf8Console console;
    quillmetra::RegisterForms();
    quillmetra::ScriptPlayer player(std::cout, std::cerr);
    if (!recalculates) return player.Play(what);
    Order order{.Database = arguments[2], .Report = {}, .Folder = {}};
    return Take(order, {arguments + 3, arguments + count}) ? Recalculate(player, order) : Failed;
}
