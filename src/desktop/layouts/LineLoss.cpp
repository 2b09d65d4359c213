// What the layouts of the two line-loss forms have in common.
#include "desktop/layouts/LineLoss.h"

namespace quillmetra::layout {

namespace {

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

Node CasesAndResults(std::vector<std::vector<Node>> rows) {
    rows.push_back({"lblEquivLen", Item("txtEquivLen").Wide(10).Grow(), "unEquivLen"});
    return Panel("Cases and results", Column({Table(std::move(rows)), Stretch()}));
}

}  // namespace

std::vector<Node> CalculateRow() {
    return {Words("Calculate"), "cmdCalculate(0)", "cmdCalculate(1)", "cmdCalculate(2)"};
}

std::vector<Node> CaseHeads() {
    return {Stretch(), Item("lblCase(0)").Centred(), Item("lblCase(1)").Centred(),
            Item("lblCase(2)").Centred()};
}

Node LineLoss(std::vector<std::vector<Node>> rows) {
    return Frame("Picture1", Column({Identification(), Row({Line().Grow(), Direction()}), Fittings(),
                                     Row({CasesAndResults(std::move(rows)).Grow(),
                                          Column({Signatures(), Basis(), Item("pltLine").Grow()})})
                                         .Grow(),
                                     Item("lstMatl").Wide(16).Tall(7).Under("cmdMatl")}));
}

}  // namespace quillmetra::layout
