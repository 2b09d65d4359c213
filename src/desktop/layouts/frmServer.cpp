// Where the controls of a new database on a server stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmServer() {
    const auto box = [](const char* name) { return Item(name).Wide(32); };
    return Column({Panel("", Column({Item("lblAbout").Wide(60).Tall(3).Wrapped(),
                                     Table({{"lblHost", box("txtHost")},
                                            {"lblPort", Item("txtPort").Wide(8)},
                                            {"lblDatabase", box("txtDatabase")},
                                            {"lblSchema", box("txtSchema")},
                                            {"lblUser", box("txtUser")},
                                            {"lblService", box("txtService")}})})),
                   Buttons({"cmdOK", "cmdCancel"})});
}

}  // namespace quillmetra::layout
