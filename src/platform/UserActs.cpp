// See UserActs.h.
#include "platform/UserActs.h"

#include <algorithm>

#include "platform/Dialogs.h"
#include "platform/Events.h"
#include "platform/Forms.h"
#include "platform/Keys.h"
#include "platform/TextCase.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {

void (*ShowHelpOf)(const Form& form) = nullptr;

void ClickInHandler(Control& control) {
    Form& form = control.Owner();
    if (control.TabStop) form.Focus.UserMoves(control);
    if (!CanAct(control)) return;  // what was left may have switched this off, or closed the form
    switch (control.Kind()) {
        case ControlKind::OptionButton: {
            auto& option = static_cast<OptionButton&>(control);
            if (option.Checked()) return;
            option.SetChecked(true);
            break;
        }
        case ControlKind::CheckBox: {
            auto& box = static_cast<CheckBox&>(control);
            box.SetChecked(!box.Checked());
            break;
        }
        default: break;
    }
    if (control.Click) control.Click();
}

bool IsOneCharacter(const std::string& key) { return CharacterCount(key) == 1; }

// Opens the heads over an entry from the top, as a user does on the way to it; false when one of them put
// up a box instead of its entries.
bool OpenHeadsOf(MenuItem& entry) {
    auto* const head = static_cast<MenuItem*>(entry.Container());
    return head == nullptr || (OpenHeadsOf(*head) && OpenMenu(*head));
}

// The entry itself may still be off: a head's Click decides about that.
bool HeadsWork(const Control& entry) { return entry.Container() != nullptr && CanAct(*entry.Container()); }

char AccessKey(const std::string& caption) {
    const std::size_t mark = caption.find('&');
    return mark == std::string::npos || mark + 1 >= caption.size() ? '\0' : LowerCase(caption[mark + 1]);
}

bool IsKeyOf(const Control& control, const std::string& key) {
    return control.Kind() == ControlKind::Label && control.Seen() &&
           AccessKey(control.Caption()) == LowerCase(key.back());
}

// The key of a label leads to the first control that it names, and presses a button.
bool EnterBeside(Form& form, const Control& label) {
    for (Control* control : form.Controls()) {
        if (control->LabelControl() != &label || !control->TabStop || !CanAct(*control)) continue;
        const bool isButton = control->Kind() == ControlKind::CommandButton;
        return isButton ? ClickControl(*control) : MoveFocus(*control);
    }
    return false;
}

// Copying and pasting in a box is the box's own, whatever entry has the same keys.
bool IsOwnOfBox(const Control& control, const std::string& key) {
    static constexpr const char* own[] = {keys::Copy, keys::Cut, keys::Paste};
    const auto isKey = [&](const char* each) { return SameName(key, each); };
    return control.Kind() == ControlKind::TextBox && std::any_of(std::begin(own), std::end(own), isKey);
}

bool PressShortcut(Form& form, const std::string& key) {
    const bool access = key.size() == 5 && key.starts_with(keys::Alt);
    for (Control* control : form.Controls()) {
        const bool isMenu = control->Kind() == ControlKind::MenuItem;
        if (isMenu && SameName(static_cast<MenuItem*>(control)->Shortcut, key)) return ClickControl(*control);
        if (access && !isMenu && control->Click && AccessKey(control->Caption()) == LowerCase(key[4]) &&
            CanAct(*control)) {
            return ClickControl(*control);
        }
        if (access && IsKeyOf(*control, key)) return EnterBeside(form, *control);
    }
    if (key != keys::Help || ShowHelpOf == nullptr) return false;
    form.Dispatch([&] { ShowHelpOf(form); });
    return true;
}

bool MoveInList(ListBox& list, const std::string& key) {
    constexpr int page = 10;
    const int row = list.Selected();
    int wanted = row;
    if (key == keys::Up) wanted = row - 1;
    if (key == keys::Down) wanted = row + 1;
    if (key == keys::PageUp) wanted = row - page;
    if (key == keys::PageDown) wanted = row + page;
    wanted = std::clamp(wanted, 0, std::max(0, list.RowCount() - 1));
    return wanted != row && PickRow(list, wanted);
}

bool MoveInGrid(Grid& grid, const std::string& key) {
    int row = std::max(grid.Selected(), grid.FixedRows - 1);
    if (key == keys::Up) --row;
    if (key == keys::Down) ++row;
    const bool moves = (key == keys::Up || key == keys::Down) && row >= grid.FixedRows;
    return moves && MoveToCell(grid, row, std::max(grid.SelectedColumn(), grid.FixedColumns));
}

// The arrows go round the options of a frame and choose.
bool MoveInOptions(Control& option, const std::string& key) {
    const bool on = key == keys::Down || key == keys::Right;
    if (!on && key != keys::Up && key != keys::Left) return false;
    std::vector<Control*> options = option.Owner().Controls();
    std::erase_if(options, [&](const Control* each) {
        return each->Kind() != ControlKind::OptionButton || each->Container() != option.Container() ||
               (each != &option && !CanAct(*each));
    });
    if (!on) std::reverse(options.begin(), options.end());
    auto next = std::next(std::find(options.begin(), options.end(), &option));
    if (next == options.end()) next = options.begin();
    return *next != &option && MoveFocus(**next) && ClickControl(**next);
}

