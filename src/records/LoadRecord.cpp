// See LoadRecord.h.
#include "records/LoadRecord.h"

#include <memory>
#include <string>

#include "core/CalcRecord.h"
#include "core/Programs.h"
#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "fluids/FluidTables.h"
#include "platform/Dialogs.h"
#include "platform/NumberText.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"
#include "records/RecordTransfer.h"
#include "records/StoredRows.h"
#include "units/NamedUnitSets.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"
#include "units/UserUnits.h"

namespace quillmetra {

namespace {

void TellNotFound(const RecordTable& table) {
    Tell("Cannot find " + Calc.Tag + table.NotFound, "Tag Number Search", Icon::Stop);
}

bool GetRow(Database& database, const RecordTable& table) {
    Recordset rows(database, table.Shape, Recordset::Unplaced());
    rows.Index("Tag_Number");
    if (!rows.Seek(Calc.Tag)) {
        TellNotFound(table);
        return false;
    }
    TakeRow(table, rows);
    return true;
}

// A code of the option texts, positions counted from 1; empty past the end.
std::string Code(const std::string& codes, std::size_t position, std::size_t length) {
    return position > codes.size() ? "" : codes.substr(position - 1, length);
}

const char* YesIf(bool yes) { return yes ? words::Yes : words::No; }

// Rows of units that no field holds follow from those that one does, and from the unit system.
void CompleteUnits() {
    const bool si = Calc.UnitSystem == words::SI;
    const bool absolute = Calc.PressureMode == words::Absolute;
    const auto set = [](std::size_t row, const char* name, double factor) {
        Calc.UnitName[row] = name;
        Calc.UnitFactor[row] = factor;
    };
    const auto copy = [](std::size_t to, std::size_t from) {
        Calc.UnitName[to] = Calc.UnitName[from];
        Calc.UnitFactor[to] = Calc.UnitFactor[from];
    };
    if (Calc.FluidType == words::Liquid) copy(9, 6);
    if (Calc.FluidType == words::Gas) copy(13, 7);
    set(24, si ? (absolute ? "kPaa" : "kPag") : (absolute ? "psia" : "psig"), si ? PsiPerKPa : 1);
    set(26, si ? "kPaa" : "psia", si ? PsiPerKPa : 1);
    MendUnitFactors();
    CarryDensityUnit();
}

// The standard conditions are kept in degF and psia and shown by the unit system.
void ShowStandardConditions() { Calc.UnitSystem == words::SI ? STPSI() : STPEnglish(); }

void NameUnitSet() {
    const int set = Calc.FluidType == words::Liquid ? Calc.LiquidUnitSet : Calc.GasUnitSet;
    Calc.UnitSetName = SelectedUnitsName;
    for (const NamedUnitSet& each : NamedUnitSets) {
        if (each.Number == set && Calc.UnitSystem == each.System) Calc.UnitSetName = each.Name;
    }
}

bool GetProgramRow(Database& database) {
    const std::string& codes = Calc.OtherCalcs;
    switch (Calc.CurrentProgram) {
        case program::LiquidLine:
        case program::GasLine: Calc.PDRowLoaded = YesIf(Code(codes, 1, 2) == "PD"); return GetTRDB(database);
        case program::WaterHammer:
            Calc.WHRowLoaded = YesIf(Code(codes, 5, 2) == "WH");
            return GetWHCalc(database);
        case program::LiquidData:
            Calc.FDRowLoaded = YesIf(Code(codes, 3, 2) == "FD");
            return GetFDCalc(database);
        default:
            // The gas data program looks at another position than the save writes, so its word stays unset;
            // the row is read all the same.
            if (Code(codes, 1, 2) == "FD") Calc.FDRowLoaded = words::Yes;
            return GetFDCalc(database);
    }
}

void TakeOptions(Database& database) {
    const std::string kind = Code(Calc.OtherCalcs, 7, 2);
    Calc.MixtureFlag = YesIf(kind == "MX");
    if (kind == "MX") GetMixture(database);
    Calc.MixtureMarker = words::Yes;
    if (kind == "SU") Calc.SteamKind = words::Superheated;
    if (kind == "SA") Calc.SteamKind = words::Saturated;
    Calc.LiquidDensityMode = Code(Calc.CalcOption, 1, 2) == "DN" ? words::Density : words::Gravity;
    Calc.PressureMode = Code(Calc.CalcOption, 3, 2) == "AB" ? words::Absolute : words::Gauge;
    Calc.LiquidDensityModePrevious = Calc.LiquidDensityMode;
    Calc.PressureModePrevious = Calc.PressureMode;
}

// An empty temperature and a typed zero are both 0 in rows that were written elsewhere: without a pressure
// nothing was typed.
void MarkBlankTemperatures() {
    for (std::size_t i = 0; i < CaseCount; ++i) {
        if (Calc.CaseInput[input::Temperature][i] == 0 && Calc.CaseInput[input::Pressure][i] == 0)
            Calc.TemperatureBlank[i] = 1;
    }
}

// What stands in a file need not be what the suite wrote.
void MendRecord() {
    if (Calc.PipeMaterialNumber < 1 || Calc.PipeMaterialNumber > 7) Calc.PipeMaterialNumber = 1;
    if (Calc.PressureDirection != 2) Calc.PressureDirection = 1;
    for (int* set : {&Calc.LiquidUnitSet, &Calc.GasUnitSet}) {
        if (*set < 0 || *set > UserUnitSet) *set = 0;
    }
}

void FinishLoad() {
    MendRecord();
    CompleteUnits();
    NameUnitSet();
    RememberUnits();
    RenewChosenUnitNames();
    Calc.FluidDataSource.clear();
    Calc.FluidRow.clear();
    if (Code(Calc.CalcOption, 5, 1) == "L") {
        Calc.FluidDataSource = words::Loaded;
        if (Calc.MixtureFlag == words::No) FindFluidRow();
    }
    Calc.UnitsConverted = words::Yes;  // the form's refresh then shows all cases
    Calc.ChangedFlag.clear();
    TakeShown();
    TakeSaved();
}

}  // namespace

void TakeFluidType(const std::string& headFluidType, int storedProgramNumber) {
    Calc.FluidType = std::string(Trim(headFluidType));
    if (Calc.FluidType == words::Liquid || Calc.FluidType == words::Gas) return;
    const int program = storedProgramNumber > 90 ? storedProgramNumber / 100 : storedProgramNumber;
    Calc.FluidType = program == 2 || program == 5 ? words::Gas : words::Liquid;
}

bool GetTRCalc() {
    const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
    const RecordTable& table = HeadTable();
    Recordset heads(*database, table.Shape, Recordset::Unplaced());
    heads.Index("Tag_Number");
    Calc.Tag = std::string(Trim(Calc.Tag));
    if (!heads.Seek(Calc.Tag)) {
        TellNotFound(table);
        return false;
    }
    TakeRow(table, heads);
    if (FindProgram(Calc.CurrentProgram) == nullptr) {
        Tell("Not found", "Tag Number Search", Icon::Stop);
        return false;
    }
    for (std::size_t i = 1; i <= 3; ++i) Calc.NoteText[i] = Calc.HeadingText[i + 7];
    GetTRUnits(*database);
    TakeOptions(*database);
    if (!GetProgramRow(*database)) TakeRow(table, heads, true);
    if (!GetSettings(*database)) MarkBlankTemperatures();
    RememberRows(*database);
    FinishLoad();
    return true;
}

bool GetTRUnits(Database& database) {
    const bool found = GetRow(database, UnitsTable());
    CompleteUnits();
    return found;
}

bool GetTRDB(Database& database) {
    if (!GetRow(database, PressureDropTable())) {
        if (Calc.OtherCalcs.size() >= 2) Calc.OtherCalcs.replace(0, 2, "XX");
        Calc.PDRowLoaded = words::No;
        return false;
    }
    Calc.UnitsConverted = words::Yes;
    return true;
}

bool GetWHCalc(Database& database) { return GetRow(database, WaterhammerTable()); }

bool GetFDCalc(Database& database) { return GetRow(database, FluidDataTable()); }

bool GetMixture(Database& database) {
    if (!GetRow(database, MixtureTable())) return false;
    // To the last row that is one. The count stops at 15, as the suite counts components.
    Calc.MixtureCount = 15;
    while (Calc.MixtureCount > 0 &&
           Calc.FluidData[static_cast<std::size_t>(Calc.MixtureCount - 1)].size() <= 3) {
        --Calc.MixtureCount;
    }
    for (std::size_t i = 16; i < Calc.FluidData.size(); ++i) {
        Calc.FluidData[i].clear();
        Calc.FluidPercent[i] = 0;
    }
    return true;
}

bool GetSettings(Database& database) {
    const RecordTable& table = SettingsTable();
    bool found = false;
    if (database.HasTable(table.Shape.Name)) {
        Recordset rows(database, table.Shape, Recordset::Unplaced());
        rows.Index("Tag_Number");
        found = rows.Seek(Calc.Tag);
        if (found) TakeRow(table, rows);
    }
    RestoreStandardConditions();
    ShowStandardConditions();
    return found;
}

}  // namespace quillmetra
