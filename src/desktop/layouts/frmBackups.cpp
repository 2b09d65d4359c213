// Where the controls of the list of backups stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmBackups() {
    return Column({Panel("", Column({Item("lblFile").Wrapped(), "lblBackups",
                                     Item("grdBackups").Wide(76).Tall(12).Grow(),
                                     Row({"lblKept", Item("txtKept").Wide(4), Stretch()})}))
                       .Grow(),
                   Buttons({"cmdRestore", "cmdCancel"})});
}

}  // namespace quillmetra::layout
