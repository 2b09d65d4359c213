// The head of a record as the browser and the print control show it.
#pragma once

#include "platform/Controls.h"
#include "records/RecordView.h"

namespace quillmetra {

struct RecordFields {
    explicit RecordFields(Frame& frame);

    void Show(const RecordHead& head);

    Label lblTagNum;
    TextBox txtTagNum;
    Label lblTRCalc;
    TextBox txtTRCalc;
    Label lblFluidType;
    TextBox txtFluidType;
    Label lblCalcBy;
    TextBox txtCalcBy;
    Label lblCalcDate;
    TextBox txtCalcDate;
    Label lblDataDate;
    TextBox txtDataDate;
};

}  // namespace quillmetra
