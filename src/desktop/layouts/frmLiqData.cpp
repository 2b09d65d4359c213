// Where the controls of the liquid data form stand.
#include "desktop/layouts/FluidData.h"
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmLiqData() {
    return Over(FluidData({Cases("lblMW", "txtMW", ""), Cases("lblSGFTP", "txtSGFTP", ""),
                           Cases("lblSGBase", "txtSGBase", ""),
                           Cases("lblCritPressure", "txtCritPressure", "unCritPressure"),
                           Cases("lblCritTemp", "txtCritTemp", "unCritTemp"),
                           Cases("lblDensity", "txtDensity", "unDensity"),
                           Cases("lblNormalBP", "txtNormalBP", "unNormalBP"),
                           Cases("lblViscosity", "txtViscosity", "unViscosity"),
                           Cases("lblVapPressure", "txtVapPressure", "unVapPressure"),
                           Cases("lblFlashpoint", "txtFlashpoint", "unFlashPoint"),
                           Cases("lblBulkMod", "txtBulkModulus", "unBulkMod")},
                          {Basis()}),
                {Fluids("fraLiquidData"), Components()});
}

}  // namespace quillmetra::layout
