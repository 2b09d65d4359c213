// The commands that do what a user does. All of it goes through UserActs.h; here is only how a script names
// it, and why an act was refused.
#include <algorithm>
#include <array>

#include "platform/DropButton.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/TextCase.h"
#include "platform/UserActs.h"
#include "script/ScriptCommands.h"
#include "script/ScriptFailure.h"
#include "script/ScriptPlayer.h"

namespace quillmetra::script {

namespace {

constexpr const char* Browser = "frmTRProg";

// Why a form takes no input; empty when it does.
std::string WhyInert(const Form& form) {
    const Form* const modal = TopModalForm();
    if (ProcessHasEnded()) return "the suite has ended";
    if (!form.Visible()) return form.Name() + " is not shown";
    if (modal != nullptr && modal != &form) return form.Name() + " waits for " + modal->Name();
    if (!form.Enabled()) return form.Name() + " takes no input at present";
    return {};
}

void RequireAct(const Control& control) {
    if (CanAct(control)) return;
    const std::string inert = WhyInert(control.Owner());
    if (!inert.empty()) throw ScriptFailure{inert};
    throw ScriptFailure{control.FullName() + (control.Seen() ? " is disabled" : " is hidden")};
}

// A user cannot type into a box that the form takes the focus away from.
void GoTo(Control& control) {
    RequireAct(control);
    const Form& form = control.Owner();
    if (form.Focus.Current() == &control) return;
    const std::string name = control.FullName();
    const FormHold hold(control.Owner());
    MoveFocus(control);
    RequireAct(control);
    if (form.Focus.Current() == &control) return;
    const Control* const other = form.Focus.Current();
    throw ScriptFailure{"the focus did not stay on " + name +
                        (other == nullptr ? "" : ", " + other->FullName() + " has it")};
}

void ClickNamed(ScriptPlayer& player, const std::string& name) {
    Control& control = player.Named(name);
    const bool isEntry = control.Kind() == ControlKind::MenuItem;
    // The head of a menu decides about its entries as it opens, so an entry is not judged before.
    if (!isEntry) RequireAct(control);
    const FormHold hold(control.Owner());
    if (!ClickControl(control)) RequireAct(control);
}

ListBox& NamedList(ScriptPlayer& player, const std::string& name) {
    Control& control = player.Named(name);
    if (control.Kind() != ControlKind::ListBox && control.Kind() != ControlKind::ComboBox) {
        throw ScriptFailure{control.FullName() + " is no list"};
    }
    RequireAct(control);
    return static_cast<ListBox&>(control);
}

// A row by its number, or the first that starts with a text.
int FindRow(const std::string& list, const std::vector<std::string>& rows, const ScriptWord& word) {
    const bool isNumber =
        !word.Quoted && !word.Text.empty() && word.Text.find_first_not_of("0123456789") == std::string::npos;
    if (isNumber) {
        const int row = WholeNumber(word);
        if (static_cast<std::size_t>(row) < rows.size()) return row;
        throw ScriptFailure{list + " has " + std::to_string(rows.size()) + " rows"};
    }
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const std::string& row) { return row.starts_with(word.Text); });
    if (found != rows.end()) return static_cast<int>(found - rows.begin());
    throw ScriptFailure{"no row of " + list + " starts with " + word.Text};
}

// A line of the list that a button drops is taken by the name of the button.
bool PickDropLine(Control& control, const ScriptWord& word) {
    auto* const button = dynamic_cast<DropButton*>(&control);
    if (button == nullptr) return false;
    RequireAct(control);
    const FormHold hold(control.Owner());
    std::vector<std::string> rows;
    for (const DropLine& line : OpenDropList(*button)) rows.push_back(line.Text);
    TakeDropLine(*button, FindRow(control.FullName(), rows, word));
    return true;
}

// A key as Keys.h names it: one character or the name of a key, with modifiers in front.
bool IsKey(std::string key) {
    for (const char* modifier : {keys::Ctrl, keys::Alt, keys::Shift}) {
        if (key.size() > std::string_view(modifier).size() && key.starts_with(modifier)) {
            key.erase(0, std::string_view(modifier).size());
        }
    }
    if (std::find(keys::Named.begin(), keys::Named.end(), key) != keys::Named.end()) return true;
    const auto starts = std::count_if(
        key.begin(), key.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; });
    return starts == 1;
}

}  // namespace

void RequireBrowser(const ScriptPlayer& player) {
    const Form& form = player.FormInHand();
    if (SameName(form.Name(), Browser)) return;
    throw ScriptFailure{"this starts at the record browser, and the form in hand is " + form.Name()};
}

void NewCalculation(ScriptPlayer& player, const Arguments& arguments) {
    const int number = WholeNumber(arguments[0]);
    if (number < 1 || number > 5) throw ScriptFailure{"programs are numbered 1 to 5"};
    RequireBrowser(player);
    player.Then([&player, number] { ClickNamed(player, "optProgram(" + std::to_string(number) + ")"); });
    player.Then([&player] { ClickNamed(player, "cmdOK"); });
    ClickNamed(player, "cmdOK");
}

