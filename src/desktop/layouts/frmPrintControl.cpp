// Where the controls of the print control stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

Node Records() {
    return Frame("fraTags",
                 Column({Item("lstTags").Wide(22).Tall(18).Grow(),
                         Row({"cmdAll", "cmdNone", Stretch(), "lblNumRecords", Words("records")})}));
}

Node Record() {
    const auto box = [](const char* name) { return Item(name).Wide(12).Grow(); };
    return Frame("fraRecord", Table({
                                  {"lblTagNum", box("txtTagNum"), "lblTRCalc", box("txtTRCalc")},
                                  {"lblFluidType", box("txtFluidType"), "lblCalcBy", box("txtCalcBy")},
                                  {"lblCalcDate", box("txtCalcDate"), "lblDataDate", box("txtDataDate")},
                                  {Words("Position"), "lblCurrentRecord"},
                              }));
}

Node Headings() {
    const auto line = [](const char* label, const char* box) {
        return std::vector<Node>{label, Item(box).Wide(30).Grow()};
    };
    return Frame(
        "fraHeadings",
        Column(
            {Table({{"lblPrintoutDate", Row({Item("txtPrintoutDate").Wide(14), "chkPrintDate", Stretch()})},
                    line("lblTitle", "txtTitle"),
                    line("lblSubTitle", "txtSubTitle"),
                    line("lblProjectName", "txtProjectName"),
                    line("lblProjectNo", "txtProjectNo")}),
             "chkUse", Row({Stretch(), "cmdTitleDefault", "cmdDefaultTitles", "cmdSaveInDb"})}));
}

}  // namespace

Node frmPrintControl() {
    return Column({Row({Records(), Column({Record(), Headings(), Stretch()})}),
                   Row({Item("barProgress").Grow(), Buttons({"cmdProceed", "cmdPdf", "cmdCancelPrint"})})});
}

}  // namespace quillmetra::layout
