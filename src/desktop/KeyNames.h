// The name of a key press as the model knows it.
#pragma once

#include <string>

class QKeyEvent;

namespace quillmetra {

// One character, or a name with its modifiers in front ("Enter", "Shift+Tab", "Ctrl+c"); empty for a key
// that the model has no name for.
std::string NameOfKey(const QKeyEvent& event);

}  // namespace quillmetra
