// The border where a calculated number enters a control, the display layer, a file or a page: what is not
// finite stops here, before anything is stored.
#pragma once

#include <cmath>

#include "platform/RuntimeError.h"

namespace quillmetra {

// Returns the value itself when it is finite. Throws "Division by zero" for a value that is no number and
// "Overflow" for an infinite one.
inline double CheckFinite(double value) {
    if (std::isnan(value)) throw failure::DivisionByZero();
    if (std::isinf(value)) throw failure::Overflow();
    return value;
}

}  // namespace quillmetra
