// See Calculation.h.
#include "desktop/layouts/Calculation.h"

namespace quillmetra::layout {

Node Identification() {
    return Panel("", Table({{"lblTagNum", Item("txtTagNum").Wide(22), "lblFluid",
                             Item("txtFluid").Wide(30).Grow(), "cmdFluid", Item("cmdFormLayout").Wide(14)}})
                         .Wide(LabelDigits));
}

Node Signatures() {
    return Panel("Prepared", Table({{"lblBy", Item("txtBy").Wide(24).Grow()},
                                    {"lblApprov", Item("txtApprov").Wide(24).Grow()},
                                    {"lblDate", Row({Item("cmdDate").Wide(12), Stretch()})},
                                    {"lblComments", Item("txtComments(0)").Wide(24).Grow()},
                                    {"", Item("txtComments(1)").Wide(24).Grow()}}));
}

Node Basis() {
    return Panel("Basis", Column({Item("lblSteamKind").Collapsing(), Item("lblSetupSelections").Wrapped(),
                                  Item("lblCalcSource").Wrapped()}));
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

Node Fluids(const char* frame) {
    return Frame(frame, Column({Item("lstFluid").Wide(72).Tall(19), Buttons({"cmdSelect", "cmdCancel"})}))
        .Grow();
}

Node BaseConditions() {
    return Frame("fraSTP", Column({Table({{"lblSTPPressure", "txtSTPPressure", "unSTPPressure"},
                                          {"lblSTPTemp", "txtSTPTemp", "unSTPTemp"},
                                          {"lblSTPBaro", "txtSTPBaro", "unSTPBaro"}}),
                                   Item("lblSTPNote").Wrapped().Wide(44).Tall(4),
                                   Row({"cmdSTPEnglish", "cmdSTPSI", Stretch()}),
                                   Buttons({"cmdOKSTP", "cmdSaveSTP", "cmdCancelSTP"})}));
}

}  // namespace quillmetra::layout
