// What the layouts of the two line-loss forms have in common.
#pragma once

#include <string>
#include <vector>

#include "desktop/layouts/Calculation.h"

namespace quillmetra::layout {

// The inputs of the form: the line, the rows of its cases with their results, and what follows from these.
Node LineLoss(std::vector<std::vector<Node>> rows, std::vector<std::vector<Node>> following);
std::vector<Node> CaseHeads();
std::vector<Node> CalculateRow();
// A row that is there only for a time.
std::vector<Node> PassingCases(const std::string& stem);

}  // namespace quillmetra::layout
