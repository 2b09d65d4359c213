// Unsaved work, kept against a crash: the record in hand alone in a database of its own in the program's
// folder (Suite.RecoveryFile). It goes when the record is saved or given up, so that one which is there at
// the start tells of a crash.
#pragma once

namespace quillmetra {

// Writes the record in hand. A failure is no matter for the user: what was kept before stays.
void KeepRecovery();
void DropRecovery();
bool HasRecovery();

// Reads what was kept into the record in hand, as a record that is still to be saved: it belongs to no
// database. False when it cannot be read.
bool TakeRecovery();

}  // namespace quillmetra
