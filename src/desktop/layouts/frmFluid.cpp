// Where the controls of the dialog of the fluid stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

Node Table() {
    return Frame("fraTable", Column({Row({"lblFilter", Item("txtFilter").Wide(30), Stretch(), "lblShown"}),
                                     Item("grdFluids").Wide(96).Tall(19).Least(46, 6).Grow(),
                                     Row({Stretch(), "cmdAdd"})}))
        .Grow();
}

Node Components() {
    constexpr int most = 16;
    std::vector<std::vector<Node>> rows;
    rows.reserve(most);
    for (int i = 0; i < most; ++i) {
        rows.push_back({Item("lblComponent", i).Wide(24).Collapsing(),
                        Item("txtPercent", i).Wide(8).Collapsing(), Item("cmdRemove", i)});
    }
    return Frame("fraComponent", Column({Item("lblNone").Collapsing(), layout::Table(std::move(rows)),
                                         Stretch(), Row({"lblRemainingCaption", "lblRemaining", Stretch()}),
                                         Item("lblNote").Wrapped(), Buttons({"cmdClear"})}));
}

Node Steam() {
    return Frame("fraSteam",
                 Column({"optSaturated", "optSuperheated", Item("lblSteam").Wrapped().Wide(90), Stretch()}))
        .Grow();
}

Node Cases() {
    constexpr int most = 3;
    std::vector<std::vector<Node>> rows;
    rows.reserve(most);
    for (int i = 0; i < most; ++i)
        rows.push_back({Item("chkCase", i), Item("lblLack", i).Wide(30).Collapsing(), Stretch()});
    return Frame("fraCases", layout::Table(std::move(rows)));
}

}  // namespace

Node frmFluid() {
    return Column({Frame("fraKind", Row({"optPure", "optMixture", "optSteam", Stretch()})).Bare(),
                   Row({Table(), Components(), Steam(), Reserve(30)}).Grow(), Cases(),
                   Buttons({"cmdOK", "cmdCancel"})});
}

}  // namespace quillmetra::layout
