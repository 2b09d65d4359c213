// Where the controls of the liquid line-loss form stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

Node Identification() {
    return Panel("", Table({{"lblTagNum", Item("txtTagNum").Wide(22), "lblFluid",
                             Item("txtFluid").Wide(30).Grow(), Item("cmdFormLayout").Wide(14)}}));
}

Node Line() {
    return Panel("Line", Table({{"lblInletPipeLen", "txtInletPipeLen", "cmdUnits(25)", "", Stretch(),
                                 "lblInletPipeElev", "txtInletPipeElev", "unInletPipeElev"},
                                {"lblInletPipeID", "txtInletPipeID", "cmdUnits(18)", "cmdPipeID", "",
                                 "lblOutletPipeElev", "txtOutletPipeElev", "unOutletPipeElev"},
                                {"lblPipeCond", "txtPipeCond", Words("%"), "", "", "lblMatl", "cmdMatl"}}));
}

Node Fittings() {
    std::vector<Node> names, counts;
    for (const char* fitting : {"Gate", "Globe", "Check", "90Deg", "45Deg", "Thru", "Branch"}) {
        names.push_back(Item(std::string("lblInlet").append(fitting)).Centred());
        counts.push_back(Item(std::string("txtInlet").append(fitting)).Wide(7));
    }
    for (Node part : {Stretch(), Item("chkEntrance"), Item("chkExit")}) counts.push_back(std::move(part));
    return Panel("Valves and fittings", Table({std::move(names), std::move(counts)}));
}

Node Direction() { return Panel("Direction", Column({"optDestination", "optSource", Stretch()})); }

Node CasesAndResults() {
    return Panel("Cases and results",
                 Column({Table({
                             {Stretch(), Item("lblCase(0)").Centred(), Item("lblCase(1)").Centred(),
                              Item("lblCase(2)").Centred()},
                             Cases("lblFlow", "txtFlow", "cmdUnits(1)"),
                             Cases("lblTemp", "txtTemp", "cmdUnits(2)"),
                             Cases("lblPressure", "txtPressure", "cmdUnits(3)"),
                             Cases("lblSGFlow", "txtSGFlow", "cmdUnits(6)"),
                             Cases("lblViscosity", "txtViscosity", "cmdUnits(7)"),
                             Cases("lblEquip", "txtEquip", "cmdUnits(4)"),
                             {Words("Calculate"), "cmdCalculate(0)", "cmdCalculate(1)", "cmdCalculate(2)"},
                             Cases("lblDropP100", "txtDropP100", "unDropP100"),
                             Cases("lblDestPress", "txtDestPress", "unDestPress"),
                             Cases("lblVelocity", "txtVelocity", "unVelocity"),
                             Cases("lblReynoldsNum", "txtReynoldsNum", ""),
                             {"lblEquivLen", Item("txtEquivLen").Wide(10).Grow(), "unEquivLen"},
                         }),
                         Stretch()}));
}

Node Signatures() {
    return Panel("Prepared", Column({Table({{"lblBy", Item("txtBy").Wide(16).Grow()},
                                            {"lblApprov", Item("txtApprov").Wide(16).Grow()},
                                            {Words("Date"), "cmdDate"}}),
                                     "lblComments", Item("txtComments(0)").Wide(24).Grow(),
                                     Item("txtComments(1)").Wide(24).Grow(), Stretch()}));
}

Node Basis() {
    return Panel("Basis", Column({Item("lblSetupSelections").Wrapped(), Item("lblCalcSource").Wrapped()}));
}

Node Components() {
    constexpr int most = 16;
    std::vector<std::vector<Node>> rows;
    rows.reserve(most);
    for (int i = 0; i < most; ++i) {
        rows.push_back({Item("lblComponent", i).Wide(20), Item("txtPercent", i).Wide(8)});
    }
    return Frame("fraComponent",
                 Column({Table(std::move(rows)), Row({"lblRemainingCaption", "lblRemaining", Stretch()}),
                         Buttons({"cmdCalcPseudo", "cmdClear"})}));
}

Node Liquids() {
    return Frame("fraLiquidData",
                 Column({Item("lstFluid").Wide(40).Tall(18).Typed(), Buttons({"cmdSelect", "cmdCancel"})}))
        .Grow();
}

}  // namespace

Node frmLiqLineLoss() {
    return Over(
        Frame("Picture1",
              Column({Identification(), Row({Line().Grow(), Direction()}), Fittings(),
                      Row({CasesAndResults().Grow(), Column({Signatures(), Basis(), Item("pltLine").Grow()})})
                          .Grow(),
                      Item("lstMatl").Wide(16).Tall(7).Under("cmdMatl")})),
        {Liquids(), Components()});
}

}  // namespace quillmetra::layout
