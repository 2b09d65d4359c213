// See ScriptCommands.h.
#include "script/ScriptCommands.h"

#include <charconv>
#include <unordered_map>

#include "platform/NumberText.h"
#include "script/ScriptFailure.h"

namespace quillmetra {

namespace {

constexpr ScriptCommand Table[] = {
    {"folder", "PATH", script::Folder, "the folder of the program; before start"},
    {"write-file", "PATH TEXT", script::WriteFile, "a file of the suite's temporary folder"},
    {"remove-file", "PATH", script::RemoveFile, "takes a file out of it"},
    {"start", "", script::Start, "starts the suite; the browser is then in hand"},
    {"set-date", "YYYY-MM-DD", script::SetDate, "the day that the suite takes for today"},
    {"include", "PATH", script::Include, "plays another script"},
    {"strict", "on|off", script::Strict, "a box, input or dialog that nothing is queued for fails"},
    {"quit", "", script::Quit, "ends the script"},

    {"new", "N", script::NewCalculation, "a new calculation of program 1 to 5, from the browser"},
    {"open", "TAG", script::OpenCalculation, "a saved calculation, from the browser"},
    {"recalculate", "DATABASE [REPORT] [WHAT]", script::Recalculate,
     "all its records; WHAT is save, fluids or fluids+save"},
    {"export", "DATABASE FILE", script::Export, "all its records as CSV, or as a workbook (.xlsx)"},
    {"sizes", "DATABASE TAG [CASE] [SERVICE] [SCHEDULE] [FAMILY]", script::Sizes,
     "a saved line in each pipe, and the one for it"},
    {"import", "DATABASE FILE [REPORT] [WHAT]", script::ImportList,
     "a list of records, CSV or XLSX; WHAT is replace or preview"},
    {"form", "NAME", script::TakeForm, "takes a loaded form in hand"},
    {"close", "", script::CloseForm, "the close box of the form in hand"},

    {"type", "CONTROL TEXT", script::Type, "goes to a box and replaces its text"},
    {"click", "CONTROL", script::Click, "a button, option, check box or menu entry"},
    {"doubleclick", "CONTROL", script::DoubleClick, "a double click"},
    {"pick", "LIST ROW", script::Pick,
     "a row by its number from 0, or by how it starts; of a unit button too"},
    {"unpick", "LIST ROW", script::Unpick, "takes a row out of a list of several"},
    {"row", "GRID N [COLUMN]", script::ClickRow, "clicks a row of a grid"},
    {"rows", "GRID FROM TO", script::ClickRows, "selects rows of a list with columns"},
    {"cell", "GRID ROW COLUMN TEXT", script::TypeCell, "types into a cell of a grid that takes it"},
    {"cells", "GRID ROW COLUMN ROW COLUMN", script::PickCells, "selects the cells from one to another"},
    {"clipboard", "TEXT", script::Copied, "what was copied elsewhere; \\t parts columns"},
    {"key", "CONTROL KEY", script::Press, "goes to a control and presses a key"},
    {"drop", "PATH", script::Drop, "lets a file fall on the form in hand"},
    {"focus", "CONTROL", script::Focus, "goes to a control"},
    {"leave", "", script::Leave, "leaves the control that has the focus"},

    {"answer", "WORD", script::QueueAnswer, "OK, Yes, No or Cancel to a coming message box"},
    {"input", "TEXT", script::QueueInput, "the text for a coming input box"},
    {"file", "PATH", script::QueueFile, "the file for a coming dialog that opens one"},
    {"save-as", "PATH", script::QueueSaveAs, "the file for a coming dialog that saves one"},
    {"colour", "N", script::QueueColour, "the colour for a coming dialog, 65536 blue + 256 green + red"},
    {"font", "NAME SIZE", script::QueueFont, "the font for a coming dialog"},
    {"printer", "COPIES FROM TO", script::QueuePrinter, "copies and pages for a coming dialog"},
    {"cancel", "", script::QueueCancel, "cancels a coming dialog"},
    {"pdf", "PATH", script::PrintToPdf, "where the next print goes, as PDF"},
    {"text", "PATH", script::PrintToText, "where the next print goes, as text"},

    {"show", "CONTROL", script::Show, "prints NAME = TEXT"},
    {"show-status", "", script::ShowStatus, "prints status | TEXT, where hints stand"},
    {"dump", "", script::Dump, "prints every control of the form in hand"},
    {"expect", "CONTROL TEXT", script::ExpectText, "the text, or a number equal to six digits"},
    {"expect-state", "CONTROL WORD", script::ExpectState,
     "enabled, disabled, visible, hidden, checked or unchecked"},
    {"expect-form", "NAME", script::ExpectForm, "the form in hand, none when the suite has ended"},
    {"expect-title", "TEXT", script::ExpectTitle, "the title of the form in hand"},
    {"expect-window", "TEXT", script::ExpectWindow, "the title bar of the form in hand"},
    {"expect-status", "TEXT", script::ExpectStatus, "the status line of the form in hand"},
    {"expect-focus", "CONTROL", script::ExpectFocus, "the control that has the focus"},
    {"expect-tip", "CONTROL TEXT", script::ExpectTip, "the tool tip"},
    {"expect-colour", "CONTROL FORE [BACK]", script::ExpectColour, "colours by their slots, 1 to 12"},
    {"expect-count", "LIST N", script::ExpectCount, "the number of rows of a list or grid"},
    {"expect-row", "LIST N TEXT", script::ExpectRow, "a row of a list, from 0"},
    {"expect-cell", "GRID ROW COLUMN TEXT", script::ExpectCell, "a cell of a grid, from 0"},
    {"expect-message", "TEXT", script::ExpectMessage, "the oldest unread message box contains it"},
    {"expect-no-message", "", script::ExpectNoMessage, "no message box is unread"},
    {"expect-box", "TITLE TEXT [BUTTONS] [ICON] [DEFAULT]", script::ExpectBox,
     "the oldest unread message box is exactly this"},
};

}  // namespace

std::span<const ScriptCommand> ScriptCommands() { return Table; }

const ScriptCommand* FindCommand(std::string_view name) {
    static const std::unordered_map<std::string_view, const ScriptCommand*> byName = [] {
        std::unordered_map<std::string_view, const ScriptCommand*> commands;
        for (const ScriptCommand& command : Table) commands.emplace(command.Name, &command);
        return commands;
    }();
    const auto found = byName.find(name);
    return found == byName.end() ? nullptr : found->second;
}

int WholeNumber(const ScriptWord& word) {
    const std::string_view text = Trim(word.Text);
    int number = 0;
    const auto [stop, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error == std::errc() && stop == text.data() + text.size()) return number;
    throw ScriptFailure{word.Text + " is no whole number"};
}

}  // namespace quillmetra
