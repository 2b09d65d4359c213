// The palette of the whole program, made from the twelve slots: what the model does not paint (menus,
// buttons, boxes of the system, tool tips) goes with what it does.
#pragma once

#include <QPalette>

namespace quillmetra {

// Roles that the suite's style gives a meaning of its own.
namespace role {
inline constexpr QPalette::ColorRole Border = QPalette::Mid;         // of boxes
inline constexpr QPalette::ColorRole HairLine = QPalette::Midlight;  // between areas
}  // namespace role

QPalette SchemePalette();

// Gives the program the palette of the slots, when they have changed since the last call.
void FollowScheme();

}  // namespace quillmetra
