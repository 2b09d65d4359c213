// quillmetra-script: plays a script against the suite, without a display.
#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>
#include <iterator>
#include <map>
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

void PrintHelp() {
    std::puts(
        "Usage: quillmetra-script FILE\n"
        "Plays a script of one command a line; FILE \"-\" is standard input.\n"
        "Ends with 0, or with 1 at the first line that fails.\n\n"
        "   or: quillmetra-script --recalculate DATABASE [--report FILE] [--fluids] [--save]\n"
        "                         [--folder PATH]\n"
        "Calculates all records of a database anew. Ends with 0 when no result has changed, with 1 when one\n"
        "has or a calculation told something, with 2 when it could not be done.\n\n"
        "   or: quillmetra-script --export DATABASE FILE\n"
        "Writes all records of a database as CSV, or as a workbook where FILE ends with .xlsx. Ends with 0,\n"
        "with 2 when it could not be done.\n\n"
        "   or: quillmetra-script --sizes DATABASE TAG [--case N] [--service NAME] [--schedule NAME]\n"
        "                         [--family NAME] [--folder PATH]\n"
        "Prints what a case of a saved line comes to in each pipe. Ends with 0 when one keeps to the\n"
        "service, with 1 when none does, with 2 when it could not be done.\n\n"
        "   or: quillmetra-script --import DATABASE FILE [--report FILE] [--replace] [--preview]\n"
        "                         [--folder PATH]\n"
        "Takes a list of calculations, CSV or XLSX, into a database. Ends with 0 when every row is equal to\n"
        "what is on file, with 1 when one is not or is refused, with 2 when it could not be done.\n\n"
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

// What stands on the command line behind a short form.
struct Order {
    std::vector<std::string> Files;
    std::map<std::string, std::string, std::less<>> Values;  // of the options that have one
    bool Fluids = false, Saves = false, Replaces = false, Previews = false;

    std::string Value(std::string_view option) const {
        const auto found = Values.find(option);
        return found == Values.end() ? "" : found->second;
    }
};

std::string RecalculateLine(const Order& order) {
    const char* what = order.Saves ? "save" : "";
    if (order.Fluids) what = order.Saves ? "fluids+save" : "fluids";
    return "recalculate " + Quoted(order.Files[0]) + " " + Quoted(order.Value("--report")) + " " +
           Quoted(what);
}

std::string ExportLine(const Order& order) {
    return "export " + Quoted(order.Files[0]) + " " + Quoted(order.Files[1]);
}

std::string SizesLine(const Order& order) {
    std::string line = "sizes " + Quoted(order.Files[0]) + " " + Quoted(order.Files[1]);
    for (const char* option : {"--case", "--service", "--schedule", "--family"})
        line += " " + Quoted(order.Value(option));
    return line;
}

std::string ImportLine(const Order& order) {
    const char* what = order.Previews ? "preview" : order.Replaces ? "replace" : "";
    return "import " + Quoted(order.Files[0]) + " " + Quoted(order.Files[1]) + " " +
           Quoted(order.Value("--report")) + " " + Quoted(what);
}

// A command as an option, with as many files behind it; it is played as a script of two or three lines.
struct ShortForm {
    std::string_view Option;
    std::size_t Files;
    std::string (*Line)(const Order& order);
    std::array<std::string_view, 5> Options;  // that it takes
};
constexpr ShortForm ShortForms[] = {
    {"--recalculate", 1, RecalculateLine, {"--report", "--fluids", "--save", "--folder"}},
    {"--export", 2, ExportLine, {"--folder"}},
    {"--sizes", 2, SizesLine, {"--case", "--service", "--schedule", "--family", "--folder"}},
    {"--import", 2, ImportLine, {"--report", "--replace", "--preview", "--folder"}},
};

const ShortForm* FindShortForm(std::string_view option) {
    const auto* const found = std::ranges::find(ShortForms, option, &ShortForm::Option);
    return found == std::end(ShortForms) ? nullptr : found;
}

// Null for an option with a value.
bool* FlagOf(Order& order, std::string_view option) {
    if (option == "--fluids") return &order.Fluids;
    if (option == "--save") return &order.Saves;
    if (option == "--replace") return &order.Replaces;
    return option == "--preview" ? &order.Previews : nullptr;
}

// False, after a word, for an option that there is not, and where files are missing or too many.
bool Take(Order& order, const ShortForm& form, const std::vector<std::string>& words) {
    const auto refuse = [](const std::string& what) {
        std::fprintf(stderr, "%s? --help tells\n", what.c_str());
        return false;
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (!word.starts_with("--")) {
            order.Files.push_back(word);
            continue;
        }
        if (std::ranges::find(form.Options, word) == form.Options.end()) return refuse("What is " + word);
        if (bool* const flag = FlagOf(order, word)) {
            *flag = true;
            continue;
        }
        if (i + 1 == words.size()) return refuse("Which is the one of " + word);
        order.Values[word] = words[++i];
    }
    return order.Files.size() == form.Files || refuse("Which files");
}

int Play(quillmetra::ScriptPlayer& player, const ShortForm& form, const Order& order) {
    const std::string folder =
        order.Value("--folder").empty() ? "" : "folder " + Quoted(order.Value("--folder")) + "\n";
    std::istringstream script(folder + "start\n" + form.Line(order));
    if (player.Play(std::string(form.Option), script) != 0) return Failed;
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
    const ShortForm* const form = FindShortForm(what);
    if (what.empty() || (form == nullptr && (count > 2 || (what.size() > 1 && what.starts_with('-'))))) {
        std::fputs("Usage: quillmetra-script FILE, or --help\n", stderr);
        return 1;
    }
    Order order;
    if (form != nullptr && !Take(order, *form, {arguments + 2, arguments + count})) return Failed;
    const quillmetra::Utf8Console console;
    quillmetra::RegisterForms();
    quillmetra::ScriptPlayer player(std::cout, std::cerr);
    return form == nullptr ? player.Play(what) : Play(player, *form, order);
}
