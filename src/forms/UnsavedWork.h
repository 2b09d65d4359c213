// What stands between a crash and the work of the last minutes.
#pragma once

namespace quillmetra {

// Keeps what the open calculation form holds, when it has changes. To be called every minute, between two
// acts of the user; within one it does nothing.
void KeepUnsavedWork();

// After the start: offers the calculation that a crash has left, once.
void OfferRecovery();

}  // namespace quillmetra
