// The services of a line: those that it can have, as the line forms and the sizes list them, and what a case
// of the line in hand exceeds of the criterion of its own.
#pragma once

#include <vector>

#include "lineloss/LineCriteria.h"
#include "platform/Form.h"
#include "units/CorrelationRange.h"

namespace quillmetra {

// Those of the kind of fluid in hand, after words::NoService, which asks nothing. A table that cannot be read
// is told in the status line of the form.
std::vector<LineCriterion> ServicesOffered(Form& form);

// One at the most, of a case whose results stand; of a service that the table no longer has, that.
HintList ServiceHints(int caseIndex);

}  // namespace quillmetra
