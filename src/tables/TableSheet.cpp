// See TableSheet.h.
#include "tables/TableSheet.h"

#include <algorithm>

#include "platform/NumberText.h"
#include "platform/TextFiles.h"
#include "platform/Utf8.h"

namespace quillmetra {

namespace {

constexpr std::size_t NamingColumns = 4;  // one of them names a row that is kept by KeptRows::NamedInColumns

bool HoldsText(std::string_view line) { return line.find_first_not_of(" \t,") != std::string_view::npos; }

// The text behind the last column of the table.
std::string_view TextBehind(const TableDescription& table, std::string_view line) {
    for (int i = 0; i < table.ColumnCount(); ++i) {
        const std::size_t comma = line.find(',');
        if (comma == std::string_view::npos) return {};
        line.remove_prefix(comma + 1);
    }
    return line;
}

bool IsSplit(const TableDescription& table, std::string_view line) {
    return static_cast<int>(CharacterCount(line)) > table.SplitLimit;
}

bool IsKept(const TableDescription& table, const TableFields& fields) {
    const auto holds = [](const std::string& field) { return !Trim(field).empty(); };
    switch (table.Kept) {
        case KeptRows::All: return true;
        case KeptRows::Named: return holds(fields[0]);
        case KeptRows::NamedInColumns:
            return std::any_of(fields.begin(), fields.begin() + NamingColumns, holds);
    }
    return true;
}

std::string LineOf(const TableDescription& table, const TableFields& fields) {
    std::string line;
    for (std::size_t i = 0; i < table.Columns.size(); ++i) {
        const std::string_view field = Trim(fields[i]);
        line += field;
        const auto length = static_cast<int>(CharacterCount(field));
        if (i == 0 && length < table.NameWidth) {
            line.append(static_cast<std::size_t>(table.NameWidth - length), ' ');
        }
        line += table.Separator;
    }
    const auto breaks = [](char c) { return c == '\r' || c == '\n' || c == '\x1A'; };
    std::replace_if(line.begin(), line.end(), breaks, ' ');
    return line;
}

}  // namespace

TableSheet LoadTable(const TableDescription& table, const TableVariant& variant) {
    LineReader file(TablePath(table, variant));
    TableSheet sheet;
    std::string line;
    int number = 1;
    for (; file.Next(line); ++number) {
        const bool heading = number == 1;
        const bool row = heading || static_cast<int>(CharacterCount(line)) >= table.MinimumLength;
        const bool split = heading || (row && IsSplit(table, line));
        if (row) sheet.Rows.push_back(heading ? SplitFields(table, line) : SplitTableLine(table, line));
        if (HoldsText(split ? TextBehind(table, line) : line)) sheet.Lost.push_back({number, line});
    }
    if (!file.BehindEnd().empty()) sheet.Lost.push_back({number, file.BehindEnd()});
    return sheet;
}

std::optional<std::string> SavedTableLine(const TableDescription& table, const TableFields& fields) {
    if (!IsKept(table, fields)) return std::nullopt;
    return LineOf(table, fields);
}

namespace {

std::string NumberWarning(const TableDescription& table, const TableFields& fields) {
    for (int column = table.FirstNumber; column > 0 && column <= table.LastNumber; ++column) {
        const std::string& field = fields[static_cast<std::size_t>(column - 1)];
        if (ValReadsAll(field)) continue;
        return std::string(TableHead(table, column)) + ": " + std::string(Trim(field)) + " is read as " +
               TrimmedStr(Val(field));
    }
    return "";
}

}  // namespace

std::string RowWarning(const TableDescription& table, const TableFields& fields) {
    const auto exceeds = [](std::string_view text, std::size_t most) {
        return most > 0 && CharacterCount(text) > most;
    };
    const auto words = [](const char* what, std::size_t most, const char* record) {
        return what + std::to_string(most) + " letters: no " + record + " with this row can be saved";
    };
    if (exceeds(Trim(fields[0]), table.LongestName)) {
        return words("The name has more than ", table.LongestName, "calculation");
    }
    const std::string line = SavedTableLine(table, fields).value_or("");
    return exceeds(line, table.LongestLine) ? words("The row has more than ", table.LongestLine, "mixture")
                                            : NumberWarning(table, fields);
}

void SaveTable(const TableDescription& table, const std::vector<TableFields>& rows,
               const TableVariant& variant) {
    TextWriter file(TablePath(table, variant));
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const std::optional<std::string> line =
            i == 0 ? LineOf(table, rows[i]) : SavedTableLine(table, rows[i]);
        if (line) file.Line(*line);
    }
    file.Commit();
}

}  // namespace quillmetra
