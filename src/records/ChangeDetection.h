// Works out whether the record in hand differs from what the database holds.
#pragma once

namespace quillmetra {

// Sets RecordChanged. The suite keeps no records yet, so nothing counts as changed and nobody is asked to
// save.
void DetectChanges();

}  // namespace quillmetra
