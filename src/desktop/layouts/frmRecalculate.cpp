// Where the controls of the recalculation of records stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmRecalculate() {
    return Column({Panel("", Column({Row({"lblRecords", Stretch(), "chkFluids", "cmdRun"}), "lblChanges",
                                     Item("grdChanges").Wide(116).Tall(18).Grow(), "lblSummary"}))
                       .Grow(),
                   Row({Item("barProgress").Grow(), Buttons({"cmdCopy", "cmdSave", "cmdCancel"})})});
}

}  // namespace quillmetra::layout