void OpenCalculation(ScriptPlayer& player, const Arguments& arguments) {
    const std::string tag = arguments[0].Text;
    RequireBrowser(player);
    if (!CanAct(player.Named("cmdFind"))) ClickNamed(player, "cmdDBOpen");
    player.Then([&player, tag] { Type(player, {{"txtFind"}, {tag, true}}); });
    player.Then([&player] { ClickNamed(player, "cmdFind"); });
    player.Then([&player, tag] {
        if (!SameName(player.Named("txtTagNum").Text(), tag)) {
            throw ScriptFailure{"no calculation has the tag " + tag};
        }
        ClickNamed(player, "cmdDisplayCalc");
    });
    ClickNamed(player, "cmdFind");
}

void Type(ScriptPlayer& player, const Arguments& arguments) {
    Control& control = player.Named(arguments[0].Text);
    const bool isBox = control.Kind() == ControlKind::TextBox;
    if (!isBox && control.Kind() != ControlKind::ComboBox) {
        throw ScriptFailure{control.FullName() + " is no box to type in"};
    }
    if (isBox && static_cast<TextBox&>(control).Locked)
        throw ScriptFailure{control.FullName() + " is locked"};
    GoTo(control);
    TypeText(control, arguments[1].Text);
}

void Click(ScriptPlayer& player, const Arguments& arguments) { ClickNamed(player, arguments[0].Text); }

void DoubleClick(ScriptPlayer& player, const Arguments& arguments) {
    Control& control = player.Named(arguments[0].Text);
    RequireAct(control);
    DoubleClickControl(control);
}

void Pick(ScriptPlayer& player, const Arguments& arguments) {
    if (PickDropLine(player.Named(arguments[0].Text), arguments[1])) return;
    ListBox& list = NamedList(player, arguments[0].Text);
    PickRow(list, FindRow(list.FullName(), list.Rows(), arguments[1]));
}

void Unpick(ScriptPlayer& player, const Arguments& arguments) {
    ListBox& list = NamedList(player, arguments[0].Text);
    if (!list.Multiple) throw ScriptFailure{list.FullName() + " takes one row only"};
    UnpickRow(list, FindRow(list.FullName(), list.Rows(), arguments[1]));
}

namespace {
Grid& NamedGrid(ScriptPlayer& player, const std::string& name) {
    Control& control = player.Named(name);
    if (control.Kind() != ControlKind::Grid) throw ScriptFailure{control.FullName() + " is no grid"};
    RequireAct(control);
    return static_cast<Grid&>(control);
}
}  // namespace

void ClickRow(ScriptPlayer& player, const Arguments& arguments) {
    Grid& grid = NamedGrid(player, arguments[0].Text);
    const int row = WholeNumber(arguments[1]);
    const int column = arguments.size() > 2 ? WholeNumber(arguments[2])
                                            : std::min(grid.FixedColumns, grid.ColumnCount() - 1);
    if (!PickCell(grid, row, column)) {
        throw ScriptFailure{grid.FullName() + " has " + std::to_string(grid.RowCount()) + " rows of " +
                            std::to_string(grid.ColumnCount()) + " columns"};
    }
}

// Rows that follow one another, as with the Shift key; the last is in hand.
void ClickRows(ScriptPlayer& player, const Arguments& arguments) {
    Control& control = player.Named(arguments[0].Text);
    if (control.Kind() != ControlKind::Grid || !static_cast<Grid&>(control).IsList)
        throw ScriptFailure{control.FullName() + " takes one row only"};
    RequireAct(control);
    std::vector<int> rows;
    const int last = WholeNumber(arguments[2]);
    for (int row = WholeNumber(arguments[1]); row <= last; ++row) rows.push_back(row);
    if (!PickRows(static_cast<Grid&>(control), rows, last))
        throw ScriptFailure{control.FullName() + " has no such rows"};
}

void TypeCell(ScriptPlayer& player, const Arguments& arguments) {
    Grid& grid = NamedGrid(player, arguments[0].Text);
    if (!TypeInCell(grid, WholeNumber(arguments[1]), WholeNumber(arguments[2]), arguments[3].Text))
        throw ScriptFailure{grid.FullName() + " has no such cell to type in"};
    EndCell(grid, true);
}

void PickCells(ScriptPlayer& player, const Arguments& arguments) {
    Grid& grid = NamedGrid(player, arguments[0].Text);
    if (!PickRange(grid, WholeNumber(arguments[1]), WholeNumber(arguments[2]), WholeNumber(arguments[3]),
                   WholeNumber(arguments[4])))
        throw ScriptFailure{grid.FullName() + " has no such cells"};
}

void Copied(ScriptPlayer& player, const Arguments& arguments) { player.Host.Copied = arguments[0].Text; }

void CloseForm(ScriptPlayer& player, const Arguments&) {
    Form& form = player.FormInHand();
    const std::string inert = WhyInert(form);
    if (!inert.empty()) throw ScriptFailure{inert};
    CloseWindow(form);
}

void Press(ScriptPlayer& player, const Arguments& arguments) {
    const std::string& key = arguments[1].Text;
    if (!IsKey(key)) throw ScriptFailure{key + " is no key"};
    Control& control = player.Named(arguments[0].Text);
    const FormHold hold(control.Owner());
    GoTo(control);
    PressKey(control, key);
}

void Focus(ScriptPlayer& player, const Arguments& arguments) { GoTo(player.Named(arguments[0].Text)); }

void Leave(ScriptPlayer& player, const Arguments&) {
    Form& form = player.FormInHand();
    const std::string inert = WhyInert(form);
    if (!inert.empty()) throw ScriptFailure{inert};
    LeaveFocus(form);
}

}  // namespace quillmetra::script
