// What the layouts of the calculation forms have in common.
#pragma once

#include <utility>
#include <vector>

#include "desktop/Layout.h"

namespace quillmetra::layout {

Node Identification();  // tag, fluid, and the way to the options
Node Signatures();
Node Basis();  // units, options and source of the formulas

// The frames that open over the inputs.
Node Fluids(const char* frame);
Node Components();
Node BaseConditions();

}  // namespace quillmetra::layout
