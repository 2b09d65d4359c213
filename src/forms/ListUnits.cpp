// See ListUnits.h.
#include "forms/ListUnits.h"

#include <algorithm>
#include <cmath>

#include "core/Filling.h"
#include "core/PhysicalConstants.h"
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
#include "units/Viscosity.h"

namespace quillmetra {

namespace {

constexpr const char* PressureField = "Pressure Units";
constexpr const char* FlowField = "Flow Units";
constexpr const char* ViscosityField = "Viscosity Units";

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

double NumberAt(const RecordRows& rows, const RecordColumn& column) {
    const FieldValue value = rows.Value(column);
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? 0 : *number;
}

// The factor that a list leaves out is that of the record, or of the library. One that it has left from a
// former unit would make other values of all.
ListUnit Completed(const RecordRows& rows, const std::string& field, ListUnit unit) {
    const bool isOwn = TextAt(rows, field.c_str()) == unit.Name;
    const double known =
        isOwn ? NumberAt(rows, FactorColumn(field)) : FindUnit(field, unit.Name, IsGas(rows)).Factor;
    constexpr double part = 0.001;  // factors of former libraries have fewer digits
    if (unit.Factor > 0 && known > 0 && std::fabs(unit.Factor - known) > part * known)
        throw ListRefusal{unit.Head, TrimmedStr(unit.Factor) + " is no factor of " + unit.Name};
    if (!(unit.Factor > 0)) unit.Factor = known;
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
    for (const auto& [field, each] : units.Fields) {
        const ListUnit unit = Completed(rows, field, each);
        if (field == FlowField) {
            if (const char* basis = FindUnit(field, unit.Name, IsGas(rows)).Basis)
                rows.Set(*FindColumn("Basis"), std::string(basis));
        }
        if (field == PressureField) PutModes(rows, unit.Name, "");
        rows.Set(UnitColumn(field), unit.Name);
        rows.Set(FactorColumn(field), unit.Factor);
    }
}

std::string UnitRuleOf(const RecordColumn& column) {
    return column.IsExtra() ? "" : column.At.Table->Fields[column.At.Field].Rules.Unit;
}

// In psia.
double Barometer(const RecordRows& rows) {
    const double barometer = NumberAt(rows, *FindColumn("Barometric Pressure"));
    return barometer > 0 ? barometer : SeaLevelBarometer;
}

// What a value in its unit is in that of the library, a gravity as a gravity: value * Factor + Offset.
struct Scale {
    std::string Unit;
    double Factor = 1, Offset = 0;
    bool operator==(const Scale&) const = default;
};
Scale ScaleOf(const RecordRows& rows, const std::string& field) {
    Scale scale{TextAt(rows, field.c_str()), NumberAt(rows, FactorColumn(field)), 0};
    const std::string codes = TextAt(rows, "Calc Option");
    if (field == PressureField && !HasCode(codes, code::AbsolutePressure)) scale.Offset = Barometer(rows);
    if (field != DensityField || rows.FluidType() != words::Liquid) return scale;
    if (DensityModeOf(codes) != words::Density) return {"SG", 1, 0};
    scale.Factor /= WaterDensity;
    return scale;
}

bool IsIn(const RecordRows& rows, const ListUnits& units) {
    if (!units.DensityMode.empty() && units.DensityMode != DensityModeOf(TextAt(rows, "Calc Option")))
        return false;
    return std::ranges::all_of(units.Fields, [&rows](const auto& each) {
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

std::string UnitFieldOf(const RecordColumn& column) {
    const std::string unit = UnitRuleOf(column);
    return unit.ends_with(" Units") ? unit : "";
}

std::string FixedUnitOf(const RecordColumn& column) {
    const std::string unit = UnitRuleOf(column);
    return unit.ends_with(" Units") ? "" : unit;
}

bool IsGravity(const RecordColumn& column, int program) {
    if (column.IsExtra() || !program::TakesDensity(program)) return false;
    const auto* cell = std::get_if<Cell>(&column.At.Table->Fields[column.At.Field].From);
    return cell != nullptr && cell->Of == Group::CaseInput && cell->Row == input::FlowGravity;
}

void PutModes(RecordRows& rows, const std::string& pressureUnit, const std::string& densityMode) {
    if (const char* mode = ModeOf(pressureUnit))
        SetCodeOf(rows,
                  std::string_view(mode) == words::Absolute ? code::AbsolutePressure : code::GaugePressure);
    if (!densityMode.empty())
        SetCodeOf(rows, densityMode == words::Density ? code::DensityMode : code::GravityMode);
}

std::string BasisOf(const RecordRows& rows) {
    const char* const basis = FindUnit(FlowField, TextAt(rows, FlowField), IsGas(rows)).Basis;
    return basis == nullptr ? "" : basis;
}

std::string DensityModeOf(const std::string& codes) {
    return HasCode(codes, code::DensityMode) ? words::Density : words::Gravity;
}

ListUnits UnitsOf(const RecordRows& rows) {
    ListUnits units;
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind != ColumnKind::Unit || !column.Name.ends_with(" Units")) continue;
        const std::string name = ValueText(rows.Value(column));
        const FieldValue factor = rows.Value(FactorColumn(column.Name));
        if (const auto* number = std::get_if<double>(&factor); number != nullptr && !name.empty())
            units.Fields[column.Name] = {name, *number, column.Name};
    }
    units.DensityMode = DensityModeOf(TextAt(rows, "Calc Option"));
    return units;
}

bool ConvertRecordInHand(const ListUnits& units) {
    const AllDigits digits;
    const bool isGas = program::IsOfGas(Calc.CurrentProgram);
    UnitChange change;
    for (const auto& [field, unit] : units.Fields) {
        const std::size_t row = At(RowOfField(field, isGas));
        Calc.UnitName[row] = unit.Name;
        Calc.UnitFactor[row] = unit.Factor;
        if (field == FlowField) {
            if (const char* basis = FindUnit(field, unit.Name, isGas).Basis)
                (isGas ? Calc.Basis : Calc.LiquidBasis) = basis;
        }
        if (const char* mode = field == PressureField ? ModeOf(unit.Name) : nullptr) {
            // The change of the mode wants the ending of the former one, and puts the new one there.
            Calc.UnitName[row].back() = Calc.PressureMode == words::Absolute ? 'a' : 'g';
            change.PressureMode = mode;
        }
    }
    if (!units.DensityMode.empty()) change.DensityMode = units.DensityMode;
    CarryDensityUnit();
    const bool misleads = change.GravityMisleads();
    change.Commit(ZeroTemperature::IsConverted);
    return misleads;
}

void TakeFigures(RecordRows& rows, const RecordRows& list, const RecordRows& stored,
                 const std::function<bool(const std::string& column)>& isGiven) {
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind != ColumnKind::Input || !column.IsOf(rows.Program())) continue;
        const bool isGravity = IsGravity(column, rows.Program());
        const std::string field = isGravity ? DensityField : UnitFieldOf(column);
        if (field.empty()) continue;
        const bool hasMode = isGravity || field == PressureField;
        const Scale own = ScaleOf(rows, field), scale = ScaleOf(list, field);
        const double value = NumberAt(list, column);
        if (hasMode && value != 0)
            rows.Set(column, (value * scale.Factor + scale.Offset - own.Offset) / own.Factor);
        const bool isItsUnit = own == ScaleOf(stored, field);
        if (isItsUnit && (!isGiven(column.Name) || AreAlike(rows.Value(column), stored.Value(column))))
            rows.Set(column, stored.Value(column));
    }
}

bool AreAlike(const FieldValue& a, const FieldValue& b) {
    const auto *one = std::get_if<double>(&a), *other = std::get_if<double>(&b);
    if (one == nullptr || other == nullptr) return SameValue(a, b);
    return std::fabs(*one - *other) <= 1e-5 * std::fabs(*one);
}

std::string FirstByGravity(const RecordRows& list, const RecordRows& stored,
                           const std::function<bool(const std::string& column)>& isGiven) {
    const bool otherFlow = TextAt(list, "Basis") != TextAt(stored, "Basis");
    const auto isKinematic = [](const RecordRows& rows) {
        return CentistokesPerUnit(TextAt(rows, ViscosityField)) > 0;
    };
    const bool otherViscosity = isKinematic(list) != isKinematic(stored);
    for (const RecordColumn& column : RecordColumns()) {
        if (column.Kind != ColumnKind::Input || !column.IsOf(list.Program()) || !isGiven(column.Name))
            continue;
        const std::string field = UnitFieldOf(column);
        if ((otherFlow && field == FlowField) || (otherViscosity && field == ViscosityField))
            return column.Name;
    }
    return "";
}

void TakeUnits(RecordRows& rows, const ListUnits& units, bool isStored) {
    if (!isStored) return PutUnits(rows, units);
    ListUnits whole{{}, units.DensityMode};
    for (const auto& [field, unit] : units.Fields) whole.Fields[field] = Completed(rows, field, unit);
    if (IsIn(rows, units)) return;
    TakeRecordRows(rows);
    ConvertRecordInHand(whole);
    rows = RowsOfRecord();
}

}  // namespace quillmetra
