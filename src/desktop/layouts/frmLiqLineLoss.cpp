// Where the controls of the liquid line-loss form stand.
#include "desktop/layouts/Layouts.h"
#include "desktop/layouts/LineLoss.h"

namespace quillmetra::layout {

Node frmLiqLineLoss() {
    return Over(LineLoss(
                    {
                        CaseHeads(),
                        Cases("lblFlow", "txtFlow", "cmdUnits(1)"),
                        Cases("lblTemp", "txtTemp", "cmdUnits(2)"),
                        Cases("lblPressure", "txtPressure", "cmdUnits(3)"),
                        Cases("lblSGFlow", "txtSGFlow", "cmdUnits(6)"),
                        Cases("lblViscosity", "txtViscosity", "cmdUnits(7)"),
                        Cases("lblEquip", "txtEquip", "cmdUnits(4)"),
                        CalculateRow(),
                        Cases("lblRegime", "txtRegime", "unRegime"),
                        Cases("lblDropP100", "txtDropP100", "unDropP100"),
                        Cases("lblDestPress", "txtDestPress", "unDestPress"),
                        Cases("lblVelocity", "txtVelocity", "unVelocity"),
                        Cases("lblReynoldsNum", "txtReynoldsNum", ""),
                    },
                    {
                        Cases("lblTotalLoss", "txtTotalLoss", "unTotalLoss"),
                        PassingCases("PipeLoss"),
                        PassingCases("FittingsLoss"),
                        PassingCases("EquipmentLoss"),
                        PassingCases("ElevationLoss"),
                        Cases("lblPipeAndFittings", "txtPipeAndFittings", "unPipeAndFittings"),
                        Cases("lblVaporMargin", "txtVaporMargin", "unVaporMargin"),
                        Cases("lblNpshAvailable", "txtNpshAvailable", "unNpshAvailable"),
                    }),
                {Fluids("fraLiquidData"), Components()});
}

}  // namespace quillmetra::layout
