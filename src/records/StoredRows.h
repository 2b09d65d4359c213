// The rows of the record in hand as the database held them when the record was loaded or saved last. Other
// programs may write the same record meanwhile, and what they have written is no part of the record in hand.
#pragma once

#include <memory>

#include "platform/Database.h"
#include "records/RecordTables.h"

namespace quillmetra {

// Remembers the rows of Calc.Tag that a save leaves out when nothing was changed in them.
void RememberRows(Database& database);

// Whether the database still holds the row of Calc.Tag that was remembered; false where it has none.
bool IsAsRemembered(Database& database, const RecordTable& table);

// Who has changed the record of Calc.Tag since it was loaded or saved here, and when; empty for nobody and
// for a record that comes from elsewhere.
RowChange ChangedSince(Database& database);
// From here on that change is known.
void TakeChangeAsKnown(Database& database);

// What is remembered stays so for its life, whatever is loaded meanwhile.
class KeptRows {
public:
    KeptRows();
    ~KeptRows();
    KeptRows(const KeptRows&) = delete;
    void Let();  // stand what was remembered meanwhile
    KeptRows& operator=(const KeptRows&) = delete;

private:
    struct Rows;
    std::unique_ptr<Rows> rows_;
};

}  // namespace quillmetra
