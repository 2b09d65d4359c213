// What outlives a calculation: paths, colours, the user's own units, the words that last as long as the
// process. Exactly one instance, Suite.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/CalcRecord.h"

namespace quillmetra {

struct SuiteState {
    std::string VersionText;  // "Ver.6.0.0.  "
    std::string HelpFile;
    // 1 database, 2 user units, 3 printout headings, 4 data files, 5 the program's own folder; in the
    // suite's words, with "\" between the parts that it adds.
    Row<std::string, 6> DefaultPaths{};
    Row<std::uint32_t, 13> Colours{};                                  // 1 to 12, 0x00BBGGRR
    std::string HideFluidReminder, HideRoundReminder, HideFlowStatus;  // "Yes" or empty, never read back
    Row<std::string, 36> UserLiquidUnitName{}, UserGasUnitName{};
    UnitFactors UserLiquidUnitFactor{}, UserGasUnitFactor{};
    std::string DatabaseFile, DatabasePath, BrowsePath;
    Row<std::string, 11> DefaultHeadings{}, ReportHeadings{};  // 1 to 10
    std::string BatchPrinting, RunActive, UseDefaultHeadings, PrintDateOverride;
    std::string TableKind;  // the table that the editor is to open: "Gas", "Liquid", ...
};

extern SuiteState Suite;

}  // namespace quillmetra
