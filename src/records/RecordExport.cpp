// See RecordExport.h.
#include "records/RecordExport.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/Programs.h"
#include "platform/NumberText.h"
#include "platform/TextCase.h"
#include "platform/TextFiles.h"
#include "platform/WorkbookWriter.h"
#include "records/RecordCells.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

std::string Item(const std::string& text) {
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string quoted(1, '"');
    for (const char c : text) quoted.append(c == '"' ? 2 : 1, c);
    return quoted.append(1, '"');
}

std::string ItemOf(const FieldValue& value) {
    if (const auto* number = std::get_if<double>(&value)) return TrimmedStr(*number);
    if (const auto* text = std::get_if<std::string>(&value)) return Item(CellOfText(*text));
    return "";
}

std::string HeadLine() {
    std::string line;
    for (const RecordColumn& column : RecordColumns()) line += Item(column.Name) + ',';
    line.pop_back();
    return line;
}

std::string LineOf(RecordCells& cells) {
    std::string line;
    for (const RecordColumn& column : RecordColumns()) line += ItemOf(cells.Value(column)) + ',';
    line.pop_back();
    return line;
}

int WriteValues(RecordCells& cells, const std::string& file, const std::vector<std::string>& tags) {
    std::vector<std::string> lines = {HeadLine()};
    for (const std::string& tag : tags) {
        if (cells.Take(tag)) lines.push_back(LineOf(cells));
    }
    TextWriter writer(file);
    if (!std::ranges::all_of(lines, IsIn1252)) writer.UseUtf8();
    const auto count = static_cast<int>(lines.size()) - 1;
    for (std::string& line : lines) writer.Line(std::exchange(line, {}));  // there may be 100,000
    writer.Commit();
    return count;
}

// --- A workbook --------------------------------------------------------------------------------------------

using SheetColumns = std::vector<const RecordColumn*>;

SheetColumns ColumnsOf(int program) {
    SheetColumns columns;
    for (const RecordColumn& column : RecordColumns()) {
        if (column.IsOf(program)) columns.push_back(&column);
    }
    return columns;
}

constexpr std::array SheetNames = {"Other",        "Liquid line loss",  "Gas line loss",
                                   "Water hammer", "Liquid properties", "Gas properties"};

using TagsOfPrograms = std::array<std::vector<std::string>, SheetNames.size()>;

TagsOfPrograms ByProgram(RecordCells& cells, const std::vector<std::string>& tags) {
    TagsOfPrograms byProgram;
    for (const std::string& tag : tags) {
        if (!cells.Take(tag)) continue;
        const bool isOne = FindProgram(cells.Program()) != nullptr;
        byProgram[isOne ? At(cells.Program()) : 0].push_back(tag);
    }
    return byProgram;
}

// The row of the units that all records share, empty where they differ. Its word stands in the place of the
// tag, and a reader knows the row by it.
std::vector<WorkbookCell> SharedUnits(RecordCells& cells, const SheetColumns& columns,
                                      const std::vector<std::string>& tags) {
    std::vector<std::string> units(columns.size());
    for (const std::string& tag : tags) {
        if (!cells.Take(tag)) continue;
        for (std::size_t i = 0; i < columns.size(); ++i) {
            std::string unit = cells.Unit(*columns[i]);
            if (unit != units[i]) units[i] = &tag == &tags.front() ? std::move(unit) : "";
        }
    }
    units.front() = "Units";
    return {units.begin(), units.end()};
}

WorkbookCell CellOf(const RecordColumn& column, const FieldValue& value) {
    if (const auto* number = std::get_if<double>(&value)) return *number;
    const auto* text = std::get_if<std::string>(&value);
    if (text == nullptr || text->empty()) return {};
    if (column.Type() == FieldType::Date) return WorkbookDate{*text};
    if (column.IsNumber() && ValReadsAll(*text)) return Val(*text);
    return CellOfText(*text);
}

int WriteSheet(WorkbookWriter& book, RecordCells& cells, int program, const std::vector<std::string>& tags) {
    const SheetColumns columns = ColumnsOf(program);
    std::vector<WorkbookCell> row;
    for (const RecordColumn* column : columns) row.emplace_back(column->Name);
    book.Sheet(SheetNames[At(program)], 2);
    book.Row(row);
    book.Row(SharedUnits(cells, columns, tags));
    int count = 0;
    for (const std::string& tag : tags) {
        if (!cells.Take(tag)) continue;
        std::ranges::transform(columns, row.begin(), [&cells](const RecordColumn* column) {
            return CellOf(*column, cells.Value(*column));
        });
        book.Row(row);
        ++count;
    }
    return count;
}

int WriteWorkbook(RecordCells& cells, const std::string& file, const std::vector<std::string>& tags) {
    WorkbookWriter book(file);
    const TagsOfPrograms byProgram = ByProgram(cells, tags);
    const bool isEmpty = std::ranges::all_of(byProgram, &std::vector<std::string>::empty);
    int count = 0;
    for (const Program& program : Programs) {
        const std::vector<std::string>& own = byProgram[At(program.Number)];
        if (isEmpty || !own.empty()) count += WriteSheet(book, cells, program.Number, own);
    }
    if (!byProgram[0].empty()) count += WriteSheet(book, cells, 0, byProgram[0]);
    book.Commit();
    return count;
}

}  // namespace

bool IsWorkbookName(const std::string& file) { return LowerCase(file).ends_with(".xlsx"); }

int ExportRecords(const std::string& databaseFile, const std::string& file,
                  const std::vector<std::string>& tags) {
    const std::unique_ptr<Database> database = OpenRecords(databaseFile);
    RecordCells cells(*database);
    const auto write = IsWorkbookName(file) ? WriteWorkbook : WriteValues;
    return write(cells, file, cells.Tags(tags));
}

}  // namespace quillmetra
