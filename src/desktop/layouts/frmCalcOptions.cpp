// Where the controls of the options panel stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmCalcOptions() {
    return Column(
        {Row({Frame("fraUnits", Column({"OptLeaveAsIs", "optMassEnglishUnits", "optVolEnglishUnits",
                                        "optMassSIUnits", "optVolSIUnits", "optUserUnits", Stretch()}))
                  .Grow(),
              Column(
                  {Frame("fraPressure",
                         Column({"OptGaugePress", "optAbsolutePressure", "lblSTPBaro",
                                 Row({Item("txtSTPBaro").Wide(10), "cmdBaroPress", Stretch()})})),
                   Frame("fraDensity", Column({"optLiqSG", "optLiqDensity"})),
                   Frame("fraCalcInputData", Column({"optManInput", "optFileData", "optCalcDensity"})),
                   Frame("fraCalcOptions", Column({"optPressureDrop", "OptCalcFlowrate", "OptCalcValveSz"})),
                   Stretch()})}),
         Panel("", Row({"cmdReviewUnits", "cmdChangeUnits", "cmdBootUpUnits", Stretch()})),
         Buttons({"cmdOKOptions", "cmdCancelOptions"})});
}

}  // namespace quillmetra::layout
