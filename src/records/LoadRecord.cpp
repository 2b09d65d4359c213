// See LoadRecord.h.
#include "records/LoadRecord.h"

#include <functional>
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
#include "records/OptionCodes.h"
#include "records/RecordExtras.h"
#include "records/RecordFiles.h"
#include "records/RecordRows.h"
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

// Where the rows of the record come from: takes that of a table; false when there is none.
using RowTaker = std::function<bool(const RecordTable&)>;

RowTaker RowsIn(Database& database) {
    return [&database](const RecordTable& table) {
        if (&table == &SettingsTable() && !database.HasTable(table.Shape.Name)) return false;
        Recordset rows(database, table.Shape, Recordset::Unplaced());
        rows.Index(TagIndex);
        if (!rows.Seek(Calc.Tag)) return false;
        TakeRow(table, rows);
        return true;
    };
}

bool GetRow(const RowTaker& take, const RecordTable& table) {
    if (take(table)) return true;
    TellNotFound(table);
    return false;
}

// Rows of units that no field holds follow from those that one does, or are as every unit set leaves them:
// taking the record's set once more then changes nothing.
void CompleteUnits() {
    const auto ofSet = [si = Calc.UnitSystem == words::SI](std::size_t row) {
        Calc.UnitName[row] = si ? UnitRows[row].SIName : UnitRows[row].EnglishName;
        Calc.UnitFactor[row] = si ? UnitRows[row].SIFactor : 1;
    };
    const auto copy = [](std::size_t to, std::size_t from) {
        Calc.UnitName[to] = Calc.UnitName[from];
        Calc.UnitFactor[to] = Calc.UnitFactor[from];
    };
    constexpr int ofNoQuantity = 17;
    for (const int row : {ofNoQuantity, unit::SecondGauge, unit::AbsolutePressure}) ofSet(At(row));
    if (Calc.FluidType == words::Liquid) {
        copy(unit::Density, unit::LiquidDensity);
        ofSet(unit::GasViscosity);
    } else if (Calc.FluidType == words::Gas) {
        copy(unit::GasViscosity, unit::Viscosity);
        ofSet(unit::LiquidDensity);
    }
    MendUnitFactors();
    CarryDensityUnit();
}

// The standard conditions are kept in degF and psia and shown by the unit system.
void ShowStandardConditions() { Calc.UnitSystem == words::SI ? STPSI() : STPEnglish(); }

bool GetUnits(const RowTaker& take) {
    const bool found = GetRow(take, UnitsTable());
    CompleteUnits();
    return found;
}

bool GetLine(const RowTaker& take) {
    if (GetRow(take, PressureDropTable())) {
        Calc.UnitsConverted = words::Yes;
        return true;
    }
    if (Calc.OtherCalcs.size() >= 2) SetCode(Calc.OtherCalcs, code::NoPressureDropRow);
    Calc.PDRowLoaded = words::No;
    return false;
}

// To the last row that is one. The count stops at 15, as the suite counts components.
void CountComponents() {
    Calc.MixtureCount = 15;
    while (Calc.MixtureCount > 0 &&
           Calc.FluidData[static_cast<std::size_t>(Calc.MixtureCount - 1)].size() <= 3) {
        --Calc.MixtureCount;
    }
    for (std::size_t i = 16; i < Calc.FluidData.size(); ++i) {
        Calc.FluidData[i].clear();
        Calc.FluidPercent[i] = 0;
    }
}

bool GetOptions(const RowTaker& take) {
    const bool found = take(SettingsTable());
    RestoreStandardConditions();
    ShowStandardConditions();
    return found;
}

void NameUnitSet() {
    const int set = Calc.FluidType == words::Liquid ? Calc.LiquidUnitSet : Calc.GasUnitSet;
    Calc.UnitSetName = SelectedUnitsName;
    for (const NamedUnitSet& each : NamedUnitSets) {
        if (each.Number == set && Calc.UnitSystem == each.System) Calc.UnitSetName = each.Name;
    }
}

bool GetProgramRow(const RowTaker& take) {
    const std::string& codes = Calc.OtherCalcs;
    switch (Calc.CurrentProgram) {
        case program::LiquidLine:
        case program::GasLine:
            Calc.PDRowLoaded = YesIf(HasCode(codes, code::PressureDropRow));
            return GetLine(take);
        case program::WaterHammer:
            Calc.WHRowLoaded = YesIf(HasCode(codes, code::WaterHammerRow));
            return GetRow(take, WaterhammerTable());
        case program::LiquidData:
            Calc.FDRowLoaded = YesIf(HasCode(codes, code::FluidDataRow));
            return GetRow(take, FluidDataTable());
        default:
            // The gas data program looks at another position than the save writes, so its word stays unset;
            // the row is read all the same.
            if (HasCode(codes, {code::PressureDropRow.Position, code::FluidDataRow.Letters}))
                Calc.FDRowLoaded = words::Yes;
            return GetRow(take, FluidDataTable());
    }
}

