// The file that a picture of a plot is saved to.
#pragma once

#include <functional>
#include <string>

#include "platform/Form.h"

namespace quillmetra {

// Asks for a file with an ending, as "png", writes the bytes made for it, and tells the file in the status
// line of the form. No file of the suite is written over; a failure is told.
void SavePicture(Form& form, const std::string& ending, const std::function<std::string()>& bytes);

}  // namespace quillmetra
