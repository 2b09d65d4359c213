// See StoredRows.h.
#include "records/StoredRows.h"

#include <map>
#include <utility>
#include <vector>

#include "core/CalcRecord.h"
#include "core/Suite.h"
#include "platform/KeyOrder.h"
#include "records/RecordFiles.h"

namespace quillmetra {

namespace {

using Stored = std::vector<FieldValue>;

// None for a table without the tag.
Stored StoredRow(Database& database, const RecordTable& table) {
    Recordset rows(database, table.Shape, Recordset::Unplaced());
    rows.Index(TagIndex);
    Stored row;
    if (!rows.Seek(Calc.Tag)) return row;
    for (std::size_t i = 0; i < table.Fields.size(); ++i) row.push_back(rows.Value(i));
    return row;
}

// Who wrote a head last, and the record that it was.
struct KnownHead {
    std::string Tag, File;
    RowChange Change;
};

std::map<const RecordTable*, Stored>& Remembered() {
    static std::map<const RecordTable*, Stored> rows;
    return rows;
}

KnownHead& Known() {
    static KnownHead head;
    return head;
}

RowChange ChangeOfHead(Database& database) {
    return Recordset(database, HeadTable().Shape, Recordset::Unplaced()).LastChange(Calc.Tag);
}

}  // namespace

struct KeptRows::Rows {
    std::map<const RecordTable*, Stored> Remembered;
    KnownHead Known;
};

KeptRows::KeptRows() : rows_(std::make_unique<Rows>(Rows{Remembered(), Known()})) {}

void KeptRows::Let() { rows_.reset(); }

KeptRows::~KeptRows() {
    if (rows_ == nullptr) return;
    Remembered() = std::move(rows_->Remembered);
    Known() = std::move(rows_->Known);
}

void RememberRows(Database& database) {
    Remembered().clear();
    for (const RecordTable* table : {ProgramTable(Calc.CurrentProgram), &MixtureTable()}) {
        if (table != nullptr) Remembered()[table] = StoredRow(database, *table);
    }
    TakeChangeAsKnown(database);
}

void TakeChangeAsKnown(Database& database) {
    Known() = {Calc.Tag, Suite.DatabaseFile, ChangeOfHead(database)};
}

RowChange ChangedSince(Database& database) {
    if (CompareKeys(Known().Tag, Calc.Tag) != 0 || !IsSameFile(Known().File, Suite.DatabaseFile)) return {};
    if (!IsSameFile(Calc.LoadedDatabaseFile, Suite.DatabaseFile)) return {};
    const RowChange change = ChangeOfHead(database);
    return change == Known().Change ? RowChange() : change;
}

bool IsAsRemembered(Database& database, const RecordTable& table) {
    const Stored row = StoredRow(database, table);
    const auto known = Remembered().find(&table);
    return !row.empty() && known != Remembered().end() && row == known->second;
}

}  // namespace quillmetra