bool EditByKey(TextBox& box, const std::string& key) {
    if (key == keys::Delete) return TypeText(box, "");
    if (key == keys::Backspace) return TypeText(box, WithoutLastCharacter(box.Text()));
    return IsOneCharacter(key) && TypeText(box, box.Text() + key);
}

// Whole, where a toolkit's box goes back by and by.
bool UndoTyping(Control& box) {
    const std::string* const before = events::TypedOver(box);
    return before != nullptr && TypeText(box, std::string(*before));
}

bool PressEnter(Control& control) {
    Form& form = control.Owner();
    if (control.Kind() == ControlKind::CommandButton) return ClickControl(control);
    if (control.Kind() == ControlKind::Grid) {
        auto& grid = static_cast<Grid&>(control);
        return PickCell(grid, grid.Selected(), grid.SelectedColumn());
    }
    return PressKey(form, keys::Enter);
}

bool PressPlainKey(Control& control, const std::string& key) {
    if (key == keys::Enter) return PressEnter(control);
    if (key == keys::Escape || key == keys::Tab || key == keys::BackTab)
        return PressKey(control.Owner(), key);
    switch (control.Kind()) {
        case ControlKind::TextBox: return EditByKey(static_cast<TextBox&>(control), key);
        case ControlKind::ListBox:
        case ControlKind::ComboBox: return MoveInList(static_cast<ListBox&>(control), key);
        case ControlKind::Grid: return MoveInGrid(static_cast<Grid&>(control), key);
        case ControlKind::OptionButton:
            if (MoveInOptions(control, key)) return true;
            [[fallthrough]];
        case ControlKind::CommandButton:
        case ControlKind::CheckBox: return key == " " && ClickControl(control);
        default: return false;
    }
}

}  // namespace

bool CanAct(const Control& control) { return control.Works() && TakesInput(control.Owner()); }

bool MoveFocus(Control& control) {
    if (!CanAct(control)) return false;
    Form& form = control.Owner();
    form.Dispatch([&] { form.Focus.UserMoves(control); });
    return true;
}

void LeaveFocus(Form& form) {
    if (TakesInput(form)) form.Dispatch([&] { form.Focus.UserLeaves(); });
}

void MoveAlong(Form& form, bool backwards) {
    std::vector<Control*> stops = form.TabStops();
    if (backwards) std::reverse(stops.begin(), stops.end());
    std::erase_if(stops, [&](Control* stop) { return stop != form.Focus.Current() && !CanAct(*stop); });
    if (stops.empty()) return;
    auto next = std::find(stops.begin(), stops.end(), form.Focus.Current());
    if (next != stops.end()) ++next;
    if (next == stops.end()) next = stops.begin();
    MoveFocus(**next);
}

bool TypeText(Control& control, const std::string& text) {
    if (!CanAct(control)) return false;
    if (control.Kind() == ControlKind::ComboBox) {
        control.Owner().Dispatch([&] { static_cast<ComboBox&>(control).SetText(text); });
        return true;
    }
    if (control.Kind() != ControlKind::TextBox) return false;
    auto& box = static_cast<TextBox&>(control);
    if (box.Locked) return false;
    box.Owner().Dispatch([&] {
        const std::string before = box.Text();
        const std::string typed = box.MaxLength == 0 ? text : FirstCharacters(text, box.MaxLength);
        events::NoteTyping(box, before, typed);
        box.SetText(typed);
    });
    return true;
}

bool ClickControl(Control& control) {
    const FormHold hold(control.Owner());
    if (control.Kind() == ControlKind::MenuItem && HeadsWork(control)) {
        const int boxes = BoxesShown();
        OpenHeadsOf(static_cast<MenuItem&>(control));
        if (boxes != BoxesShown()) return true;
    }
    if (!CanAct(control)) return false;
    control.Owner().Dispatch([&] { ClickInHandler(control); });
    return true;
}

bool DoubleClickControl(Control& control) {
    if (!CanAct(control)) return false;
    control.Owner().Dispatch([&] {
        ClickInHandler(control);
        if (control.DoubleClick && CanAct(control)) control.DoubleClick();
    });
    return true;
}

bool OpenMenu(MenuItem& head) {
    if (!CanAct(head)) return false;
    const int boxes = BoxesShown();
    if (head.Click) head.Owner().Dispatch([&] { head.Click(); });
    return boxes == BoxesShown();
}

bool PickRow(ListBox& list, int row) {
    if (!CanAct(list) || row < 0 || row >= list.RowCount()) return false;
    list.Owner().Dispatch([&] {
        list.Owner().Focus.UserMoves(list);
        if (!CanAct(list)) return;
        if (list.Multiple) {
            list.Pick(row, true);
        } else if (row == list.Selected()) {
            if (list.Click) list.Click();
        } else {
            list.Select(row);
        }
    });
    return true;
}

