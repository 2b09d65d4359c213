// The menu bar of a window, made from the tree of the form's menu entries.
#pragma once

#include <functional>
#include <vector>

#include "desktop/ControlView.h"

class QMenuBar;

namespace quillmetra {

class Form;

// Fills the bar and returns the views of the entries. An entry of the form with others under it is a menu,
// one without is an action on the bar itself. The menus tell when they have closed, by whatever way, so that
// the keyboard goes back to where it was.
std::vector<ControlView*> MakeMenus(const Form& form, QMenuBar& bar, const std::function<void()>& closed);

}  // namespace quillmetra
