// The table of services: what is reasonable for the velocity and the loss of a line.
#pragma once

#include <string_view>
#include <vector>

#include "lineloss/LineCriteria.h"

namespace quillmetra {

// The services of a kind of fluid ("Liquid" or "Gas") and those of any, in the order of the table. Failures
// are those of ReadTable.
std::vector<LineCriterion> CriteriaOf(std::string_view fluidKind);

// The one of them with a name, one that asks nothing when there is none. Throws nothing: a table that cannot
// be read has no services.
LineCriterion CriterionOf(std::string_view service, std::string_view fluidKind);

}  // namespace quillmetra
