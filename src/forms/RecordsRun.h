// What the forms have in common that work on many records and write them at the end.
#pragma once

#include <functional>
#include <string>

#include "platform/Form.h"

namespace quillmetra {

// Runs what Escape can stop, which is false then, and shows it: showRunning is told of its begin and its end.
// The record in hand is as before at its end. False, with a word, for one that was stopped or failed.
bool RunWhole(Form& form, const std::string& doing, const std::function<void(bool running)>& showRunning,
              const std::function<bool()>& run);

// Asks, and saves; false for No and, after a message, for a failure.
bool SaveOnConsent(const Form& form, const std::string& question, const std::function<void()>& save);

}  // namespace quillmetra
