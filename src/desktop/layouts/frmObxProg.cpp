// Where the controls of the program selector stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmObxProg() {
    return Column({Frame("fraProgram", Column({"optProgram(1)", "optProgram(2)", "optProgram(3)",
                                               "optProgram(4)", "optProgram(5)", Stretch()}))
                       .Grow(),
                   Buttons({"cmdOK", "cmdCancel"})});
}

}  // namespace quillmetra::layout
