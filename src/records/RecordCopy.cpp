// See RecordCopy.h.
#include "records/RecordCopy.h"

#include <memory>
#include <vector>

#include "records/RecordExtras.h"
#include "records/RecordFiles.h"
#include "records/RecordTables.h"

namespace quillmetra {

namespace {

constexpr std::int64_t RowsATime = 50;  // between two looks at the user

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
        CopyExtrasOfAll();
        return progress_(total_, total_);
    }

private:
    bool CopyTable(const TableShape& shape) {
        to_.AddTable(shape);
        Recordset source(from_, shape), target(to_, shape, Recordset::Unplaced());
        if (source.AtEnd()) return true;
        std::vector<FieldValue> values(shape.Fields.size());
        bool goesOn = true;
        const auto copy = [&](const Recordset& row) {
            for (std::size_t i = 0; i < values.size(); ++i) values[i] = row.Value(i);
            target.AddNew();
            target.SetAll(values);
            target.Update();
            goesOn = done_++ % RowsATime != 0 || progress_(done_, total_);
            return !goesOn;
        };
        if (!copy(source)) source.MoveToNext(copy);
        return goesOn;
    }

    void CopyExtrasOfAll() {
        const TableShape& shape = ExtrasTable();
        if (!from_.HasTable(shape.Name)) return;
        const std::string_view fields[] = {shape.Fields[0].Name, shape.Fields[1].Name, shape.Fields[2].Name};
        NamedValues target(to_, shape);
        target.MakeTable();
        Recordset(from_, shape, Recordset::Unplaced()).EachRow(fields, [&](Recordset::TextRow row) {
            target.Set(row[0], row[1], row[2]);
        });
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
