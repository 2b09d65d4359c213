// Where the controls of the water hammer form stand.
#include "desktop/layouts/Calculation.h"
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

std::vector<Node> Value(const char* label, const char* box, const char* unit) {
    return {label, Item(box).Wide(12).Grow(), unit};
}

Node Liquid() {
    return Panel("Liquid", Column({Table({{"lblMaxLiqFlow", Item("txtMaxLiqFlow").Wide(12).Grow(),
                                           "cmdUnits(1)", Item("lblLiqTestBasis").Wide(4)},
                                          Value("lblFlowTemp", "txtFlowTemp", "cmdUnits(2)"),
                                          Value("lblOperPressure", "txtOperPressure", "cmdUnits(3)"),
                                          Value("lblSGFlow", "txtSGFlow", "cmdUnits(6)"),
                                          Value("lblBulkModulus", "txtBulkModulus", "cmdUnits(27)")}),
                                   Stretch()}));
}

Node Line() {
    return Panel("Line",
                 Column({Table({Value("lblLineLength", "txtLineLength", "cmdUnits(25)"),
                                {"lblPipeID", Item("txtPipeID").Wide(12).Grow(), "cmdUnits(18)", "cmdPipeID"},
                                Value("lblPipeWall", "txtPipeWall", "UnpipeWall"),
                                {"lblPipeMatl", Item("txtPipeMatl").Wide(22).Grow(), "", "cmdPipeMatl"},
                                Value("lblLineModulus", "txtLineModulus", "unLineModulus"),
                                Value("lblMaxAllowPressure", "txtMaxAllowPressure", "unMaxAllowPressure")}),
                         Stretch()}));
}

Node Critical() {
    return Panel("Critical closing time conditions",
                 Table({Value("lblCriticalTime", "txtCriticalTime", "unCriticalTime"),
                        Value("lblWaveVelocity", "txtWaveVelocity", "unWaveVelocity"),
                        Value("lblPressureWave", "txtPressureWave", "unPressureWave"),
                        Value("lblSupportForce", "txtSupportForce", "unSupportForce")}));
}

Node Minimum() {
    return Panel("Closing time for allowable pressure",
                 Table({Value("lblCloseTime", "txtCloseTime", "unCloseTime")}));
}

Node Selected() {
    return Panel("Selected closing time conditions",
                 Table({Value("lblSelectedTime", "txtSelectedTime", "unSelectedTime"),
                        Value("lblSelectedWave", "txtSelectedWave", "unSelectedWave"),
                        Value("lblSelectedForce", "txtSelectedForce", "unSelectedForce")}));
}

Node Moduli() {
    return Frame("fraModulus", Column({Item("lstModulus").Wide(88).Tall(18).Typed(),
                                       Buttons({"cmdSelectModulus", "cmdCancelModulus"})}));
}

}  // namespace

Node frmWaterHammer() {
    return Over(
        Frame(
            "Picture1",
            Column({Identification(), Row({Liquid().Grow(), Line().Grow()}),
                    Row({Column({Critical(), Minimum(), Selected(), Buttons({"cmdCalculateliq"}), Stretch()}),
                         Item("pltClosing").Grow(), Column({Signatures(), Basis(), Stretch()})})
                        .Grow()})),
        {Fluids("fraLiquidData"), Components(), Moduli()});
}

}  // namespace quillmetra::layout
