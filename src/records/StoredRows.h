// The rows of the record in hand as the database held them when the record was loaded or saved last. Other
// programs may write the same record meanwhile, and what they have written is no part of the record in hand.
#pragma once

#include "platform/Database.h"
#include "records/RecordTables.h"

namespace quillmetra {

// Remembers the rows of Calc.Tag that a save leaves out when nothing was changed in them.
void RememberRows(Database& database);

// Whether the database still holds the row of Calc.Tag that was remembered; false where it has none.
bool IsAsRemembered(Database& database, const RecordTable& table);

}  // namespace quillmetra
