// See RecordCells.h.
#include "records/RecordCells.h"

#include <algorithm>
#include <set>

#include "core/Programs.h"
#include "platform/NumberText.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"
#include "records/OptionCodes.h"

namespace quillmetra {

RecordCells::RecordCells(Database& database) : database_(database), extras_(database, ExtrasTable()) {
    parts_.reserve(RecordTables().size());
    for (const RecordTable* table : RecordTables()) {
        if (!database.HasTable(table->Shape.Name)) continue;
        parts_.push_back({table, Recordset(database, table->Shape, Recordset::Unplaced())});
        parts_.back().Rows.Index(TagIndex);
    }
}

std::vector<std::string> RecordCells::Tags(const std::vector<std::string>& wanted) {
    std::vector<std::string> tags = parts_.front().Rows.Keys();
    if (wanted.empty()) return tags;
    const std::set<std::string> set(wanted.begin(), wanted.end());
    std::erase_if(tags, [&set](const std::string& tag) { return !set.contains(std::string(Trim(tag))); });
    return tags;
}

bool RecordCells::Take(const std::string& tag) {
    read_.emplace(database_, tag, ShapesOfRecords());
    Part& head = parts_.front();
    head.Found = head.Rows.Seek(tag);
    if (!head.Found) return false;
    program_ = ProgramOf(static_cast<int>(head.Rows.Number("Program Number")));
    const std::string codes = head.Rows.Text("Other Calcs");
    for (Part& part : parts_) {
        if (&part != &head) part.Found = HasRowIn(*part.Table, program_, codes) && part.Rows.Seek(tag);
    }
    return true;
}

const Recordset* RecordCells::RowOf(const RecordTable& table) const {
    const auto part = std::ranges::find(parts_, &table, &Part::Table);
    return part == parts_.end() || !part->Found ? nullptr : &part->Rows;
}

FieldValue RecordCells::Value(const RecordColumn& column) {
    const RecordTable* const table = column.IsExtra() ? ProgramTable(program_) : column.At.Table;
    const Recordset* const row = table == nullptr ? nullptr : RowOf(*table);
    if (row == nullptr) return {};
    if (column.IsExtra()) return ExtraText(extras_, RecordExtras[column.At.Field], *table, *row);
    const FieldValue& value = row->Value(column.At.Field);
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr) return value;
    const std::string trimmed(Trim(*text));
    return IsUtf8(trimmed) ? trimmed : Utf8From1252(trimmed);  // as another program may have written it
}

// The gravity of a line's liquid, where its density is kept in its place.
bool RecordCells::IsDensity(const RecordField& field) const {
    const auto* cell = std::get_if<Cell>(&field.From);
    return cell != nullptr && *cell == Cell{Group::CaseInput, input::FlowGravity, cell->Case} &&
           program::TakesDensity(program_) &&
           HasCode(parts_.front().Rows.Text("Calc Option"), code::DensityMode);
}

std::string RecordCells::Unit(const RecordColumn& column) const {
    if (column.IsExtra() || !column.IsOf(program_)) return "";
    const RecordField& field = column.At.Table->Fields[column.At.Field];
    std::string name = IsDensity(field) ? "Density Units" : field.Rules.Unit;
    if (!name.ends_with(" Units")) return name;
    const Recordset* const units = RowOf(UnitsTable());
    return units == nullptr ? "" : std::string(Trim(units->Text(name)));
}

}  // namespace quillmetra
