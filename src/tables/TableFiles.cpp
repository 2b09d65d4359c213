// See TableFiles.h.
#include "tables/TableFiles.h"

#include <algorithm>

#include "platform/NumberText.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"

namespace quillmetra {

TableFields SplitTableLine(const TableDescription& table, std::string_view line) {
    if (static_cast<int>(CharacterCount(line)) <= table.SplitLimit) return {};
    return SplitFields(table, line);
}

TableFields SplitFields(const TableDescription& table, std::string_view line) {
    TableFields fields;
    const std::size_t count = std::min(table.Columns.size(), MostFields);
    std::size_t start = 0;
    for (std::size_t i = 0; i < count && start <= line.size(); ++i) {
        const std::size_t comma = std::min(line.find(',', start), line.size());
        const std::string_view field = line.substr(start, comma - start);
        fields[i] = table.TrimsFields ? Trim(field) : field;
        start = comma + 1;
    }
    return fields;
}

std::string_view RowName(std::string_view line) { return Trim(line.substr(0, line.find(','))); }

std::vector<std::string> ReadTable(const TableDescription& table, const TableVariant& variant) {
    LineReader file(TablePath(table, variant));
    std::string line;
    if (!file.Next(line)) throw failure::InputPastEnd();
    std::vector<std::string> rows;
    while (file.Next(line)) {
        if (static_cast<int>(CharacterCount(line)) >= table.MinimumLength) rows.push_back(std::move(line));
    }
    return rows;
}

int FindTableRow(const std::vector<std::string>& rows, std::string_view name) {
    const std::string_view wanted = Trim(name);
    const auto found = std::find_if(rows.begin(), rows.end(),
                                    [&](const std::string& row) { return RowName(row) == wanted; });
    return found == rows.end() ? 0 : static_cast<int>(found - rows.begin());
}

}  // namespace quillmetra
