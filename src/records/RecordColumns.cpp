// See RecordColumns.h.
#include "records/RecordColumns.h"

#include <algorithm>
#include <array>
#include <set>

#include "platform/NumberText.h"
#include "platform/TextCase.h"

namespace quillmetra {

namespace {

const RecordField& FieldAt(const FieldPlace& place) { return place.Table->Fields[place.Field]; }

bool IsSpare(const RecordField& field) { return std::holds_alternative<Spare>(field.From); }

const Cell* CellOf(const RecordField& field) { return std::get_if<Cell>(&field.From); }

bool IsMade(const RecordField& field, Made made) {
    const auto* own = std::get_if<Made>(&field.From);
    return own != nullptr && *own == made;
}

bool IsLoadedInput(const Cell& cell) {
    return cell.Of == Group::CaseInput && cell.Row != input::Temperature && cell.Row != input::Pressure;
}

// The fluid data programs calculate what their row holds for a case, from temperature and pressure.
bool IsProperty(const RecordField& field) {
    const Cell* const cell = CellOf(field);
    return cell != nullptr ? IsLoadedInput(*cell) : IsMade(field, Made::NumberAsText);
}

bool IsLineResult(const RecordField& field) {
    const Cell* const cell = CellOf(field);
    return cell != nullptr && (cell->Of == Group::CaseResult || cell->Of == Group::HammerResult);
}

ColumnKind KindOf(const RecordTable& table, const RecordField& field) {
    if (&table == &HeadTable()) return ColumnKind::Head;
    if (&table == &UnitsTable()) return ColumnKind::Unit;
    if (&table == &SettingsTable()) return ColumnKind::Setting;
    if (&table == &MixtureTable()) return ColumnKind::Mixture;
    if (&table == &FluidDataTable()) return IsProperty(field) ? ColumnKind::Result : ColumnKind::Input;
    if (IsLineResult(field)) return ColumnKind::Result;
    return ColumnKind::Input;
}

// What a field of another table is the same as in the head: a water hammer is always of a liquid.
Place PlaceInHead(const RecordField& field) {
    if (IsMade(field, Made::LiquidWord)) return &CalcRecord::FluidType;
    const auto* text = std::get_if<TextMember>(&field.From);
    if (text != nullptr && *text == &CalcRecord::LiquidBasis) return Made::BasisInUse;
    return field.From;
}

// The name of a field without the case that it is of.
std::string_view QuantityOf(std::string_view name) {
    for (const std::string_view word : {"Case 1 ", "Case 2 ", "Case 3 ", "Normal Flow ", "Normal "}) {
        if (name.starts_with(word)) return name.substr(word.size());
    }
    return name;
}

std::string ShortName(const RecordTable& table) {
    return table.Shape.Name.substr(0, table.Shape.Name.rfind(" Calculations"));
}

class ColumnList {
public:
    ColumnList() {
        AddAll(HeadTable(), [](const RecordField&) { return true; });
        AddAll(UnitsTable(), [](const RecordField& field) { return field.Shape.Type == FieldType::Text; });
        AddAll(PressureDropTable(), IsLineResult);
        AddAll(WaterhammerTable(), IsLineResult);
        AddAll(FluidDataTable(), [](const RecordField& field) {
            const Cell* const cell = CellOf(field);
            return (cell != nullptr && cell->Of == Group::CaseInput) || IsMade(field, Made::NumberAsText);
        });
        for (std::size_t i = 0; i < RecordExtras.size(); ++i)
            Add({RecordExtras[i].Name, ColumnKind::Extra, {nullptr, i}});
        for (const RecordTable* table : RecordTables()) {
            AddAll(*table, [](const RecordField&) { return true; });
        }
    }

