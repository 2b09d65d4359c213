// Keys by name, as the hosts hand them to the forms: a character stands for itself, every other key has its
// name, and modifiers stand in front ("Shift+Tab", "Ctrl+c").
#pragma once

#include <array>

namespace quillmetra::keys {

inline constexpr const char* Enter = "Enter";
inline constexpr const char* Escape = "Escape";
inline constexpr const char* Tab = "Tab";
inline constexpr const char* BackTab = "Shift+Tab";
inline constexpr const char* Backspace = "Backspace";
inline constexpr const char* Delete = "Delete";
inline constexpr const char* Up = "Up";
inline constexpr const char* Down = "Down";
inline constexpr const char* Left = "Left";
inline constexpr const char* Right = "Right";
inline constexpr const char* PageUp = "PageUp";
inline constexpr const char* PageDown = "PageDown";
inline constexpr const char* Help = "F1";
inline constexpr const char* CalculateAll = "F5";
inline constexpr const char* Copy = "Ctrl+C";
inline constexpr const char* Cut = "Ctrl+X";
inline constexpr const char* Paste = "Ctrl+V";
inline constexpr const char* Undo = "Ctrl+Z";
inline constexpr const char* Redo = "Ctrl+Y";

inline constexpr std::array Named = {Enter, Escape, Tab,    Backspace, Delete, Up,          Down,
                                     Left,  Right,  PageUp, PageDown,  Help,   CalculateAll};

inline constexpr const char* Ctrl = "Ctrl+";
inline constexpr const char* Alt = "Alt+";
inline constexpr const char* Shift = "Shift+";

}  // namespace quillmetra::keys
