// Where the controls of the gas line-loss form stand.
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/LineLoss.h"

namespace quillmetra::layout {

Node frmGasLineLoss() {
    return Over(LineLoss(
                    {
                        CaseHeads(),
                        Cases("lblFlow", "txtFlow", "cmdUnits(0)"),
                        Cases("lblTemp", "txtTemp", "cmdUnits(2)"),
                        Cases("lblPressure", "txtPressure", "cmdUnits(3)"),
                        Cases("lblMW", "txtMW", ""),
                        Cases("lblRatioSH", "txtRatioSH", ""),
                        Cases("lblCritTemp", "txtCritTemp", "cmdUnits(12)"),
                        Cases("lblCritPressure", "txtCritPressure", "cmdUnits(11)"),
                        Cases("lblViscosity", "txtViscosity", "cmdUnits(13)"),
                        Cases("lblEquip", "txtEquip", "cmdUnits(4)"),
                        CalculateRow(),
                        Cases("lblRegime", "txtRegime", "unRegime"),
                        Cases("lblOutletMach", "txtOutletMach", "unOutletMach"),
                        Cases("lblDropP100", "txtDropP100", "unDropP100"),
                        Cases("lblDestPress", "txtDestPress", "unDestPress"),
                        Cases("lblVelocity", "txtVelocity", "unVelocity"),
                        Cases("lblSonicVelocity", "txtSonicVelocity", "unSonicVelocity"),
                    },
                    {
                        Cases("lblTotalLoss", "txtTotalLoss", "unTotalLoss"),
                        Cases("lblPipeAndFittings", "txtPipeAndFittings", "unPipeAndFittings"),
                        Cases("lblOutletDensity", "txtOutletDensity", "unOutletDensity"),
                    }),
                {Fluids("fraGasData"), Components(), BaseConditions()});
}

}  // namespace quillmetra::layout
