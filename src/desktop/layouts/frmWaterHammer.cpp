// Where the controls of the water hammer form stand.
#include "desktop/layouts/Calculation.h"
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

std::vector<Node> Value(const char* label, const char* box, const char* unit) {
    return {label, Item(box).Wide(CaseDigits), Item(unit).Centred()};
}

// A row that is there only for a time, without which the others close up.
std::vector<Node> PassingValue(const char* label, const char* box, const char* unit) {
    return {Item(label).Collapsing(), Item(box).Wide(CaseDigits).Collapsing(),
            Item(unit).Centred().Collapsing()};
}

Node Liquid() {
    return Panel("Liquid",
                 Column({Table({{"lblMaxLiqFlow", Item("txtMaxLiqFlow").Wide(CaseDigits), "cmdUnits(1)"},
                                {"lblFlowBasis", Item("lblLiqTestBasis").Wide(4)},
                                Value("lblFlowTemp", "txtFlowTemp", "cmdUnits(2)"),
                                Value("lblOperPressure", "txtOperPressure", "cmdUnits(3)"),
                                Value("lblSGFlow", "txtSGFlow", "cmdUnits(6)"),
                                Value("lblBulkModulus", "txtBulkModulus", "cmdUnits(27)"),
                                {"", "cmdCalculateliq"}})
                             .Wide(LabelDigits),
                         Stretch()}));
}

Node Line() {
    return Panel(
        "Line",
        Column(
            {Table({{"lblLineLength", Item("txtLineLength").Wide(CaseDigits), "cmdUnits(25)", "", Stretch()},
                    {"lblPipeID", Item("txtPipeID").Wide(CaseDigits), "cmdUnits(18)", "cmdPipeID",
                     Item("txtPipeName").Wide(12).Grow()},
                    Value("lblPipeWall", "txtPipeWall", "UnpipeWall"),
                    {"lblPipeMatl", Item("txtPipeMatl").Wide(CaseDigits).Across(2), "", "cmdPipeMatl"},
                    Value("lblLineModulus", "txtLineModulus", "unLineModulus"),
                    Value("lblMaxAllowPressure", "txtMaxAllowPressure", "unMaxAllowPressure")}),
             Stretch()}));
}

Node Results() {
    return Panel("", Column({Table({{Heading("Critical closing time conditions")},
                                    Value("lblCriticalTime", "txtCriticalTime", "unCriticalTime"),
                                    Value("lblWaveVelocity", "txtWaveVelocity", "unWaveVelocity"),
                                    Value("lblPressureWave", "txtPressureWave", "unPressureWave"),
                                    Value("lblSupportForce", "txtSupportForce", "unSupportForce"),
                                    {Heading("Closing time for allowable pressure")},
                                    Value("lblCloseTime", "txtCloseTime", "unCloseTime"),
                                    {Heading("Selected closing time conditions")},
                                    PassingValue("lblSelectedTime", "txtSelectedTime", "unSelectedTime"),
                                    Value("lblSelectedWave", "txtSelectedWave", "unSelectedWave"),
                                    Value("lblSelectedForce", "txtSelectedForce", "unSelectedForce")})
                                 .Wide(LabelDigits),
                             Stretch()}));
}

Node Moduli() {
    return Frame("fraModulus", Column({Item("lstModulus").Wide(88).Tall(19),
                                       Buttons({"cmdSelectModulus", "cmdCancelModulus"})}));
}

}  // namespace

Node frmWaterHammer() {
    return Over(Frame("Picture1", Column({Identification(), Row({Liquid(), Line().Grow()}),
                                          Row({Results(), Item("pltClosing").Grow(), Reserve(22),
                                               Column({Signatures(), Basis(), Stretch()})})
                                              .Grow()}))
                    .Bare(),
                {Fluids("fraLiquidData"), Components(), Moduli()});
}

}  // namespace quillmetra::layout
