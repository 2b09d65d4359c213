// Where the controls of the offer of shipped rows stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmShippedRows() {
    return Column(
        {Panel("", Column({"lblRows", Item("lstRows").Wide(126).Tall(22).Least(58, 11).Typed().Grow(),
                           Row({"cmdAll", "cmdNone", Stretch(), "lblPicked"})}))
             .Grow(),
         Buttons({"cmdOK", "cmdCancel"})});
}

}  // namespace quillmetra::layout
