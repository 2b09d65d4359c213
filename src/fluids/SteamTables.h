// Steam by double linear look-up in the two files of the program's own folder, both made by
// tools/make_steam.py, which also tells their layout: "\STEAM.txt", ascending pressures, and "\Stm07.Dat",
// for each of them the properties at saturation and at 16 temperatures from 240 to 1500 degF. How far the
// look-up is off stands in data/SOURCES.md.
//
// The files are read once and kept until they change on the disk.
#pragma once

namespace quillmetra {

constexpr double SteamCritPressure = 3208.2;  // psia, as the files have it
constexpr double SteamMolecularWeight = 18.015;
constexpr double SteamCritTemperature = 1165.4;  // degR
constexpr double SteamBoilingPoint = 212;        // degF, at 1 atm
constexpr double SteamBoilingHeat = 970.3;       // Btu/lb, the latent heat there
constexpr double SteamHighestPressure = 15000;   // psia
constexpr double SteamLowestTemperature = 200;   // degF, of superheated steam
constexpr double SteamHighestTemperature = 1500;

// Both look-ups read FlowPressure (psia, above 0) and set Density, RatioSpecificHeats, Viscosity,
// MolecularWeight, CritPressure, CritTemperature and the case's rows 5, 7, 9, 10, 11 and 12. Up to the first
// pressure of the files its row stands alone. False when they fail, with the record as it was but for
// MessageTitle and MessageText, which say why: a file that is missing or ends too early ("Program default
// drive and path file"), or figures that are no steam's.

// FlowTemperature becomes that of saturation, SaturationTemperature the same in the unit of row 2. With
// SteamFindMode "FindStm" SaturationTemperature is all that is set.
bool LookupSaturatedSteam();

// At FlowTemperature (degF, up to 1500). Sets SaturationTemperature (degF) below the critical pressure.
bool LookupSuperheatedSteam();

// Btu/lb of saturated steam at degF: Watson's rule from 970.3 at 212 degF, raised by 1 %. 0 from the
// critical temperature on.
double SaturatedSteamLatentHeat(double temperature);

enum class SteamOutcome {
    NoPressure,  // FlowPressure is not above 0; nothing was done
    Refused,     // the user was told why; nothing has changed
    Cleared,     // the user was told why; the rows that the look-ups set are 0 and are to be shown blank
    Found,
};

// The steam of SteamKind at FlowPressure and, superheated, FlowTemperature of the case in hand, within the
// limits of the files. When found, the record also has NormalBoilingPoint, LatentHeatBP and LatentHeatAtFlow
// (0 for superheated steam, which shows none), and row 2 has the temperature of saturated steam.
SteamOutcome GetSteamData();

}  // namespace quillmetra
