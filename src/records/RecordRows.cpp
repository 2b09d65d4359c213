// See RecordRows.h.
#include "records/RecordRows.h"

#include <algorithm>
#include <cmath>

#include "core/Programs.h"
#include "platform/NumberText.h"
#include "records/OptionCodes.h"

namespace quillmetra {

namespace {

std::size_t PlaceOf(const RecordTable& table) {
    const auto& tables = RecordTables();
    return static_cast<std::size_t>(std::ranges::find(tables, &table) - tables.begin());
}

std::size_t FieldNamed(const RecordTable& table, std::string_view name) {
    const auto& fields = table.Shape.Fields;
    return static_cast<std::size_t>(std::ranges::find(fields, name, &FieldShape::Name) - fields.begin());
}

std::string TrimmedText(const FieldValue& value) {
    const auto* text = std::get_if<std::string>(&value);
    return text == nullptr ? "" : std::string(Trim(*text));
}

}  // namespace

const RecordRows::Row& RecordRows::Of(const RecordTable& table) const { return Tables.at(PlaceOf(table)); }
RecordRows::Row& RecordRows::Of(const RecordTable& table) { return Tables.at(PlaceOf(table)); }

std::string RecordRows::Tag() const { return TrimmedText(Of(HeadTable()).front()); }

int RecordRows::Program() const {
    static const std::size_t field = FieldNamed(HeadTable(), "Program Number");
    const auto* number = std::get_if<double>(&Of(HeadTable())[field]);
    return number == nullptr ? 0 : ProgramOf(static_cast<int>(*number));
}

std::string RecordRows::FluidType() const {
    static const std::size_t field = FieldNamed(HeadTable(), "Fluid Type");
    return TrimmedText(Of(HeadTable())[field]);
}

FieldValue RecordRows::Value(const RecordColumn& column) const {
    if (column.IsExtra()) return Extras.at(column.At.Field);
    const Row& row = Of(*column.At.Table);
    return row.empty() ? FieldValue() : row[column.At.Field];
}

void RecordRows::Set(const RecordColumn& column, const FieldValue& value) {
    if (column.IsExtra()) {
        Extras.at(column.At.Field) = TrimmedText(value);
        return;
    }
    const auto set = [this, &value](const FieldPlace& place) {
        Row& row = Of(*place.Table);
        if (!row.empty()) row[place.Field] = KeptValue(place.Table->Shape.Fields[place.Field], value);
    };
    set(column.At);
    std::ranges::for_each(column.Copies, set);
}

FieldValue KeptValue(const FieldShape& field, FieldValue value) {
    value = FittedValue(field, std::move(value));
    const auto* whole = std::get_if<double>(&value);
    if (whole != nullptr && std::nearbyint(*whole) == *whole && std::fabs(*whole) < 1e6) return value;
    if (const auto* number = std::get_if<double>(&value);
        number != nullptr && field.Type == FieldType::Single)
        return SingleRead(*number);
    return value;
}

bool SameValue(const FieldValue& a, const FieldValue& b) {
    const auto isText = [](const FieldValue& value) { return !std::holds_alternative<double>(value); };
    return isText(a) && isText(b) ? TrimmedText(a) == TrimmedText(b) : a == b;
}

std::string ValueText(const FieldValue& value) {
    const auto* number = std::get_if<double>(&value);
    return number == nullptr ? TrimmedText(value) : TrimmedStr(*number);
}

RowStore::RowStore(Database& database) : database_(database), extras_(database, ExtrasTable()) {
    for (const RecordTable* table : RecordTables()) {
        if (!database.HasTable(table->Shape.Name)) continue;
        parts_.push_back({table, Recordset(database, table->Shape, Recordset::Unplaced())});
        parts_.back().Rows.Index(TagIndex);
    }
}

std::optional<RecordRows> RowStore::Read(std::string_view tag) {
    const ReadAhead read(database_, tag, ShapesOfRecords());
    Part& head = parts_.front();
    if (!head.Rows.Seek(tag)) return {};
    const int program = ProgramOf(static_cast<int>(head.Rows.Number("Program Number")));
    const std::string codes = head.Rows.Text("Other Calcs");
    RecordRows rows;
    for (Part& part : parts_) {
        const bool isThere = &part == &head || (HasRowIn(*part.Table, program, codes) && part.Rows.Seek(tag));
        if (!isThere) continue;
        RecordRows::Row& row = rows.Of(*part.Table);
        for (std::size_t i = 0; i < part.Table->Fields.size(); ++i) row.push_back(part.Rows.Value(i));
    }
    const RecordTable* const own = ProgramTable(program);
    const auto part = std::ranges::find(parts_, own, &Part::Table);
    if (part == parts_.end() || rows.Of(*own).empty()) return rows;
    for (std::size_t i = 0; i < RecordExtras.size(); ++i)
        rows.Extras.at(i) = ExtraText(extras_, RecordExtras[i], *own, part->Rows);
    return rows;
}

void RowStore::WriteExtras(Part& part, const RecordRows& rows, bool isNew) {
    const auto isEmpty = [](const std::string& text) { return text.empty(); };
    if (isNew && std::ranges::all_of(rows.Extras, isEmpty)) return;
    part.Rows.Seek(rows.Tag());
    for (std::size_t i = 0; i < RecordExtras.size(); ++i)
        PutExtra(extras_, RecordExtras[i], *part.Table, part.Rows, rows.Extras.at(i));
}

void RowStore::Write(const RecordRows& rows, bool isNew) {
    const std::string tag = rows.Tag();
    for (Part& part : parts_) {
        const RecordRows::Row& row = rows.Of(*part.Table);
        const bool isThere = !isNew && part.Rows.Seek(tag);
        if (row.empty()) {
            if (isThere) part.Rows.Delete();
            continue;
        }
        isThere ? part.Rows.Edit() : part.Rows.AddNew();
        for (std::size_t i = 0; i < row.size(); ++i) {
            if (!std::holds_alternative<Spare>(part.Table->Fields[i].From)) part.Rows.Set(i, row[i]);
        }
        part.Rows.Update();
        if (part.Table == ProgramTable(rows.Program())) WriteExtras(part, rows, isNew);
    }
}

}  // namespace quillmetra
