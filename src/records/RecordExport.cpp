// See RecordExport.h.
#include "records/RecordExport.h"

#include <algorithm>
#include <utility>

#include "platform/NumberText.h"
#include "platform/TextFiles.h"
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

}  // namespace

int ExportRecords(const std::string& databaseFile, const std::string& csvFile,
                  const std::vector<std::string>& tags) {
    const std::unique_ptr<Database> database = OpenRecords(databaseFile);
    RecordCells cells(*database);
    std::vector<std::string> lines = {HeadLine()};
    for (const std::string& tag : cells.Tags(tags)) {
        if (cells.Take(tag)) lines.push_back(LineOf(cells));
    }
    TextWriter file(csvFile);
    if (!std::ranges::all_of(lines, IsIn1252)) file.UseUtf8();
    for (std::string& line : lines) file.Line(std::exchange(line, {}));  // there may be 100,000
    file.Commit();
    return static_cast<int>(lines.size()) - 1;
}

}  // namespace quillmetra
