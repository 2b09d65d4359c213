// Where the controls of the table editor stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

// The boxes of some columns side by side, each below its name. The first is that of the row's name.
Node Strip(int first, int last) {
    std::vector<Node> names;
    std::vector<Node> boxes;
    for (int i = first; i <= last; ++i) {
        names.push_back(Item("lblColumn", i).Collapsing());
        boxes.push_back(Item("txtHole", i).Wide(i == 1 ? 28 : 9).Collapsing());
    }
    return Row({Table({std::move(names), std::move(boxes)}), Stretch()});
}

Node Notes() {
    return Frame("picValveNotes", Row({Column({"lblNote1", "lblNote2", "lblNote3"}).Grow(),
                                       Column({"cmdCancel", Stretch()})}));
}

}  // namespace

Node frmTables() {
    return Column(
        {Panel("", Column({Row({"lblHeading", Stretch(), "lblFilter", Item("txtFilter").Wide(24),
                                Item("lblShown").Wide(14)}),
                           Row({Item("grdTable").Wide(110).Tall(14).Grow(), Reserve(29)}).Grow()}))
             .Grow(),
         Panel("", Column({Strip(1, 8), Strip(9, 17)})), Notes(),
         Panel("", Row({"lblRecall", Item("txtRecall").Wide(8), "cmdRecall", "cmdLoadRow", "cmdInsertRow",
                        "cmdDeleteRow", Stretch(), "lblRow", Item("lblRowNum").Wide(6), "cmdClear"})),
         Buttons({"cmdSaveGrid", "cmdReloadGrid", "cmdCancelGrid"})});
}

}  // namespace quillmetra::layout
