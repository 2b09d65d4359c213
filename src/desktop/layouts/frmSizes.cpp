// Where the controls of the sizes dialog stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmSizes() {
    const auto list = [](const char* label, const char* box, int digits) {
        return Column({label, Item(box).Wide(digits).Tall(6).Grow()});
    };
    return Column(
        {Panel("", Column({Row({"lblCase", "optCase(0)", "optCase(1)", "optCase(2)", Stretch()}),
                           Row({list("lblFamily", "lstFamily", 34), list("lblSchedule", "lstSchedule", 14),
                                list("lblService", "lstService", 34)})})),
         Panel("",
               Column({Row({"lblSizes", Stretch(), "lblSource"}), Item("grdSizes").Wide(118).Tall(14).Grow(),
                       Row({"lblMet", Stretch(), "cmdCopy"})}))
             .Grow(),
         Buttons({"cmdOK", "cmdCancel"})});
}

}  // namespace quillmetra::layout
