// Where the controls of the record browser stand.
#include "desktop/layouts/Layouts.h"

namespace quillmetra::layout {

namespace {

Node Database() {
    return Frame("fraDatabase",
                 Column({Row({"optDefaultDB", "optBrouseDB", Stretch(), "cmdDBOpen", "cmdDBClose"}),
                         Item("lblPath(0)").Wrapped()}));
}

Node AllRecords() {
    return Frame("fraRecords", Column({Row({"lblFilter", Item("txtFilter").Wide(30), Stretch(), "lblShown"}),
                                       Item("grdRecords").Wide(96).Tall(9).Grow()}))
        .Grow();
}

Node Record() {
    const auto box = [](const char* name) { return Item(name).Wide(22).Grow(); };
    return Frame(
        "fraRecord",
        Column({Row({"cmdFirst", "cmdPrev", "cmdNext", "cmdLast", Stretch(), "lblCurrentRecord", "lblOf",
                     "lblNumRecords"}),
                Row({"cmdBrowse", "cmdFind", "cmdSearchDate", "cmdDelete", Stretch(), "cmdDisplayCalc"}),
                Table({
                    {"lblTagNum", box("txtTagNum"), "lblTRCalc", box("txtTRCalc")},
                    {"lblFluidType", box("txtFluidType"), "lblCalcBy", box("txtCalcBy")},
                    {"lblCalcDate", box("txtCalcDate"), "lblDataDate", box("txtDataDate")},
                })}));
}

Node Tags() {
    return Frame("fraTags", Column({Row({"lblSearchTag", Item("txtSearchTag").Wide(22).Grow()}),
                                    Item("lstTags").Wide(34).Tall(12), Buttons({"cmdSelect", "cmdCancel"})}));
}

}  // namespace

Node frmTRProg() {
    return Over(Column({Frame("fraPrograms",
                              Row({Words("Choose one of the calculation programs"), Stretch(), "cmdOK"})),
                        Database(), AllRecords(), Record()}),
                {Tags()});
}

}  // namespace quillmetra::layout
