// Where the controls of the unit window stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

// The rows of units one below the other; those that a program does not use take no room.
Node UnitRows(std::initializer_list<int> rows) {
    std::vector<Node> frames;
    for (const int row : rows) {
        const auto element = [row](const char* array) { return Item(array, row); };
        frames.push_back(Frame("fraRow(" + std::to_string(row) + ")",
                               Row({element("cmdUnit").Wide(17), element("lblFactor").Wide(9), Stretch()})));
    }
    frames.push_back(Stretch());
    return Column(std::move(frames));
}

Node Choosing() {
    return Frame("fraSelect",
                 Column({Row({"optMass", "optVol", Stretch()}), Buttons({"cmdBasis", "cmdCanBasis"}),
                         Row({Column({"lblUnit", Item("cboUnit").Wide(10).Tall(11)}),
                              Column({"lblMultiplier", Item("cboFactor").Wide(14).Tall(11)})}),
                         Buttons({"cmdReplace", "cmdSelect", "cmdCancel"})}));
}

}  // namespace

Node frmUnits() {
    return Over(Column({Panel("", Item("lblInstruct").Wrapped().Tall(3)),
                        Frame("fraRows", Row({UnitRows({0, 19, 1, 5, 2, 3, 4, 7, 12}),
                                              UnitRows({11, 20, 27, 13, 18, 25, 9})}))
                            .Grow(),
                        Buttons({"cmdOK", "cmdSaveUser", "cmdCancelUn"})}),
                {Choosing()});
}

}  // namespace quillmetra::layout