    std::vector<RecordColumn> Columns;

private:
    // All fields that are wanted and that have no column yet.
    template <typename Wanted>
    void AddAll(const RecordTable& table, Wanted wanted) {
        const std::set<std::string, std::less<>> repeated = RepeatedQuantities(table);
        for (std::size_t i = 0; i < table.Fields.size(); ++i) {
            const FieldPlace place{&table, i};
            const RecordField& field = table.Fields[i];
            if (IsSpare(field) || !wanted(field) || IsThere(place) || IsCopy(place)) continue;
            const bool apart = repeated.contains(QuantityOf(field.Shape.Name));
            Add({(apart ? ShortName(table) + " " : "") + field.Shape.Name, KindOf(table, field), place});
        }
    }

    void Add(RecordColumn column) {
        names_.insert(column.Name);
        Columns.push_back(std::move(column));
    }

    // Those of a table of which a name stands over a column of another one already.
    std::set<std::string, std::less<>> RepeatedQuantities(const RecordTable& table) const {
        std::set<std::string, std::less<>> repeated;
        for (std::size_t i = 0; i < table.Fields.size(); ++i) {
            const std::string& name = table.Fields[i].Shape.Name;
            if (names_.contains(name) && !IsThere({&table, i})) repeated.emplace(QuantityOf(name));
        }
        return repeated;
    }

    bool IsThere(const FieldPlace& place) const {
        return std::ranges::any_of(Columns, [&place](const RecordColumn& column) {
            return column.At == place || std::ranges::find(column.Copies, place) != column.Copies.end();
        });
    }

    // Joins a field to the column of the head that a save writes alike, if there is one.
    bool IsCopy(const FieldPlace& place) {
        if (place.Table == &HeadTable()) return false;
        const Place same = PlaceInHead(FieldAt(place));
        for (RecordColumn& column : Columns) {
            if (column.At.Table != &HeadTable() || FieldAt(column.At).From != same) continue;
            column.Copies.push_back(place);
            return true;
        }
        return false;
    }

    std::set<std::string, std::less<>> names_;
};

}  // namespace

const std::vector<RecordColumn>& RecordColumns() {
    static const std::vector<RecordColumn> columns = ColumnList().Columns;
    return columns;
}

const std::string& RecordColumn::FieldName() const { return IsExtra() ? Name : FieldAt(At).Shape.Name; }

FieldType RecordColumn::Type() const { return IsExtra() ? FieldType::Text : FieldAt(At).Shape.Type; }

bool RecordColumn::IsNumber() const {
    if (Type() == FieldType::Integer || Type() == FieldType::Single) return true;
    return !IsExtra() && (IsMade(FieldAt(At), Made::Fouling) || IsMade(FieldAt(At), Made::NumberAsText));
}

bool RecordColumn::IsOf(int program) const {
    if (program == 0 || Kind == ColumnKind::Extra) return true;
    return (Kind != ColumnKind::Input && Kind != ColumnKind::Result) || At.Table == ProgramTable(program);
}

const RecordColumn* FindColumn(std::string_view name, int program) {
    const auto find = [program](const auto& matches) -> const RecordColumn* {
        const auto found = std::ranges::find_if(RecordColumns(), [&](const RecordColumn& column) {
            return column.IsOf(program) && matches(column);
        });
        return found == RecordColumns().end() ? nullptr : &*found;
    };
    const RecordColumn* const byHead =
        find([name](const RecordColumn& column) { return SameName(column.Name, name); });
    if (byHead != nullptr || program == 0) return byHead;
    return find([name](const RecordColumn& column) { return SameName(column.FieldName(), name); });
}

namespace {

bool LooksLikeFormula(std::string_view text) {
    constexpr std::string_view signs = "=+-@";
    return !text.empty() && signs.find(text.front()) != std::string_view::npos && !ValReadsAll(text);
}

// Behind all apostrophes at its start.
bool NeedsApostrophe(std::string_view text) {
    return LooksLikeFormula(text.substr(std::min(text.find_first_not_of('\''), text.size())));
}

}  // namespace

std::string CellOfText(const std::string& text) { return NeedsApostrophe(text) ? '\'' + text : text; }

std::string TextOfCell(const std::string& cell) {
    return cell.starts_with('\'') && NeedsApostrophe(cell) ? cell.substr(1) : cell;
}

}  // namespace quillmetra
