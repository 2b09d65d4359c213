// See RecordFields.h.
#include "forms/RecordFields.h"

namespace quillmetra {

RecordFields::RecordFields(Frame& frame)
    : lblTagNum(frame, "lblTagNum", "Tag number"),
      txtTagNum(frame, "txtTagNum"),
      lblTRCalc(frame, "lblTRCalc", "Calculation"),
      txtTRCalc(frame, "txtTRCalc"),
      lblFluidType(frame, "lblFluidType", "Fluid type"),
      txtFluidType(frame, "txtFluidType"),
      lblCalcBy(frame, "lblCalcBy", "Calculated by"),
      txtCalcBy(frame, "txtCalcBy"),
      lblCalcDate(frame, "lblCalcDate", "Calculation date"),
      txtCalcDate(frame, "txtCalcDate"),
      lblDataDate(frame, "lblDataDate", "Process data date"),
      txtDataDate(frame, "txtDataDate") {
    const struct {
        TextBox& Box;
        Label& Name;
    } fields[] = {{txtTagNum, lblTagNum}, {txtTRCalc, lblTRCalc},     {txtFluidType, lblFluidType},
                  {txtCalcBy, lblCalcBy}, {txtCalcDate, lblCalcDate}, {txtDataDate, lblDataDate}};
    for (const auto& field : fields) {
        field.Box.Locked = true;
        field.Box.TabStop = false;
        field.Box.ColourGroup = 4;
        field.Box.Describe(&field.Name);
    }
}

void RecordFields::Show(const RecordHead& head) {
    txtTagNum.SetText(head.Tag);
    txtTRCalc.SetText(head.Calculation);
    txtFluidType.SetText(head.FluidType);
    txtCalcBy.SetText(head.CalcBy);
    txtCalcDate.SetText(head.CalcDate);
    txtDataDate.SetText(head.DataDate);
}

}  // namespace quillmetra
