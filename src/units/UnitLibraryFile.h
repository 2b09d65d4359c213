// The user's unit library: the file TRLib.TXT in the folder of data files (DefaultPaths[4]). Lists 0 to 20,
// lines 1 to 10 of each: the name on a line, the factor on the next, both blank where there is no unit; 420
// lines. It is written only by WriteUnitLibrary, so never without the user's word.
#pragma once

namespace quillmetra {

inline constexpr const char* DefaultLibraryName = "Default Library";
inline constexpr const char* UserLibraryName = "User Library";

// Loads the user's library; the default one when the file is missing or cut. UnitLibraryName tells which.
// PressureStem is rebuilt from list 5. A factor that is no usable number reads as 0, which no selection
// accepts; a name keeps its first eight characters. True for the user's library.
bool ReadUnitLibrary();

// Loads a library unless one is in force, with the operating pressures as the record has them.
void PrepareUnitLibrary();

// Writes the library in force, whole or not at all, and names it the user's. False when it cannot be written.
bool WriteUnitLibrary();

// Deletes the file and loads the default library. False, with nothing changed, when it cannot be deleted.
bool DeleteUnitLibraryFile();

// Puts the default library in force; the file stays.
void UseDefaultLibrary();

}  // namespace quillmetra
