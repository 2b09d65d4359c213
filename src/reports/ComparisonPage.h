// A comparison on the printer.
#pragma once

#include "reports/Comparison.h"

namespace quillmetra {

// Prints its rows, all of them or those that differ, on as many pages as they need, and ends the document.
// Sizes in points. Throws a RuntimeError when the printer fails.
void PrintComparison(const Comparison& comparison, bool onlyDiffering, double baseFontSize);

}  // namespace quillmetra
