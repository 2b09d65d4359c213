// The forms of the suite, in one table.
#pragma once

#include <string_view>
#include <vector>

namespace quillmetra {

// Registers the factory of every form, and what follows each act of the user. Hosts and tests call it once
// before StartUp; calling it again does no harm.
void RegisterForms();

// The names of all forms.
std::vector<std::string_view> FormNames();

// Whether the suite has a form of this name.
bool IsFormKnown(std::string_view name);

}  // namespace quillmetra
