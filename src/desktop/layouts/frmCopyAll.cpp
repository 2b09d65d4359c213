// Where the controls of a copy of all records stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmCopyAll() {
    return Column({Panel("", Column({Item("lblFrom").Wide(60).Wrapped(), Item("lblTo").Wide(60).Wrapped()})),
                   Row({Item("barProgress").Grow(), Buttons({"cmdCopy", "cmdCancel"})})});
}

}  // namespace quillmetra::layout
