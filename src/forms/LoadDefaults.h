// What a fresh calculation starts from: the user's units, the printout headings, the standard conditions.
#pragma once

namespace quillmetra {

// Run by the browser's load and by the program selector whenever a new calculation begins.
void LoadDefaults();

}  // namespace quillmetra
