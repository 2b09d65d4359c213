// The status words of the suite. They pass between routines, many reach the database, and all are compared
// by exact text; a word that occurs in several places stands here once, so that a slip fails to compile.
#pragma once

#include <string_view>

namespace quillmetra {

namespace words {

inline constexpr const char* Yes = "Yes";
inline constexpr const char* No = "No";
inline constexpr const char* ExitSub = "Exit Sub";
inline constexpr const char* Loaded = "Loaded";

// FluidOk has two spellings of its own: "Ok" after a reset and after a pick, "OK" after a form has loaded.
// The property routines test "Ok" alone, so the two must not be made one.
inline constexpr const char* FluidPicked = "Ok";
inline constexpr const char* FluidLoaded = "OK";
// TemperatureEntered and PressureEntered.
inline constexpr const char* Entered = "OK";

// FluidType
inline constexpr const char* Liquid = "Liquid";
inline constexpr const char* Gas = "Gas";
// Basis, LiquidBasis
inline constexpr const char* Mass = "Mas";
inline constexpr const char* Volume = "Vol";
// LiquidDensityMode
inline constexpr const char* Gravity = "LiqSG";
inline constexpr const char* Density = "LiqDen";
// PressureMode
inline constexpr const char* Gauge = "Psig";
inline constexpr const char* Absolute = "Psia";
// DataMode
inline constexpr const char* FileData = "Filedata";
inline constexpr const char* DensityData = "Density";
inline constexpr const char* ManualData = "Manual";
// CalcMode
inline constexpr const char* PressureDrop = "PDrop";
inline constexpr const char* FlowRate = "Flowrate";
inline constexpr const char* ValveSize = "ValveSz";
// FlowZone, TransitionMark
inline constexpr const char* Laminar = "Lam";
inline constexpr const char* Critical = "Crit";
inline constexpr const char* Transition = "Trans";
// UnitSystem
inline constexpr const char* English = "English";
inline constexpr const char* SI = "SI";
// SteamKind
inline constexpr const char* Saturated = "Saturated";
inline constexpr const char* Superheated = "Superheated";
// SteamFindMode
inline constexpr const char* FindSaturation = "FindStm";
// Callers of the pipe size lookup, in MessageText
inline constexpr const char* PipeLiquidLoss = "LLoss";
inline constexpr const char* PipeGasLoss = "GLoss";
inline constexpr const char* PipeWaterHammer = "WaterHammer";
// How the list of the print control is moved, in MessageText
inline constexpr const char* Bypass = "Bypass";  // without reading the record
inline constexpr const char* Select = "Select";

// The cases of a line, by CaseIndex.
inline constexpr const char* Cases[] = {"Maximum", "Normal", "Minimum"};

// A line without a service.
inline constexpr const char* NoService = "(none)";

// The initial text of the option codes of a record.
inline constexpr const char* NoCodes = "XXXXXXXX";
// Prompts of the two name boxes: a box that still shows its prompt prints nothing.
inline constexpr const char* ByPrompt = "By";
inline constexpr const char* ApprovedPrompt = "App";

}  // namespace words

// The switches of the record: "Yes", and anything else, mostly "No" or empty.
constexpr bool IsYes(std::string_view word) { return word == words::Yes; }
constexpr const char* YesIf(bool yes) { return yes ? words::Yes : words::No; }

}  // namespace quillmetra
