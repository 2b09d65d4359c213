// See RecordCopy.h.
#include "records/RecordCopy.h"

#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/KeyOrder.h"
#include "records/RecordExtras.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"

namespace quillmetra {

namespace {

constexpr std::ptrdiff_t RowsATime = 100;  // between two looks at the user

struct KeyBefore {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return CompareKeys(a, b) < 0; }
};

class Copier {
public:
    Copier(Database& from, Database& to, const CopyProgress& progress)
        : from_(from), to_(to), progress_(progress) {
        for (const RecordTable* table : RecordTables()) {
            if (!from.HasTable(table->Shape.Name)) continue;
            total_ += Recordset(from, table->Shape, Recordset::Unplaced()).RecordCount();
        }
    }

    bool CopyAll() {
        for (const RecordTable* table : RecordTables()) {
            if (from_.HasTable(table->Shape.Name) && !CopyTable(table->Shape)) return false;
        }
        return CopyExtrasOfAll() && progress_(total_, total_);
    }

private:
    using Row = std::vector<FieldValue>;

    bool CopyTable(const TableShape& shape) {
        to_.AddTable(shape);
        Recordset source(from_, shape), target(to_, shape, Recordset::Unplaced());
        if (source.AtEnd()) return true;
        std::vector<Row> rows;
        bool goesOn = true;
        const auto copy = [&](const Recordset& row) {
            Row& values = rows.emplace_back();
            for (std::size_t i = 0; i < shape.Fields.size(); ++i) values.push_back(row.Value(i));
            goesOn = std::ssize(rows) < RowsATime || Put(target, rows);
            return !goesOn;
        };
        if (!copy(source)) source.MoveToNext(copy);
        return goesOn && Put(target, rows);
    }

    // False when the user has had enough.
    bool Put(Recordset& target, std::vector<Row>& rows) {
        done_ += static_cast<std::int64_t>(rows.size());
        target.AddAll(std::exchange(rows, {}));
        return progress_(done_, total_);
    }

    // An extra whose record is gone stays behind.
    bool CopyExtrasOfAll() {
        const TableShape& shape = ExtrasTable();
        if (!from_.HasTable(shape.Name)) return true;
        to_.AddTable(shape);
        const std::set<std::string, KeyBefore> tags = TagsOf(from_);
        const std::string_view fields[] = {shape.Fields[0].Name, shape.Fields[1].Name, shape.Fields[2].Name};
        std::vector<Row> rows;
        Recordset(from_, shape, Recordset::Unplaced()).EachRow(fields, [&](Recordset::TextRow row) {
            if (!tags.contains(row[0]) || row[2].empty()) return;
            rows.push_back({std::string(row[0]), std::string(row[1]), std::string(row[2])});
        });
        Recordset target(to_, shape, Recordset::Unplaced());
        for (auto from = rows.begin(); from != rows.end();) {
            const auto to = rows.end() - from > RowsATime ? from + RowsATime : rows.end();
            target.AddAll({from, to});
            from = to;
            if (!progress_(done_, total_)) return false;
        }
        return true;
    }

    static std::set<std::string, KeyBefore> TagsOf(Database& database) {
        auto keys = Recordset(database, HeadTable().Shape, Recordset::Unplaced()).Keys();
        return {std::make_move_iterator(keys.begin()), std::make_move_iterator(keys.end())};
    }

    Database& from_;
    Database& to_;
    const CopyProgress& progress_;
    std::int64_t total_ = 0, done_ = 0;
};

}  // namespace

bool CopyAllRecords(const std::string& from, const std::string& to, const CopyProgress& progress) {
    const std::unique_ptr<Database> source = OpenRecords(from), target = OpenRecords(to);
    if (const auto there = Recordset(*target, HeadTable().Shape, Recordset::Unplaced()).RecordCount()) {
        throw RuntimeError(failure::ValueRefused,
                           "Records are copied into a database that has none; this one has " +
                               Counted(static_cast<std::size_t>(there), "record"));
    }
    const AnyLength texts;  // those of a file from elsewhere stay as they are
    const std::int64_t version = source->Version();
    Transaction all(*target);
    if (!Copier(*source, *target, progress).CopyAll()) return false;
    if (source->Version() != version) throw failure::DatabaseReplaced();
    all.Commit();
    return true;
}

}  // namespace quillmetra
