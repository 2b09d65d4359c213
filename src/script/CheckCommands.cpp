// The commands that print or check what a user sees.
#include <cmath>
#include <cstdio>
#include <optional>
#include <ostream>
#include <utility>

#include "core/Suite.h"
#include "forms/WindowTitle.h"
#include "platform/DropButton.h"
#include "platform/Forms.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"
#include "script/ScriptPlayer.h"

namespace quillmetra::script {

namespace {

std::string InQuotes(const std::string& text) { return '"' + OnOneLine(text) + '"'; }

[[noreturn]] void Fail(const std::string& what, const std::string& found, const std::string& wanted) {
    throw ScriptFailure{what + " is " + found + ", not " + wanted};
}

void RequireSame(const std::string& what, const std::string& found, const std::string& wanted) {
    if (found != wanted) Fail(what, InQuotes(found), InQuotes(wanted));
}

bool IsTickable(const Control& control) {
    return control.Kind() == ControlKind::OptionButton || control.Kind() == ControlKind::CheckBox ||
           control.Kind() == ControlKind::MenuItem;
}

const char* TickWord(const Control& control) {
    return static_cast<const Tickable&>(control).Checked() ? "checked" : "unchecked";
}

// The captions of a menu are what a user reads there, its ticks are rare; options are read by their ticks.
std::string Shown(const Control& control) {
    const bool byTick = IsTickable(control) && control.Kind() != ControlKind::MenuItem;
    return byTick ? TickWord(control) : control.Text();
}

bool EnabledThroughout(const Control& control) {
    return control.Enabled() && (control.Container() == nullptr || EnabledThroughout(*control.Container()));
}

bool IsNumber(const std::string& text) {
    return text.find_first_of("0123456789") != std::string::npos && ValReadsAll(text);
}

// Equal within half a unit of the sixth digit of the wanted number.
bool EqualToSixDigits(double found, double wanted) {
    if (found == wanted || wanted == 0) return found == wanted;
    constexpr double alittle = 1 + 1e-9;
    const double sixthDigit = std::pow(10, std::floor(std::log10(std::fabs(wanted))) - 5);
    return std::fabs(found - wanted) <= 0.5 * sixthDigit * alittle;
}

std::string Written(Colour colour) {
    char text[8];
    std::snprintf(text, sizeof text, "#%02X%02X%02X", colour & 0xFFU, (colour >> 8U) & 0xFFU,
                  (colour >> 16U) & 0xFFU);
    return text;
}

void RequireColour(const std::string& what, Colour found, const ScriptWord& slotWord) {
    const int slot = WholeNumber(slotWord);
    if (slot < 1 || slot > 12) throw ScriptFailure{"colours have slots 1 to 12"};
    const Colour wanted = Suite.Colours[static_cast<std::size_t>(slot)];
    if (found != wanted) Fail(what, Written(found), Written(wanted));
}

template <typename T>
const T* As(const Control& control, std::initializer_list<ControlKind> kinds) {
    for (const ControlKind kind : kinds) {
        if (control.Kind() == kind) return static_cast<const T*>(&control);
    }
    return nullptr;
}

// The rows of a list, or of the one that a button drops; none for other controls.
std::optional<std::vector<std::string>> RowsOf(const Control& control) {
    if (const auto* list = As<ListBox>(control, {ControlKind::ListBox, ControlKind::ComboBox}))
        return list->Rows();
    const auto* const button = dynamic_cast<const DropButton*>(&control);
    if (button == nullptr) return {};
    std::vector<std::string> rows;
    if (!button->Lines) return rows;
    for (const DropLine& line : button->Lines()) rows.push_back(line.Text);
    return rows;
}

const Grid* AsGrid(const Control& control) { return As<Grid>(control, {ControlKind::Grid}); }

MessageBox TakeUnread(ScriptPlayer& player) {
    if (player.Host.Unread.empty()) throw ScriptFailure{"no message box is unread"};
    MessageBox box = std::move(player.Host.Unread.front());
    player.Host.Unread.pop_front();
    return box;
}

}  // namespace

void Show(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    player.Out << control.FullName() << " = " << OnOneLine(Shown(control)) << '\n';
}

void ShowStatus(ScriptPlayer& player, const Arguments&) {
    player.Out << "status | " << OnOneLine(player.FormInHand().Status()) << '\n';
}

void Dump(ScriptPlayer& player, const Arguments&) {
    const Form& form = player.FormInHand();
    player.Out << form.Name() << " | Form | " << OnOneLine(form.Caption()) << '\n';
    for (const Control* control : form.Controls()) {
        player.Out << control->FullName() << " | " << Word(control->Kind()) << " | "
                   << OnOneLine(control->Text()) << " | "
                   << (EnabledThroughout(*control) ? "enabled" : "disabled") << " | "
                   << (control->Seen() ? "visible" : "hidden") << " | " << Written(control->ForeColour())
                   << " on " << Written(control->BackColour());
        if (IsTickable(*control)) player.Out << " | " << TickWord(*control);
        player.Out << '\n';
    }
}

void ExpectText(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    const std::string& wanted = arguments[1].Text;
    if (IsNumber(control.Text()) && IsNumber(wanted) && EqualToSixDigits(Val(control.Text()), Val(wanted))) {
        return;
    }
    RequireSame(control.FullName(), control.Text(), wanted);
}

void ExpectState(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    const std::string& wanted = arguments[1].Text;
    std::string found;
    if (wanted == "enabled" || wanted == "disabled") {
        found = EnabledThroughout(control) ? "enabled" : "disabled";
    } else if (wanted == "visible" || wanted == "hidden") {
        found = control.Seen() ? "visible" : "hidden";
    } else if (wanted != "checked" && wanted != "unchecked") {
        throw ScriptFailure{wanted + " is no state"};
    } else if (!IsTickable(control)) {
        throw ScriptFailure{control.FullName() + " has no tick"};
    } else {
        found = TickWord(control);
    }
    if (found != wanted) Fail(control.FullName(), found, wanted);
}

void ExpectForm(ScriptPlayer& player, const Arguments& arguments) {
    const bool none = ProcessHasEnded() || player.Host.FormInHand() == nullptr;
    const std::string found = none ? "none" : player.Host.FormInHand()->Name();
    if (!SameName(found, arguments[0].Text)) Fail("the form in hand", found, arguments[0].Text);
}

void ExpectFocus(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    const Control* const found = player.FormInHand().Focus.Current();
    if (found == &control) return;
    Fail("the focus", found == nullptr ? "nowhere" : "on " + found->FullName(), "on " + control.FullName());
}

void ExpectTitle(ScriptPlayer& player, const Arguments& arguments) {
    RequireSame("the title", player.FormInHand().Caption(), arguments[0].Text);
}

void ExpectWindow(ScriptPlayer& player, const Arguments& arguments) {
    RequireSame("the title bar", WindowTitle(player.FormInHand()), arguments[0].Text);
}

void ExpectStatus(ScriptPlayer& player, const Arguments& arguments) {
    RequireSame("the status line", player.FormInHand().Status(), arguments[0].Text);
}

void ExpectTip(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    RequireSame("the tip of " + control.FullName(), control.ToolTip(), arguments[1].Text);
}

void ExpectColour(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    RequireColour("the text colour of " + control.FullName(), control.ForeColour(), arguments[1]);
    if (arguments.size() > 2) {
        RequireColour("the background of " + control.FullName(), control.BackColour(), arguments[2]);
    }
}

void ExpectCount(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    const Grid* const grid = AsGrid(control);
    const auto rows = RowsOf(control);
    if (!rows && grid == nullptr) throw ScriptFailure{control.FullName() + " has no rows"};
    const int found = rows ? static_cast<int>(rows->size()) : grid->RowCount();
    const int wanted = WholeNumber(arguments[1]);
    if (found != wanted) {
        Fail("the number of rows of " + control.FullName(), std::to_string(found), std::to_string(wanted));
    }
}

void ExpectRow(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    const auto rows = RowsOf(control);
    if (!rows) throw ScriptFailure{control.FullName() + " is no list"};
    const int row = WholeNumber(arguments[1]);
    if (row < 0 || row >= static_cast<int>(rows->size())) {
        throw ScriptFailure{control.FullName() + " has " + std::to_string(rows->size()) + " rows"};
    }
    RequireSame("row " + std::to_string(row) + " of " + control.FullName(), (*rows)[At(row)],
                arguments[2].Text);
}

void ExpectCell(ScriptPlayer& player, const Arguments& arguments) {
    const Control& control = player.Named(arguments[0].Text);
    const Grid* const grid = AsGrid(control);
    if (grid == nullptr) throw ScriptFailure{control.FullName() + " is no grid"};
    RequireSame("the cell", grid->Cell(WholeNumber(arguments[1]), WholeNumber(arguments[2])),
                arguments[3].Text);
}

void ExpectMessage(ScriptPlayer& player, const Arguments& arguments) {
    const MessageBox box = TakeUnread(player);
    if (box.Text.find(arguments[0].Text) != std::string::npos) return;
    throw ScriptFailure{"the message is " + InQuotes(box.Text) + " and does not contain " +
                        InQuotes(arguments[0].Text)};
}

void ExpectNoMessage(ScriptPlayer& player, const Arguments&) {
    if (player.Host.Unread.empty()) return;
    throw ScriptFailure{"a box is unread: " + InQuotes(player.Host.Unread.front().Text)};
}

void ExpectBox(ScriptPlayer& player, const Arguments& arguments) {
    const MessageBox box = TakeUnread(player);
    RequireSame("the title", box.Title, arguments[0].Text);
    RequireSame("the text", box.Text, arguments[1].Text);
    struct Word {
        const char* What;
        const char* Found;
    };
    const Word words[] = {{"the row of buttons", quillmetra::Word(box.Choice)},
                          {"the icon", quillmetra::Word(box.Sign)},
                          {"the default", quillmetra::Word(DefaultAnswer(box))}};
    for (std::size_t i = 2; i < arguments.size(); ++i) {
        const Word& word = words[i - 2];
        if (!SameName(word.Found, arguments[i].Text)) Fail(word.What, word.Found, arguments[i].Text);
    }
}

}  // namespace quillmetra::script
