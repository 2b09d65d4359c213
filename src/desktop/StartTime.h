// How long the program takes from its start to its first picture.
#pragma once

namespace quillmetra {

// Prints the milliseconds from the start of the process to the first paint of a window, and ends the
// process.
void PrintFirstPaintAndEnd();

}  // namespace quillmetra