bool UnpickRow(ListBox& list, int row) {
    if (!CanAct(list) || !list.Multiple || row < 0 || row >= list.RowCount()) return false;
    list.Owner().Dispatch([&] { list.Pick(row, false); });
    return true;
}

bool PickCell(Grid& grid, int row, int column) {
    if (!CanAct(grid) || row < 0 || row >= grid.RowCount() || column < 0 || column >= grid.ColumnCount()) {
        return false;
    }
    grid.Owner().Dispatch([&] {
        grid.Owner().Focus.UserMoves(grid);
        if (CanAct(grid) && row < grid.RowCount() && column < grid.ColumnCount()) grid.Select(row, column);
    });
    return true;
}

bool MoveToCell(Grid& grid, int row, int column) {
    if (!CanAct(grid) || row < 0 || row >= grid.RowCount() || column < 0 || column >= grid.ColumnCount()) {
        return false;
    }
    grid.Owner().Dispatch([&] { grid.IsList ? grid.Select(row, column) : grid.Preselect(row, column); });
    return true;
}

bool PickRows(Grid& grid, const std::vector<int>& rows, int row) {
    const auto isRow = [&](int each) { return each >= grid.FixedRows && each < grid.RowCount(); };
    if (!grid.IsList || !CanAct(grid) || !isRow(row) || !std::all_of(rows.begin(), rows.end(), isRow))
        return false;
    grid.Owner().Dispatch([&] {
        grid.Owner().Focus.UserMoves(grid);
        if (CanAct(grid) && row < grid.RowCount()) grid.PickRows(rows, row);
    });
    return true;
}

namespace {
bool IsCell(const Grid& grid, int row, int column) {
    return row >= grid.FixedRows && row < grid.RowCount() && !grid.IsHidden(row) &&
           column >= grid.FixedColumns && column < grid.ColumnCount();
}
}  // namespace

bool PickRange(Grid& grid, int fromRow, int fromColumn, int row, int column) {
    if (!CanAct(grid) || !IsCell(grid, fromRow, fromColumn) || !IsCell(grid, row, column)) return false;
    grid.Owner().Dispatch([&] {
        grid.Owner().Focus.UserMoves(grid);
        if (CanAct(grid) && IsCell(grid, row, column)) grid.PickRange(fromRow, fromColumn, row, column);
    });
    return true;
}

bool TypeInCell(Grid& grid, int row, int column, const std::string& text) {
    if (!grid.CellTyped || !CanAct(grid) || !IsCell(grid, row, column)) return false;
    grid.Owner().Dispatch([&] {
        grid.Owner().Focus.UserMoves(grid);
        if (!CanAct(grid) || !IsCell(grid, row, column)) return;
        if (grid.Draft && (grid.Draft->Row != row || grid.Draft->Column != column)) grid.TakeDraft();
        if (row != grid.Selected() || column != grid.SelectedColumn()) grid.Preselect(row, column);
        grid.Draft = {row, column, text};
    });
    return true;
}

bool EndCell(Grid& grid, bool take) {
    if (!grid.Draft || !CanAct(grid)) return false;
    grid.Owner().Dispatch([&] { take ? grid.TakeDraft() : grid.Draft.reset(); });
    return true;
}

bool DropFile(Form& form, const std::string& file) {
    if (!form.FileDropped || !TakesInput(form)) return false;
    form.Dispatch([&] { form.FileDropped(file); });
    return true;
}

bool OfferKey(Control& control, const std::string& key) {
    if (!control.KeyPress || !CanAct(control)) return false;
    const FormHold hold(control.Owner());
    Key press{.Name = key};
    control.Owner().Dispatch([&] { control.KeyPress(press); });
    return press.Handled;
}

bool PressKey(Control& control, const std::string& key) {
    const FormHold hold(control.Owner());
    if (OfferKey(control, key)) return true;
    if (!CanAct(control)) return false;
    if (IsOwnOfBox(control, key)) return false;
    if (SameName(key, keys::Undo) && UndoTyping(control)) return true;
    return PressShortcut(control.Owner(), key) || PressPlainKey(control, key);
}

void SetHelpKey(void (*show)(const Form& form)) { ShowHelpOf = show; }

bool PressKey(Form& form, const std::string& key) {
    const FormHold hold(form);
    const bool enter = key == keys::Enter;
    CommandButton* const button = enter                 ? form.DefaultButton
                                  : key == keys::Escape ? form.CancelButton
                                                        : nullptr;
    if (button != nullptr && CanAct(*button)) return ClickControl(*button);
    if (PressShortcut(form, key)) return true;
    const bool moves = key == keys::Tab || key == keys::BackTab || (enter && form.EnterMovesOn);
    if (moves) MoveAlong(form, key == keys::BackTab);
    return moves;
}

void CloseWindow(Form& form) {
    if (TakesInput(form)) form.Dispatch([&] { form.CloseBox(); });
}

}  // namespace quillmetra
