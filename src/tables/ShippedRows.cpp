// See ShippedRows.h.
#include "tables/ShippedRows.h"

#include <algorithm>
#include <map>
#include <set>

#include "core/PipeFamilies.h"
#include "core/Suite.h"
#include "platform/NumberText.h"
#include "platform/ProgramPlaces.h"
#include "platform/RuntimeError.h"
#include "platform/TextFiles.h"
#include "tables/TableFiles.h"

namespace quillmetra {

namespace {

struct ShippedTable {
    const TableDescription* Table;
    std::string File;
};

std::vector<ShippedTable> ShippedTables() {
    std::vector<ShippedTable> tables;
    for (const TableDescription* each :
         {&table::Liquid, &table::Gas, &table::Modulus, &table::Material, &table::Criteria}) {
        tables.push_back({each, std::string(each->FileName)});
    }
    for (const PipeFamily& family : PipeFamilies) tables.push_back({&table::PipeFamily, family.File});
    return tables;
}

bool IsPipe(const TableDescription& table) { return &table == &table::PipeFamily; }

// A text file line by line, the heading first, and what stands behind its end.
struct Lines {
    std::vector<std::string> All;
    std::string Behind;
};

Lines ReadLines(const std::string& path) {
    LineReader reader(path);
    Lines lines;
    for (std::string line; reader.Next(line);) lines.All.push_back(line);
    lines.Behind = reader.BehindEnd();
    return lines;
}

std::string UserPath(const std::string& file) { return Suite.DefaultPaths[path::DataFiles] + "\\" + file; }
std::string ShippedPath(const std::string& file) { return SuitePath(ShippedDataFolder()) + "\\" + file; }

// The fields of a row without their padding.
TableFields FieldsOf(const TableDescription& table, const std::string& line) {
    TableFields fields = SplitFields(table, line);
    for (std::string& field : fields) field = Trim(field);
    return fields;
}

// What a row is found by: its name, of a pipe its size and schedule.
std::string KeyOf(const TableDescription& table, const std::string& line) {
    const TableFields fields = FieldsOf(table, line);
    return IsPipe(table) ? TrimmedStr(Val(fields[0])) + " " + fields[1] : fields[0];
}

// What a row is called in words.
std::string RowInWords(const TableDescription& table, const std::string& line) {
    if (!IsPipe(table)) return KeyOf(table, line);
    const TableFields fields = FieldsOf(table, line);
    return "size " + fields[0] + ", schedule " + fields[1];
}

using RowPlaces = std::map<std::string, std::size_t>;

// The line of each key; the first one where a key stands twice.
RowPlaces PlacesOf(const TableDescription& table, const std::vector<std::string>& lines) {
    RowPlaces places;
    for (std::size_t i = 1; i < lines.size(); ++i) places.emplace(KeyOf(table, lines[i]), i);
    return places;
}

// "Propane: BulkMod 54.6, now 39.4; Slope 15, now 14".
std::string ChangeInWords(const TableDescription& table, const TableFields& before, const TableFields& now) {
    std::string text;
    for (std::size_t i = 0; i < table.Columns.size(); ++i) {
        if (before[i] == now[i]) continue;
        text += text.empty() ? ": " : "; ";
        text += std::string(table.Columns[i].Name) + " " + before[i] + ", now " + now[i];
    }
    return text;
}

// The former rows by their key.
using FormerRows = std::multimap<std::string, TableFields>;

FormerRows ReadFormer(const ShippedTable& shipped) {
    FormerRows rows;
    try {
        const Lines former = ReadLines(ShippedPath("former\\" + shipped.File));
        for (std::size_t i = 1; i < former.All.size(); ++i) {
            rows.emplace(KeyOf(*shipped.Table, former.All[i]), FieldsOf(*shipped.Table, former.All[i]));
        }
    } catch (const RuntimeError&) {
        // a family that had no table before
    }
    return rows;
}

bool WasShipped(const FormerRows& former, const std::string& key, const TableFields& fields) {
    const auto [first, last] = former.equal_range(key);
    return std::any_of(first, last, [&](const auto& row) { return row.second == fields; });
}

void AddRowsOf(const ShippedTable& shipped, std::vector<ShippedRow>& rows) {
    const TableDescription& table = *shipped.Table;
    const std::vector<std::string> now = ReadLines(ShippedPath(shipped.File)).All;
    const bool exists = FileExists(UserPath(shipped.File));
    const std::vector<std::string> lines =
        exists ? ReadLines(UserPath(shipped.File)).All : std::vector<std::string>{};
    if (lines.empty()) {
        const std::string count = std::to_string(now.size() - 1);
        rows.push_back({&table, shipped.File, now.at(0), Newness::File, "new table, " + count + " rows"});
        return;
    }
    if (lines == now) return;
    const FormerRows former = ReadFormer(shipped);
    const RowPlaces places = PlacesOf(table, lines);
    for (std::size_t i = 1; i < now.size(); ++i) {
        const std::string key = KeyOf(table, now[i]);
        const auto place = places.find(key);
        if (place == places.end()) {
            // What was shipped before and is not there has been taken out by the user.
            if (!former.contains(key))
                rows.push_back(
                    {&table, shipped.File, now[i], Newness::Row, "new: " + RowInWords(table, now[i])});
            continue;
        }
        const TableFields fields = FieldsOf(table, now[i]);
        const TableFields users = FieldsOf(table, lines[place->second]);
        if (users == fields || !WasShipped(former, key, users)) continue;
        const std::string change = ChangeInWords(table, users, fields);
        rows.push_back({&table, shipped.File, now[i], Newness::Figures, RowInWords(table, now[i]) + change});
    }
}

// Where a new row goes. Calculations know a material by its number, so that it stands last; pipe goes by its
// size, anything else behind the row that it follows as shipped.
std::size_t PlaceFor(const TableDescription& table, const std::vector<std::string>& lines,
                     const std::vector<std::string>& shipped, const std::string& line) {
    if (&table == &table::Material) return lines.size();
    if (IsPipe(table)) {
        const double size = Val(FieldsOf(table, line)[0]);
        std::size_t place = lines.size();
        while (place > 1 && Val(FieldsOf(table, lines[place - 1])[0]) > size) --place;
        return place;
    }
    const RowPlaces places = PlacesOf(table, lines);
    auto before = std::find(shipped.begin(), shipped.end(), line);
    while (before != shipped.begin() && --before != shipped.begin()) {
        const auto found = places.find(KeyOf(table, *before));
        if (found != places.end()) return found->second + 1;
    }
    return std::min<std::size_t>(1, lines.size());
}

void PutRow(const ShippedRow& row, const std::vector<std::string>& shipped, std::vector<std::string>& lines) {
    if (row.What == Newness::Figures) {
        lines[PlacesOf(*row.Table, lines).at(KeyOf(*row.Table, row.Line))] = row.Line;
        return;
    }
    const auto place = static_cast<std::ptrdiff_t>(PlaceFor(*row.Table, lines, shipped, row.Line));
    lines.insert(lines.begin() + place, row.Line);
}

// Those rows of a file that are new to it still: it may have been changed since they were offered.
std::vector<ShippedRow> StillOffered(const std::string& file, const std::vector<ShippedRow>& rows) {
    std::vector<ShippedRow> offered, still;
    for (const ShippedRow& row : rows) {
        if (row.File != file || row.What == Newness::File) continue;
        if (offered.empty()) AddRowsOf({row.Table, file}, offered);
        const auto isRow = [&](const ShippedRow& each) {
            return each.Line == row.Line && each.What == row.What;
        };
        if (std::ranges::any_of(offered, isRow)) still.push_back(row);
    }
    return still;
}

}  // namespace

std::vector<ShippedRow> NewerShippedRows() {
    std::vector<ShippedRow> rows;
    for (const ShippedTable& shipped : ShippedTables()) {
        try {
            AddRowsOf(shipped, rows);
        } catch (const RuntimeError&) {
            // neither read nor written
        }
    }
    return rows;
}

void WriteShippedRows(const std::string& file, const std::vector<ShippedRow>& rows) {
    const std::vector<std::string> shipped = ReadLines(ShippedPath(file)).All;
    const bool whole = std::ranges::any_of(
        rows, [&](const ShippedRow& row) { return row.File == file && row.What == Newness::File; });
    Lines lines = whole ? Lines{shipped, {}} : ReadLines(UserPath(file));
    for (const ShippedRow& row : StillOffered(file, rows)) PutRow(row, shipped, lines.All);
    TextWriter writer(UserPath(file));
    for (const std::string& line : lines.All) writer.Line(line);
    if (!lines.Behind.empty()) writer.Line("\x1A" + lines.Behind);
    writer.Commit();
}

}  // namespace quillmetra
