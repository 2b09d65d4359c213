// See RecordExport.h.
#include "records/RecordExport.h"

#include <set>
#include <vector>

#include "platform/Clock.h"
#include "platform/NumberText.h"
#include "platform/TextFiles.h"
#include "records/OptionCodes.h"
#include "records/RecordExtras.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"

namespace quillmetra {

namespace {

using Columns = std::vector<std::size_t>;  // field numbers of a table

bool IsSpare(const RecordField& field) { return std::holds_alternative<Spare>(field.From); }

Columns AllColumns(const RecordTable& table) {
    Columns columns;
    for (std::size_t i = 0; i < table.Fields.size(); ++i) {
        if (!IsSpare(table.Fields[i])) columns.push_back(i);
    }
    return columns;
}

Columns UnitColumns() {
    Columns columns;
    const RecordTable& table = UnitsTable();
    for (std::size_t i = 1; i < table.Fields.size(); ++i) {
        if (table.Fields[i].Shape.Type == FieldType::Text && !IsSpare(table.Fields[i])) columns.push_back(i);
    }
    return columns;
}

// The fluid data programs calculate all that their row holds for a case.
Columns ResultColumns(const RecordTable& table) {
    Columns columns;
    for (std::size_t i = 0; i < table.Fields.size(); ++i) {
        const Place& from = table.Fields[i].From;
        const auto* cell = std::get_if<Cell>(&from);
        const auto* made = std::get_if<Made>(&from);
        const bool isResult =
            cell != nullptr && (cell->Of == Group::CaseResult || cell->Of == Group::HammerResult);
        const bool isFluidValue =
            &table == &FluidDataTable() && ((cell != nullptr && cell->Of == Group::CaseInput) ||
                                            (made != nullptr && *made == Made::NumberAsText));
        if (isResult || isFluidValue) columns.push_back(i);
    }
    return columns;
}

std::string Item(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted(1, '"');
    for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
    return quoted.append(1, '"');
}

std::string ItemOf(const FieldShape& shape, const FieldValue& value) {
    if (const auto* number = std::get_if<double>(&value)) return TrimmedStr(*number);
    if (const auto* text = std::get_if<std::string>(&value)) {
        return Item(shape.Type == FieldType::Date ? *text : std::string(Trim(*text)));
    }
    return "";
}

// One table of the export with the columns that it gives.
struct Part {
    Part(Database& database, const RecordTable& from, Columns columns)
        : Table(from), Fields(std::move(columns)), Rows(database, from.Shape) {
        Rows.Index(TagIndex);
    }

    const RecordTable& Table;
    Columns Fields;
    Recordset Rows;

    void AppendHeading(std::string& line) const {
        for (const std::size_t field : Fields) line += Item(Table.Shape.Fields[field].Name) + ',';
    }
    void AppendRow(std::string& line, bool found) const {
        for (const std::size_t field : Fields) {
            if (found) line += ItemOf(Table.Shape.Fields[field], Rows.Value(field));
            line += ',';
        }
    }
};

}  // namespace

int ExportRecords(const std::string& databaseFile, const std::string& csvFile,
                  const std::vector<std::string>& tags) {
    const std::unique_ptr<Database> database = OpenRecords(databaseFile);
    Part head(*database, HeadTable(), AllColumns(HeadTable()));
    std::vector<Part> others;
    others.reserve(4);
    others.emplace_back(*database, UnitsTable(), UnitColumns());
    for (const RecordTable* table : {&PressureDropTable(), &WaterhammerTable(), &FluidDataTable()}) {
        others.emplace_back(*database, *table, ResultColumns(*table));
    }
    NamedValues extras(*database, ExtrasTable());
    const std::set<std::string> wantedTags(tags.begin(), tags.end());

    TextWriter file(csvFile);
    std::string line;
    head.AppendHeading(line);
    for (const Part& part : others) part.AppendHeading(line);
    for (const RecordExtra& extra : RecordExtras) line += Item(extra.Name) + ',';
    line.pop_back();
    file.Line(line);

    int count = 0;
    for (; !head.Rows.AtEnd(); head.Rows.MoveNext()) {
        const std::string tag = head.Rows.Text("Tag");
        if (!wantedTags.empty() && !wantedTags.contains(std::string(Trim(tag)))) continue;
        ++count;
        const auto number = static_cast<int>(head.Rows.Number("Program Number"));
        const RecordTable* const own = ProgramTable(ProgramOf(number));
        line.clear();
        head.AppendRow(line, true);
        const Part* ofProgram = nullptr;
        for (Part& part : others) {
            const bool wanted = &part.Table == own || &part.Table == &UnitsTable();
            const bool found = wanted && part.Rows.Seek(tag);
            part.AppendRow(line, found);
            if (found && &part.Table == own) ofProgram = &part;
        }
        for (const RecordExtra& extra : RecordExtras) {
            if (ofProgram != nullptr) line += Item(ExtraText(extras, extra, *own, ofProgram->Rows));
            line += ',';
        }
        line.pop_back();
        file.Line(line);
    }
    file.Commit();
    return count;
}

}  // namespace quillmetra
