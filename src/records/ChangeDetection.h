// Works out whether the record in hand differs from what the database holds, and which of its rows a save
// must write anew.
#pragma once

namespace quillmetra {

// Compares the record with its saved generation and sets RecordChanged, SavePDRow, SaveFDRow, SaveWHRow and
// MixtureSave. Does nothing while ChangedFlag is empty, that is when nothing was entered or calculated since
// the record was loaded or saved. Standard conditions never mark a record as changed, and neither does the
// loss per 100 alone. SaveWHRow, once "Yes", stays until the record is saved.
void DetectChanges();

}  // namespace quillmetra
