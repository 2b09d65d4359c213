// See RecordExtras.h.
#include "records/RecordExtras.h"

#include <algorithm>
#include <memory>
#include <optional>

#include "platform/NumberText.h"
#include "records/TextLengths.h"

namespace quillmetra {

namespace {

constexpr char AfterFigures = '|';

bool HasField(const RecordTable& table, std::string_view name) {
    return std::ranges::any_of(table.Shape.Fields,
                               [&](const FieldShape& field) { return field.Name == name; });
}

// What stands before the text of an extra: the numbers that it belongs to, as the row has them, and a mark;
// none for a row without such numbers, to which it does not apply.
std::optional<std::string> FiguresOf(const RecordExtra& extra, const RecordTable& table,
                                     const Recordset& row) {
    if (extra.Figures.front() == nullptr) return "";
    std::string figures;
    for (const char* name : extra.Figures) {
        if (name == nullptr || !HasField(table, name)) continue;
        figures += (figures.empty() ? "" : " ") + TrimmedStr(row.Number(name));
    }
    if (figures.empty()) return {};
    return figures + AfterFigures;
}

// Stands on the program's row of the record in hand; null when there is none.
std::unique_ptr<Recordset> ProgramRow(Database& database) {
    const RecordTable* const table = ProgramTable(Calc.CurrentProgram);
    if (table == nullptr) return nullptr;
    auto row = std::make_unique<Recordset>(database, table->Shape, Recordset::Unplaced());
    row->Index(TagIndex);
    return row->Seek(Calc.Tag) ? std::move(row) : nullptr;
}

}  // namespace

const TableShape& ExtrasTable() {
    static const TableShape table = {"Calculation Extras",
                                     {{"Tag", FieldType::Text, longest::Tag},
                                      {"Name", FieldType::Text, longest::ExtraName},
                                      {"Value", FieldType::Text, longest::ExtraValue}},
                                     2};
    return table;
}

const std::vector<const TableShape*>& ShapesOfRecords() {
    static const std::vector<const TableShape*> shapes = [] {
        std::vector<const TableShape*> all;
        for (const RecordTable* table : RecordTables()) all.push_back(&table->Shape);
        all.push_back(&ExtrasTable());
        return all;
    }();
    return shapes;
}

std::string ExtraText(NamedValues& extras, const RecordExtra& extra, const RecordTable& table,
                      const Recordset& row) {
    const std::optional<std::string> figures = FiguresOf(extra, table, row);
    const std::string stored = extras.Value(row.Text("Tag"), extra.Name);
    return figures && stored.starts_with(*figures) ? stored.substr(figures->size()) : "";
}

namespace {

// As it is stored; empty for none.
std::string StoredValue(const RecordExtra& extra, const std::string& text, const RecordTable* table,
                        const Recordset* row) {
    if (text.empty() || row == nullptr) return "";
    const auto figures = FiguresOf(extra, *table, *row);
    return figures ? *figures + text : "";
}

}  // namespace

void PutExtra(NamedValues& extras, const RecordExtra& extra, const RecordTable& table, const Recordset& row,
              const std::string& text) {
    const std::string value = StoredValue(extra, text, &table, &row);
    if (!value.empty()) extras.MakeTable();
    extras.Set(row.Text("Tag"), extra.Name, value);
}

void SaveExtras(Database& database) {
    NamedValues extras(database, ExtrasTable());
    const std::unique_ptr<Recordset> row = ProgramRow(database);
    for (const RecordExtra& extra : RecordExtras) {
        const std::string value =
            StoredValue(extra, Calc.*extra.Text, ProgramTable(Calc.CurrentProgram), row.get());
        if (!value.empty()) extras.MakeTable();
        extras.Set(Trim(Calc.Tag), extra.Name, value);
    }
    extras.DeleteWithout(HeadTable().Shape);
}

void GetExtras(Database& database) {
    for (const RecordExtra& extra : RecordExtras) (Calc.*extra.Text).clear();
    NamedValues extras(database, ExtrasTable());
    const std::unique_ptr<Recordset> row = extras.Exists() ? ProgramRow(database) : nullptr;
    if (row == nullptr) return;
    for (const RecordExtra& extra : RecordExtras) {
        Calc.*extra.Text = ExtraText(extras, extra, *ProgramTable(Calc.CurrentProgram), *row);
    }
}

void DeleteExtras(Database& database, std::string_view tag) {
    NamedValues(database, ExtrasTable()).Delete(tag);
}

void CopyExtras(Database& database, std::string_view tag, std::string_view newTag) {
    NamedValues(database, ExtrasTable()).Copy(tag, newTag);
}

}  // namespace quillmetra
