// Standard pressure and temperature that hardly anybody refers a volume to: 14.7 and 60 read the wrong way
// round, a slip of the finger. Nothing is refused; the user is told.
#pragma once

#include <string>

#include "units/CorrelationRange.h"

namespace quillmetra {

// What is to be said of the standard conditions of the record in hand, as one sentence in the units of its
// system; none within 13 to 16 psia and 32 to 100 degF. No result depends on them.
HintList StandardConditionsHints();

// The same of those that the file holds, from which the next new calculation starts. Empty without a file.
std::string FileConditionsHint();

// What is to be said after the file was written: how the next start will read it.
std::string FileConditionsNote();

}  // namespace quillmetra
