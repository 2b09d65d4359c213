// From a bare process to a running record browser: version text, default paths, colours, and the small text
// files of settings. Every file read here has a built-in fallback, so that a first run without any starts.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "core/PhysicalConstants.h"

namespace quillmetra {

// The twelve colours in force when no colour file is found, slot 1 first, 0x00BBGGRR.
extern const std::array<std::uint32_t, 12> DefaultColours;

// The folder of the program: the executable's own when it holds TRData (portable use), else the folder of
// the user's application data.
std::string ProgramFolder();

// Copies every shipped file that is absent from its place below the program's folder. A file that exists is
// never touched, and what cannot be copied is left out without a word. Where the folder of the tables is made
// anew, its colours are those of the scheme Light.
void SeedShippedData(const std::string& programFolder);

// Fixes the version text and runs Boot with the given program folder.
void StartUp(const std::string& programFolder);

// Colours, default paths, help file, then the browser.
void Boot(const std::string& programFolder);

// Reads the first so many default paths from TRDRV.txt of the program's folder; false when the file is
// missing or short, with the paths left as they were.
bool ReadDefaultPaths(std::size_t count = 4);

// Writes TRDRV.txt, four quoted lines; the first is Suite.ChosenDataPath. Throws, with nothing written, when
// a path cannot be held by such a file.
void SaveDefaultPaths();

// Reads twelve numbers from a colour file into the colours; throws, with nothing changed, when the file is
// missing or short or holds a word. A number is kept as it stands there, though only its 24 bits of colour
// are shown.
void ReadColourFile(const std::string& name);

// Writes TRcolr.txt to the data files' folder, one number a line, slot 1 first.
void SaveColours();

// Reads up to seven lines of TRHDG.txt into HeadingText; a file error ends it with what was read.
void LoadHeadings();

// Reads the lines of TRHDG.txt into their places, the first line at 1, as far as there is room and file.
// Returns how many were read.
std::size_t ReadHeadingLines(std::span<std::string> lines);

// Writes so many lines to TRHDG.txt, the first from place 1. Throws a RuntimeError where they cannot be
// written.
void SaveHeadings(std::span<const std::string> lines, std::size_t count = 10);

// What TRSTP.TXT holds: standard temperature (degF), standard pressure (psia), barometric pressure (psia), in
// this order; 60, 14.7 and 14.7 where it is missing there. None when the file cannot be opened.
struct StandardFile {
    double Temperature = 0, Pressure = 0, Barometer = 0;
};
std::optional<StandardFile> ReadStandardFile();

// Takes them into the record; without the file nothing changes.
void ReadStandardConditions();

// Gives a standard condition that is missing its usual value: a standard pressure not above zero becomes the
// usual one (psia), a barometer not above zero 14.7 psia, a temperature of exactly zero 60 degF.
void RestoreStandardConditions(double usualPressure = Atmosphere);

// Writes TRSTP.TXT: standard pressure, standard temperature, barometric pressure, then the three words that
// hide messages. Pressure and temperature stand in the other order than they are read: a deliberate
// oddity of the format. The write goes to the data files' folder and the read comes from the user units'.
// A failure is ignored.
void SaveStandardConditions();

}  // namespace quillmetra
