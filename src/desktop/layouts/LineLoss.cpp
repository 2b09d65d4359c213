// What the layouts of the two line-loss forms have in common.
#include "desktop/layouts/LineLoss.h"

namespace quillmetra::layout {

namespace {

// What the pipe is called stands under the button that picks it.
Node Line() {
    const auto box = [](const char* name) { return Item(name).Wide(CaseDigits); };
    return Panel("Line", Table({{"lblInletPipeLen", box("txtInletPipeLen"), "cmdUnits(25)", "", Stretch(),
                                 "lblInletPipeElev", box("txtInletPipeElev"), "unInletPipeElev"},
                                {"lblInletPipeID", box("txtInletPipeID"), "cmdUnits(18)", "cmdPipeID", "",
                                 "lblOutletPipeElev", box("txtOutletPipeElev"), "unOutletPipeElev"},
                                {"lblPipeCond", box("txtPipeCond"), Words("%").Centred(),
                                 Item("txtPipeName").Wide(10).Across(2), "", "lblMatl", "cmdMatl"}})
                             .Wide(LabelDigits));
}

// The service stands under the two that are no counts, beside the sizes that go by it.
Node Fittings() {
    std::vector<Node> names = {Words("Valves and fittings").Bold()}, counts = {""};
    for (const char* fitting : {"Gate", "Globe", "Check", "90Deg", "45Deg", "Thru", "Branch"}) {
        names.push_back(Item(std::string("lblInlet").append(fitting)).Centred());
        counts.push_back(Item(std::string("txtInlet").append(fitting)).Wide(7));
    }
    names.push_back(Row({"chkEntrance", "chkExit", Stretch()}).Grow());
    counts.push_back(Row({"lblService", Item("cmdService").Grow()}));
    return Panel("", Table({std::move(names), std::move(counts)}).Wide(LabelDigits));
}

Node Direction() {
    return Panel("Direction", Column({"optDestination", "optSource",
                                      Row({"cmdSizes", "cmdFlowFor", Stretch()}), Stretch()}));
}

Node CasesAndResults(std::vector<std::vector<Node>> rows, std::vector<std::vector<Node>> following) {
    rows.push_back({"lblEquivLen", Item("txtEquivLen").Wide(CaseDigits),
                    Row({"unEquivLen", "lblEquivOf", Stretch()}), Item("chkLossParts").Across(2)});
    for (auto& row : following) rows.push_back(std::move(row));
    return Panel("", Column({Table(std::move(rows)).Wide(LabelDigits), Stretch()}));
}

}  // namespace

std::vector<Node> CalculateRow() {
    return {Words("Calculate"), "cmdCalculate(0)", "cmdCalculate(1)", "cmdCalculate(2)", "cmdCalculateAll"};
}

std::vector<Node> PassingCases(const std::string& stem) {
    std::vector<Node> cells = Cases("lbl" + stem, "txt" + stem, "un" + stem);
    for (Node& cell : cells) cell = std::move(cell).Collapsing();
    return cells;
}

std::vector<Node> CaseHeads() {
    return {Words("Cases and results").Bold(), Item("lblCase(0)").Centred(), Item("lblCase(1)").Centred(),
            Item("lblCase(2)").Centred()};
}

Node LineLoss(std::vector<std::vector<Node>> rows, std::vector<std::vector<Node>> following) {
    return Frame("Picture1", Column({Identification(), Row({Line().Grow(), Direction()}), Fittings(),
                                     Row({CasesAndResults(std::move(rows), std::move(following)),
                                          Column({Signatures(), Basis(), Item("pltLine").Grow()}).Grow()})
                                         .Grow(),
                                     Item("lstMatl").Wide(16).Tall(7).Under("cmdMatl")}))
        .Bare();
}

}  // namespace quillmetra::layout
