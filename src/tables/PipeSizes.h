// The pipe size lookup: finds the rows of a family of pipe for a nominal size, in inches or in millimetres by
// the unit of the pipe's diameter, and returns the chosen row to the form that asked. The family in hand is
// Suite.PipeFamily, W-PIPE.TXT until another one is chosen.
//
// The form that opens it puts its own word into MessageText (words::PipeLiquidLoss and its like).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmetra {

// Unit rows that the lookup works with.
namespace pipeunit {
// The form's unit of the diameter, in per unit.
inline constexpr std::size_t Diameter = 18;
// Inches of nominal size in a listed one; its name is "in" or "mm".
inline constexpr std::size_t PipeSizeRound = 31;
// Inches in the list's unit of diameter and wall.
inline constexpr std::size_t PipeSizeFactor = 32;
// Added before a listed size is cut to a whole number; may be 0.
inline constexpr std::size_t PipeSizeOffset = 33;
}  // namespace pipeunit

// Sets the lookup's unit rows from the unit of the diameter.
void SetPipeUnits();

// The same, and shows the dialog; returns when it is closed.
void PreparePipeUnits();

// What can be looked up in the folder of the tables: W-PIPE.TXT, the other families of the suite that are
// there, and what else is named W-*.TXT, which goes by the name of its file.
struct PipeFile {
    std::string File, Name, Note;
};
std::vector<PipeFile> PipeFiles();

// The file in hand.
std::string PipeFamilyFile();

// The list for a nominal size as typed, in the lookup's unit: the rows of the largest size of the table that
// is not above it, as "size,schedule,inside diameter,wall," in columns. Empty when there is none. Failures
// are those of ReadTable.
std::vector<std::string> FindPipeSizes(std::string_view nominalSize);

// The rows of all sizes of the family in hand, in the same form and in the order of the file.
std::vector<std::string> AllPipeSizes();

// The inside diameter of a line of that list as the form takes it: in its unit, to six significant figures.
double PipeDiameterOf(std::string_view listLine);

// Takes diameter and wall of a line of that list into the record, in the list's unit.
void TakePipeRow(std::string_view listLine);

// What the pipe of such a line is called: "6 in sch 40", "2 in K copper", with the word of its family where
// that is not steel.
std::string PipeNameOf(std::string_view listLine);

// A line of the list by the name of its pipe, in whatever family and in inches or millimetres as the name has
// it; the lookup then has that family and these units. Empty for a name that no pipe has.
std::string TakePipeNamed(std::string_view name);

// Returns the row taken to the form that MessageText names, in the form's unit of the diameter: the diameter
// to six significant figures, the wall, where the form has a box for it, to four. Closes the dialog and
// clears MessageText. The record keeps the name of the pipe. Throws when the form's factor makes the diameter
// infinite.
void ReturnPipeSize(const std::string& pipeName = {});

// Closes the dialog and leaves the caller as it was.
void CancelPipeSize();

}  // namespace quillmetra
