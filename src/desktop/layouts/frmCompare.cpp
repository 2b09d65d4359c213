// Where the controls of the comparison stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmCompare() {
    return Column({Panel("", Column({"lblRecords", Item("grdRows").Wide(104).Tall(24).Grow()})).Grow(),
                   Row({"chkOnly", "cmdExchange", Stretch(),
                        Buttons({"cmdCopy", "cmdPrint", "cmdPreview", "cmdPdf", "cmdCancel"})})});
}

}  // namespace quillmetra::layout
