// Where the controls of the panel of calculation options stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmCalcOptions() {
    return Column(
        {Row({Frame("fraUnits", Column({"OptLeaveAsIs", "optMassEnglishUnits", "optVolEnglishUnits",
                                        "optMassSIUnits", "optVolSIUnits", "optUserUnits", Stretch()}))
                  .Grow(),
              Column({Frame("fraPressure", Column({"OptGaugePress", "optAbsolutePressure", Stretch(),
                                                   Row({"lblSTPBaro", "txtSTPBaro", "cmdBaroPress"})})),
                      Frame("fraDensity", Row({"optLiqSG", "optLiqDensity", Stretch()})), Stretch()}),
              Frame("fraConverted",
                    Column({"optAskRounding", "optRoundFigures", "optKeepFigures", Stretch()}))})
             .Grow(),
         Row({Frame("fraCalcInputData", Column({"optManInput", "optFileData", "optCalcDensity"})),
              Frame("fraCalcOptions", Column({"optPressureDrop", "OptCalcFlowrate", "OptCalcValveSz"}))}),
         Row({"cmdReviewUnits", "cmdChangeUnits", "cmdBootUpUnits", Stretch()}),
         Buttons({"cmdOKOptions", "cmdCancelOptions"})});
}

}  // namespace quillmetra::layout
