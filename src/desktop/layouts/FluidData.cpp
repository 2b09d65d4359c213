// See FluidData.h.
#include "desktop/layouts/FluidData.h"

namespace quillmetra::layout {

Node FluidData(std::vector<std::vector<Node>> properties, std::vector<Node> beside) {
    std::vector<std::vector<Node>> rows = {
        {Words("Cases and properties").Bold(), Item("lblCase(0)").Centred(), Item("lblCase(1)").Centred(),
         Item("lblCase(2)").Centred()},
        Cases("lblTemp", "txtTemp", "cmdUnits(2)"),
        Cases("lblPressure", "txtPressure", "cmdUnits(3)"),
        {Words("Calculate"), "cmdOK(0)", "cmdOK(1)", "cmdOK(2)", "cmdCalculateAll"}};
    for (auto& row : properties) rows.push_back(std::move(row));
    std::vector<Node> right = {Signatures()};
    for (Node& part : beside) right.push_back(std::move(part));
    right.push_back(Stretch());
    return Frame("Picture1",
                 Column({Identification(),
                         Row({Panel("", Column({Table(std::move(rows)).Wide(LabelDigits), Stretch()})),
                              Column(std::move(right)).Grow()})
                             .Grow()}))
        .Bare();
}

}  // namespace quillmetra::layout
