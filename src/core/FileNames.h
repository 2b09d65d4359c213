// The files that the suite keeps in its folders, as it writes their names; they are found in whatever case.
// The data tables have theirs in tables/TableDescriptions.h, the database has its own in
// records/RecordFiles.h.
#pragma once

#include <string>

#include "core/Suite.h"

namespace quillmetra {

// The full name of a file in a default path, by the rows of path in core/Rows.h.
inline std::string InDefaultPath(int row, const std::string& name) {
    return Suite.DefaultPaths[At(row)] + "\\" + name;
}

namespace filename {

inline constexpr const char* DefaultPaths = "TRDRV.txt";
inline constexpr const char* Colours = "TRcolr.txt";
inline constexpr const char* Background = "Background.TXT";
inline constexpr const char* LightScheme = "Light.txt";
inline constexpr const char* ClassicScheme = "Classic.txt";
inline constexpr const char* DarkScheme = "Dark.txt";
inline constexpr const char* HighContrastScheme = "High contrast.txt";
inline constexpr const char* StandardConditions = "TRSTP.TXT";
inline constexpr const char* Headings = "TRHDG.txt";
inline constexpr const char* UserUnits = "TRUNS.txt";
inline constexpr const char* UnitLibrary = "TRLib.TXT";
inline constexpr const char* SteamPressures = "STEAM.txt";
inline constexpr const char* SteamRows = "Stm07.Dat";
inline constexpr const char* Help = "VOTR.HLP";
inline constexpr const char* Backup = "TRDB.BAK";
inline constexpr const char* Damaged = "TRDB.BAD";
inline constexpr const char* ShippedRows = "TRSHIP.TXT";  // the rows that were offered already
inline constexpr const char* Recovery = "TRRECOV.MDB";

}  // namespace filename
}  // namespace quillmetra
