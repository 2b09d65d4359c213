// Where the controls of the gas data form stand.
#include "desktop/layouts/FluidData.h"
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmGasData() {
    return Over(FluidData({Cases("lblMW", "txtMW", ""), Cases("lblRatioSH", "txtRatioSH", ""),
                           Cases("lblNormalBP", "txtNormalBP", "unNormalBP"),
                           Cases("lblCritPressure", "txtCritPressure", "unCritPressure"),
                           Cases("lblCritTemp", "txtCritTemp", "unCritTemp"),
                           Cases("lblDensity", "txtDensity", "unDensity"),
                           Cases("lblCompFactor", "txtCompFactor", ""),
                           Cases("lblViscosity", "txtViscosity", "unViscosity"),
                           Cases("lblVapPressure", "txtVapPressure", "unVapPressure"),
                           Cases("lblReqdLatentHeat", "txtReqdLatentHeat", "unReqdLatentHeat"),
                           Cases("lblLatentHeatBP", "txtLatentHeatBP", "unLatentHeatBP")},
                          {Basis()}),
                {Fluids("fraGasData"), Components(), BaseConditions()});
}

}  // namespace quillmetra::layout
