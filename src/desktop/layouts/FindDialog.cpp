// Where the controls of the dialog for a tag number stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node FindDialog() {
    return Column({Row({"lblFind", Item("txtFind").Wide(32).Grow()}), Buttons({"cmdFind", "cmdCancel"})});
}

}  // namespace quillmetra::layout
