// The forms of the suite, in one table.
#pragma once

#include <string_view>

namespace quillmetra {

// Registers the factory of every form, and what follows each act of the user. Hosts and tests call it once
// before StartUp; calling it again does no harm.
void RegisterForms();

// Whether the suite has a form of this name.
bool IsFormKnown(std::string_view name);

}  // namespace quillmetra
