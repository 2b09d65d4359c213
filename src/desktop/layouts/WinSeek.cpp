// Where the controls of the path finder stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

Node Places() {
    return Row({Column({"lblDrive", Item("drvList").Wide(14).Tall(8)}),
                Column({"lblDir", Item("dirList").Wide(34).Tall(8)}).Grow(),
                Column({"lblFiles", Item("filList").Wide(20).Tall(8)})});
}

Node Hits() {
    return Column({Row({"lblFound", Stretch(), "lblSearch", Item("lblCount").Wide(6)}),
                   Item("lstFoundFiles").Wide(70).Tall(8).Grow(), Buttons({"cmdSelect", "cmdExit"})});
}

}  // namespace

Node WinSeek() {
    return Column(
        {Panel("", Column({Row({"lblPathName", Item("txtPath").Wide(50).Grow()}),
                           Buttons({"cmdOK", "cmdSave", "cmdBrouse", "cmdCancel"})})),
         Frame("fraSearch",
               Column({Places(), Row({Stretch(), "SelectPath"}),
                       Row({"lblSearchSpec", Item("txtSearchSpec").Wide(24).Grow(), "cmdSearch", "cmdStop"}),
                       Hits()}))
             .Grow()});
}

}  // namespace quillmetra::layout
