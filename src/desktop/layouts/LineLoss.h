// What the layouts of the two line-loss forms have in common.
#pragma once

#include "desktop/layouts/Calculation.h"

namespace quillmetra::layout {

// The inputs of the form: the line, and the rows of its cases with their results.
Node LineLoss(std::vector<std::vector<Node>> rows);
std::vector<Node> CaseHeads();
std::vector<Node> CalculateRow();

}  // namespace quillmetra::layout
