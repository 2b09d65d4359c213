// See ChangeDetection.h.
#include "records/ChangeDetection.h"

#include "core/CalcRecord.h"
#include "core/Words.h"

namespace quillmetra {

void DetectChanges() { Calc.RecordChanged = words::No; }

}  // namespace quillmetra
