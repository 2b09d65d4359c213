// The most letters that the database keeps of a text: the size of its field, and the limit of the box where
// it is typed.
#pragma once

namespace quillmetra::longest {

inline constexpr int Tag = 30;
inline constexpr int Fluid = 30;     // the name of the fluid
inline constexpr int Material = 30;  // of the pipe
inline constexpr int Maker = 30;     // manufacturer and model
inline constexpr int Name = 15;      // calculated by, approved by
inline constexpr int Note = 60;
inline constexpr int ProgramTitle = 60;
inline constexpr int ExtraName = 20;
inline constexpr int ExtraValue = 255;
// Not of the database: a line of the print headings, in the file of the headings.
inline constexpr int Heading = 60;

}  // namespace quillmetra::longest
