// See ListUnits.h.
#include "forms/ListUnits.h"

#include <algorithm>

#include "core/Filling.h"
#include "core/Programs.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/RecordInHand.h"
#include "platform/NumberText.h"
#include "records/OptionCodes.h"
#include "records/SaveRecord.h"
#include "units/RecordUnits.h"
#include "units/UnitCatalogue.h"
#include "units/UnitChange.h"
#include "units/UnitLibraryFile.h"
#include "units/UnitSelection.h"

namespace quillmetra {

namespace {

constexpr const char* DensityField = "Density Units";
constexpr const char* PressureField = "Pressure Units";
constexpr const char* FlowField = "Flow Units";

const RecordColumn& UnitColumn(const std::string& field) { return *FindColumn(field); }
const RecordColumn& FactorColumn(const std::string& field) {
    return *FindColumn(field.substr(0, field.rfind(' ')) + " Factor");
}

// The row of the record's units that a field holds.
int RowOfField(const std::string& field, bool isGas) {
    const RecordColumn& column = UnitColumn(field);
    const RecordField& unit = column.At.Table->Fields[column.At.Field];
    const auto* cell = std::get_if<Cell>(&unit.From);
    if (cell == nullptr) return unit::Force;
    const int own = isGas ? unit.Rules.GasRow : unit.Rules.LiquidRow;
    return own >= 0 ? own : cell->Row;
}

struct KnownUnit {
    double Factor = 0;            // 0 for none
    const char* Basis = nullptr;  // of a flow
};

KnownUnit FlowUnit(int row, const std::string& name) {
    const auto [quantity, time] = SplitFlowUnit(name);
    const UnitRow& unit = UnitRows.at(At(row));
    const double perTime = FindUnitFactor(UnitRows.at(At(OtherFlowPart(row))).OnMass.List, time);
    for (const auto& [list, basis] :
         {std::pair{unit.OnMass.List, words::Mass}, {unit.OnVolume.List, words::Volume}}) {
        const double factor = FindUnitFactor(list, quantity) * perTime;
        if (factor > 0) return {factor, basis};
    }
    return {};
}

// Operating pressures are in the library with the ending of the mode in force; the other one has the same
// factor.
double PressureFactor(const std::string& name) {
    std::string other = name;
    if (!other.empty()) other.back() = other.back() == 'a' ? 'g' : 'a';
    const double factor = FindUnitFactor(unitlist::OperatingPressure, name);
    return factor > 0 ? factor : FindUnitFactor(unitlist::OperatingPressure, other);
}

KnownUnit FindUnit(const std::string& field, const std::string& name, bool isGas) {
    PrepareUnitLibrary();
    if (field == FlowField) return FlowUnit(RowOfField(field, isGas), name);
    if (field == PressureField) return {PressureFactor(name)};
    if (field == "Force Units") return {name == "lb" ? 1 : name == "kg" ? 2.2046 : 0};
    const int own = RowOfField(field, isGas);
    const UnitRow& row = UnitRows.at(At(own == unit::LiquidDensity ? unit::Density : own));
    if (name == row.EnglishName) return {1};
    if (name == row.SIName) return {row.SIFactor};
    return {row.OnMass.List == UnitRow::NoList ? 0 : FindUnitFactor(row.OnMass.List, name)};
}

bool IsGas(const RecordRows& rows) { return rows.FluidType() == words::Gas; }

std::string TextAt(const RecordRows& rows, const char* column) {
    return ValueText(rows.Value(*FindColumn(column)));
}

// The factor that a list leaves out is that of the record, or of the library.
ListUnit Completed(const RecordRows& rows, const std::string& field, ListUnit unit) {
    if (unit.Factor > 0) return unit;
    if (ValueText(rows.Value(UnitColumn(field))) == unit.Name) {
        const FieldValue factor = rows.Value(FactorColumn(field));
        if (const auto* number = std::get_if<double>(&factor)) unit.Factor = *number;
    } else {
        unit.Factor = FindUnit(field, unit.Name, IsGas(rows)).Factor;
    }
    if (!IsUsableFactor(unit.Factor)) throw ListRefusal{unit.Head, unit.Name + " is no unit of the library"};
    return unit;
}

const char* ModeOf(const std::string& pressure) {
    return pressure.ends_with('a') ? words::Absolute : pressure.ends_with('g') ? words::Gauge : nullptr;
}

void SetCodeOf(RecordRows& rows, const OptionCode& code) {
    std::string codes = TextAt(rows, "Calc Option");
    SetCode(codes, code);
    rows.Set(*FindColumn("Calc Option"), codes);
}

// A new record has no values yet.
void PutUnits(RecordRows& rows, const ListUnits& units) {
    for (const auto& [field, each] : units) {
        const ListUnit unit = Completed(rows, field, each);
        if (field == FlowField) {
            if (const char* basis = FindUnit(field, unit.Name, IsGas(rows)).Basis)
                rows.Set(*FindColumn("Basis"), std::string(basis));
        }
        if (field == PressureField && ModeOf(unit.Name) == std::string(words::Absolute))
            SetCodeOf(rows, code::AbsolutePressure);
        rows.Set(UnitColumn(field), unit.Name);
        rows.Set(FactorColumn(field), unit.Factor);
    }
}

bool IsIn(const RecordRows& rows, const ListUnits& units) {
    return std::ranges::all_of(units, [&rows](const auto& each) {
        return ValueText(rows.Value(UnitColumn(each.first))) == each.second.Name;
    });
}

}  // namespace

bool IsUnitName(const std::string& name) {
    PrepareUnitLibrary();
    const auto has = [&name](const UnitList& list) {
        return std::ranges::any_of(
            list, [&name](const UnitLine& line) { return !name.empty() && line.Name == name; });
    };
    return std::ranges::any_of(Suite.UnitLibrary, has) || PressureFactor(name) > 0 ||
           FlowUnit(unit::LiquidFlow, name).Factor > 0 || FlowUnit(unit::GasFlow, name).Factor > 0;
}

std::string UnitFieldOf(const RecordColumn& column, int program, const std::string& unit) {
    const RecordField& field = column.At.Table->Fields[column.At.Field];
    std::string name = field.Rules.Unit;
    if (name.ends_with(" Units")) return name;
    const auto* cell = std::get_if<Cell>(&field.From);
    const bool isGravity = cell != nullptr && cell->Of == Group::CaseInput && cell->Row == input::FlowGravity;
    if (!isGravity || !program::TakesDensity(program)) return "";
    return FindUnit(DensityField, unit, false).Factor > 0 ? DensityField : "";
}

ListUnits UnitsOf(const RecordRows& rows) {
    ListUnits units;
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind != ColumnKind::Unit || !column.Name.ends_with(" Units")) continue;
        const std::string name = ValueText(rows.Value(column));
        const FieldValue factor = rows.Value(FactorColumn(column.Name));
        if (const auto* number = std::get_if<double>(&factor); number != nullptr && !name.empty())
            units[column.Name] = {name, *number, column.Name};
    }
    return units;
}

