// From a bare process to a running record browser: version text, default paths, colours, and the small text
// files of settings. Every file read here has a built-in fallback, so that a first run without any starts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

namespace quillmetra {

// The twelve colours in force when no colour file is found, slot 1 first, 0x00BBGGRR.
extern const std::array<std::uint32_t, 12> DefaultColours;

// The folder of the program: the executable's own when it holds TRData (portable use), else the folder of
// the user's application data.
std::string ProgramFolder();

// Copies every shipped file that is absent from its place below the program's folder. A file that exists is
// never touched, and what cannot be copied is left out without a word.
void SeedShippedData(const std::string& programFolder);

// Fixes the version text and runs Boot with the given program folder.
void StartUp(const std::string& programFolder);

// Colours, default paths, help file, then the browser.
void Boot(const std::string& programFolder);

// Reads the default paths from TRDRV.txt of the program's folder; false when the file is missing or short,
// with the paths left as they were.
bool ReadDefaultPaths();

// Reads up to seven lines of TRHDG.txt into HeadingText; a file error ends it with what was read.
void LoadHeadings();

// Writes the lines of HeadingText from the first, at most 12, to TRHDG.txt. Throws a RuntimeError where they
// cannot be written.
void SaveHeadings(std::size_t lines = 10);

// Reads TRSTP.TXT: standard temperature (degF), standard pressure (psia), barometric pressure (psia), in
// this order, and replaces what is missing by 60, 14.7 and 14.7. A file that cannot be opened changes
// nothing.
void ReadStandardConditions();

// Gives a standard condition that is missing its usual value: a standard pressure not above zero becomes the
// usual one (psia), a barometer not above zero 14.7 psia, a temperature of exactly zero 60 degF.
void RestoreStandardConditions(double usualPressure = 14.7);

// Writes TRSTP.TXT: standard pressure, standard temperature, barometric pressure, then the three words that
// hide messages. Pressure and temperature stand in the other order than they are read: a deliberate
// oddity of the format. The write goes to the data files' folder and the read comes from the user units'.
// A failure is ignored.
void SaveStandardConditions();

}  // namespace quillmetra
