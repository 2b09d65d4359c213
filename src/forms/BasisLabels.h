// What a form says about the basis of its results: its units and options, and the source of the formulas.
#pragma once

#include "platform/Controls.h"

namespace quillmetra {

struct BasisLabels {
    explicit BasisLabels(Frame& inputs)
        : lblSetupSelections(inputs, "lblSetupSelections"), lblCalcSource(inputs, "lblCalcSource") {}

    Label lblSetupSelections;
    Label lblCalcSource;
};

}  // namespace quillmetra
