// What outlives a calculation: paths, colours, the user's own units, the words that last as long as the
// process. Exactly one instance, Suite.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/CalcRecord.h"

namespace quillmetra {

// A unit as a list offers it: value x Factor = value in the list's base unit. An unused line is empty.
struct UnitLine {
    std::string Name;
    double Factor = 0;

    bool operator==(const UnitLine&) const = default;
};
using UnitList = Row<UnitLine, 11>;  // lines 1 to 10

// What becomes of numbers that a change of units has converted.
enum class Figures : std::uint8_t { Ask, Round, Keep };

struct SuiteState {
    std::string VersionText;  // "Ver.6.0.0.  "
    std::string HelpFile;
    // 1 database, 2 user units, 3 printout headings, 4 data files, 5 the program's own folder; in the
    // suite's words, with "\" between the parts that it adds.
    Row<std::string, 6> DefaultPaths{};
    // Default path 1 as it was read or chosen in the path finder. DefaultPaths[1] itself goes with the
    // database on the screen, and looking at another one must not change the path that is kept on disk.
    std::string ChosenDataPath;
    Row<std::uint32_t, 13> Colours{};                                  // 1 to 12, 0x00BBGGRR
    std::string HideFluidReminder, HideRoundReminder, HideFlowStatus;  // "Yes" or empty, never read back
    Figures ConvertedFigures = Figures::Ask;
    Row<std::string, 36> UserLiquidUnitName{}, UserGasUnitName{};
    UnitFactors UserLiquidUnitFactor{}, UserGasUnitFactor{};  // 0 where there is no unit
    std::string UserLiquidBasis, UserGasBasis;                // of the two flow units
    int LiquidBootSet = 0, GasBootSet = 0;                    // unit sets of new calculations
    std::string BootDensityMode;                              // of a new liquid calculation
    Row<UnitList, 21> UnitLibrary{};  // the unit lists 0 to 20, see units/UnitCatalogue.h
    UnitList PressureStem{};          // pressure units without the ending "g" or "a"
    std::string UnitLibraryName;      // "Default Library", "User Library", empty until loaded
    std::string DatabaseFile, DatabasePath, BrowsePath;  // full name of the file; its folder
    std::string
        RecoveryFile;  // where unsaved work is kept against a crash; empty where nobody would ask for it
    Row<std::string, 11> DefaultHeadings{}, ReportHeadings{};  // 1 to 10
    std::string BatchPrinting, PrintDateOverride;
    int PrintCopies = 1;
    std::string PipeFamily;                 // the pipe lookup's file; empty for the first family
    std::string TableKind;                  // the table that the editor is to open: "Gas", "Liquid", ...
    std::string TableFileName, TableModel;  // of a table whose file its caller names; else empty
    // Kept for their names: set where their name says, and read by nothing.
    int RecordTotal = 0;  // records of DatabaseFile after the last save
    std::string RunActive, UseDefaultHeadings;
    int PrintFromPage = 0, PrintToPage = 0;  // 0: all pages
};

extern SuiteState Suite;

}  // namespace quillmetra
