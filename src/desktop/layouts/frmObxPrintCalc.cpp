// Where the controls of the printout form stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

Node frmObxPrintCalc() {
    const auto line = [](const char* label, const char* box) {
        return std::vector<Node>{label, Item(box).Wide(48).Grow()};
    };
    return Column({Frame("fraHeadings", Table({{"lblDate", Row({Item("cmdDate").Wide(14), Stretch()})},
                                               line("lblTitle", "txtTitle"),
                                               line("lblSubTitle", "txtSubTitle"),
                                               line("lblProjectName", "txtProjectName"),
                                               line("lblProjectNo", "txtProjectNo"),
                                               line("lblManufacturer", "txtManufacturer"),
                                               line("lblModel", "txtModel"),
                                               line("lblComments", "txtComments(0)"),
                                               line("", "txtComments(1)"),
                                               line("", "txtComments(2)")}))
                       .Grow(),
                   Buttons({"cmdOK", "cmdPreview", "cmdPdf", "cmdSave", "cmdCancel"})});
}

}  // namespace quillmetra::layout