void TakeOptions(const RowTaker& take) {
    const std::string& kind = Calc.OtherCalcs;
    Calc.MixtureFlag = YesIf(HasCode(kind, code::Mixture));
    if (HasCode(kind, code::Mixture) && GetRow(take, MixtureTable())) CountComponents();
    Calc.MixtureMarker = words::Yes;
    if (HasCode(kind, code::Superheated)) Calc.SteamKind = words::Superheated;
    if (HasCode(kind, code::Saturated)) Calc.SteamKind = words::Saturated;
    Calc.LiquidDensityMode = HasCode(Calc.CalcOption, code::DensityMode) ? words::Density : words::Gravity;
    Calc.PressureMode = HasCode(Calc.CalcOption, code::AbsolutePressure) ? words::Absolute : words::Gauge;
    Calc.LiquidDensityModePrevious = Calc.LiquidDensityMode;
    Calc.PressureModePrevious = Calc.PressureMode;
}

void TakeWithoutProgram(const RowTaker& take) {
    for (std::size_t i = 1; i <= 3; ++i) Calc.NoteText[i] = Calc.HeadingText[i + 7];
    GetUnits(take);
    TakeOptions(take);
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
    if (Calc.PressureDirection != direction::Backwards) Calc.PressureDirection = direction::Forwards;
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
    if (HasCode(Calc.CalcOption, code::FluidLoaded)) {
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
    Calc.FluidType = program::IsOfGas(ProgramOf(storedProgramNumber)) ? words::Gas : words::Liquid;
}

bool GetTRCalc() { return GetTRCalc(*OpenRecords(Suite.DatabaseFile)); }

bool GetTRCalc(Database& database) {
    Calc.Tag = std::string(Trim(Calc.Tag));
    const ReadAhead rows(database, Calc.Tag, ShapesOfRecords());
    const RecordTable& table = HeadTable();
    Recordset heads(database, table.Shape, Recordset::Unplaced());
    heads.Index(TagIndex);
    if (!heads.Seek(Calc.Tag)) {
        TellNotFound(table);
        return false;
    }
    TakeRow(table, heads);
    if (FindProgram(Calc.CurrentProgram) == nullptr) {
        Tell("Not found", "Tag Number Search", Icon::Stop);
        return false;
    }
    const RowTaker take = RowsIn(database);
    TakeWithoutProgram(take);
    if (!GetProgramRow(take)) TakeRow(table, heads, true);
    if (!GetOptions(take)) MarkBlankTemperatures();
    GetExtras(database);
    RememberRows(database);
    FinishLoad();
    return true;
}

bool TakeRows(const RecordRows& rows) {
    const auto take = [&rows](const RecordTable& table) {
        const RecordRows::Row& row = rows.Of(table);
        if (!row.empty()) TakeRow(table, row);
        return !row.empty();
    };
    Calc.Tag = rows.Tag();
    TakeRow(HeadTable(), rows.Of(HeadTable()));
    if (FindProgram(Calc.CurrentProgram) == nullptr) return false;
    TakeWithoutProgram(take);
    GetProgramRow(take);
    if (!GetOptions(take)) MarkBlankTemperatures();
    for (std::size_t i = 0; i < RecordExtras.size(); ++i) Calc.*RecordExtras[i].Text = rows.Extras[i];
    FinishLoad();
    return true;
}

bool GetTRUnits(Database& database) { return GetUnits(RowsIn(database)); }
bool GetTRDB(Database& database) { return GetLine(RowsIn(database)); }
bool GetWHCalc(Database& database) { return GetRow(RowsIn(database), WaterhammerTable()); }
bool GetFDCalc(Database& database) { return GetRow(RowsIn(database), FluidDataTable()); }
bool GetMixture(Database& database) {
    const RowTaker take = RowsIn(database);
    if (!GetRow(take, MixtureTable())) return false;
    CountComponents();
    return true;
}
bool GetSettings(Database& database) { return GetOptions(RowsIn(database)); }

}  // namespace quillmetra
