// What a user can do to a form, the same for every host: the widget that was clicked and the line of a
// script both end here. Each act runs through Form::Dispatch, and each does nothing and returns false when
// the control does not work or its form takes no input.
#pragma once

#include <string>
#include <vector>

#include "platform/Form.h"

namespace quillmetra {

bool CanAct(const Control& control);

// The focus goes to the control as by Tab or by the mouse.
bool MoveFocus(Control& control);
// The focus leaves the control that has it.
void LeaveFocus(Form& form);
// The focus goes to the next or previous tab stop that works.
void MoveAlong(Form& form, bool backwards);

// The text of a box as it stands after one keystroke of the user, or after all of them.
bool TypeText(Control& control, const std::string& text);
// Buttons, options, check boxes, menu entries and labels. A button takes the focus first.
bool ClickControl(Control& control);
bool DoubleClickControl(Control& control);
// Runs the Click of a menu head; false when it put up a box, so that its entries do not show.
bool OpenMenu(MenuItem& head);
bool PickRow(ListBox& list, int row);
bool UnpickRow(ListBox& list, int row);
bool PickCell(Grid& grid, int row, int column);
// Several rows of a list with columns, and the one of them that is in hand.
bool PickRows(Grid& grid, const std::vector<int>& rows, int row);
// The cell in hand goes elsewhere by the arrow keys; Enter then picks it. In a list with columns the row is
// picked.
bool MoveToCell(Grid& grid, int row, int column);
// Cells from one to another, which is then in hand.
bool PickRange(Grid& grid, int fromRow, int fromColumn, int row, int column);
// The text of a cell as it stands after one keystroke, or after all of them; and the end of the typing, which
// takes it or leaves the cell as it was.
bool TypeInCell(Grid& grid, int row, int column, const std::string& text);
bool EndCell(Grid& grid, bool take);

// The control's own KeyPress alone, for a host whose widgets edit by themselves. True when used up.
bool OfferKey(Control& control, const std::string& key);
// One key: the control's KeyPress first, then Enter and Escape by the form's rules. True when used up.
bool PressKey(Control& control, const std::string& key);
// One key while no control can have the focus: Tab goes on, Enter and Escape press the form's buttons,
// and F1 and access keys work.
bool PressKey(Form& form, const std::string& key);

void CloseWindow(Form& form);
// A file of another program that the user lets fall on the window, in the suite's words; false where a form
// has no use for one.
bool DropFile(Form& form, const std::string& file);

// What F1 does on a form without a menu entry for it.
void SetHelpKey(void (*show)(const Form& form));

}  // namespace quillmetra
