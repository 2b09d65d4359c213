// Where the controls of the flow between two pressures stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmLineFlow() {
    const auto box = [](const char* name) { return Item(name).Wide(CaseDigits); };
    return Column({Panel("", Column({Row({"lblCase", "optCase(0)", "optCase(1)", "optCase(2)", Stretch()}),
                                     Table({{"lblGiven", box("txtGiven"), "unGiven"},
                                            {"lblEnd", box("txtEnd"), "unEnd", "cmdFind"},
                                            {"lblFlow", box("txtFlow"), "unFlow"}})
                                         .Wide(LabelDigits),
                                     Item("lblReason").Wide(60).Tall(3).Wrapped()})),
                   Buttons({"cmdOK", "cmdCancel"})});
}

}  // namespace quillmetra::layout
