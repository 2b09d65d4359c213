// Where the controls of the pipe size dialog stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmPipeSize() {
    return Column(
        {Row({Panel("", Column({"lblFamily", Item("lstFamily").Wide(34).Tall(12).Grow(), "lblFamilyNote"})),
              Panel("", Column({Row({"lblNomSize", Item("txtNomSize").Wide(10), "lblPipeUnits", Stretch(),
                                     "cmdSearch"}),
                                "lblPipeSize", Item("lstPipeSize").Wide(60).Tall(14).Grow(),
                                Item("lblConvertUnits").Collapsing()}))
                  .Grow()}),
         Buttons({"cmdOK", "cmdCancel"})});
}

}  // namespace quillmetra::layout
