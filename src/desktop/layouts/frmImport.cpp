// Where the controls of the import of records stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmImport() {
    return Column({Panel("", Column({Row({Item("lblFile").Grow(), "cmdFile", "cmdRead"}),
                                     Row({"lblRows", Stretch(), "chkProblems"}),
                                     Item("grdRows").Wide(96).Tall(18).Grow(),
                                     Row({"lblSummary", Stretch(), "chkReplace"})}))
                       .Grow(),
                   Row({Item("barProgress").Grow(), Buttons({"cmdCopy", "cmdSave", "cmdCancel"})})});
}

}  // namespace quillmetra::layout