// All digits stay: what the values become is not what the user asked about.
void ConvertRecordInHand(const ListUnits& units) {
    const Figures asked = std::exchange(Suite.ConvertedFigures, Figures::Keep);
    const bool isGas = program::IsOfGas(Calc.CurrentProgram);
    UnitChange change;
    for (const auto& [field, unit] : units) {
        const std::size_t row = At(RowOfField(field, isGas));
        Calc.UnitName[row] = unit.Name;
        Calc.UnitFactor[row] = unit.Factor;
        if (field == FlowField) {
            if (const char* basis = FindUnit(field, unit.Name, isGas).Basis)
                (isGas ? Calc.Basis : Calc.LiquidBasis) = basis;
        }
        if (field == PressureField && ModeOf(unit.Name) != nullptr) change.PressureMode = ModeOf(unit.Name);
    }
    CarryDensityUnit();
    change.Commit();
    Suite.ConvertedFigures = asked;
}

void TakeUnits(RecordRows& rows, const ListUnits& units, bool isStored) {
    if (!isStored) return PutUnits(rows, units);
    if (IsIn(rows, units)) return;
    ListUnits whole;
    for (const auto& [field, unit] : units) whole[field] = Completed(rows, field, unit);
    TakeRecordRows(rows);
    ConvertRecordInHand(whole);
    rows = RowsOfRecord();
}

}  // namespace quillmetra
