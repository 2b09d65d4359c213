// Where the controls of the unit window stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

// A quantity as a button, with its unit beside it.
Node Quantity(int row) {
    Node frame = Item("fraRow", row);
    return Frame(frame.Name, Row({Item("cmdUnit", row).Wide(20), Item("lblFactor", row).Wide(9)})).Bare();
}

Node Quantities() {
    const auto column = [](std::initializer_list<int> rows) {
        std::vector<Node> parts;
        parts.reserve(rows.size() + 1);
        for (const int row : rows) parts.push_back(Quantity(row));
        parts.push_back(Stretch());
        return Column(std::move(parts));
    };
    return Frame("fraRows", Row({column({0, 19, 1, 5, 2, 3, 4, 7}), column({9, 11, 12, 13, 18, 20, 25, 27}),
                                 Stretch()}));
}

Node Choice() {
    return Frame("fraSelect",
                 Column({Row({"optMass", "optVol", Stretch()}), Buttons({"cmdBasis", "cmdCanBasis"}),
                         Table({{"lblUnit", "lblMultiplier"},
                                {Item("cboUnit").Wide(12).Tall(12), Item("cboFactor").Wide(18).Tall(12)}}),
                         Buttons({"cmdReplace", "cmdSelect", "cmdCancel"})}));
}

}  // namespace

Node frmUnits() {
    return Column({Panel("", Item("lblInstruct").Wrapped().Tall(2)),
                   Over(Quantities(), {Choice()}).Wide(72).Tall(22).Grow(),
                   Buttons({"cmdOK", "cmdSaveUser", "cmdCancelUn"})});
}

}  // namespace quillmetra::layout
