// What the title bar of a form's window says.
#pragma once

#include <string>

#include "platform/Form.h"

namespace quillmetra {

// The caption; on a calculation form after the tag, with "*" while it has changes that are not saved.
std::string WindowTitle(const Form& form);

}  // namespace quillmetra
