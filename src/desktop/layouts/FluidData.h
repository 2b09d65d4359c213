// What the layouts of the two fluid data forms have in common.
#pragma once

#include "desktop/layouts/Calculation.h"

namespace quillmetra::layout {

// The inputs of the form: state and properties of three cases, and the parts beside the signatures.
Node FluidData(std::vector<std::vector<Node>> properties, std::vector<Node> beside);

}  // namespace quillmetra::layout
