// The liquid line-loss form as a user has it who came from the browser by the selector.
#pragma once

#include "core/Words.h"
#include "forms/frmLiqLineLoss.h"
#include "forms/frmObxProg.h"
#include "forms/frmTRProg.h"
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {

class LiquidForm : public SuiteTest {
protected:
    LiquidForm() {
        RegisterForms();
        StartUp(SuitePath(Folder));
        OpenLiquid();
    }

    // From the browser.
    static void OpenLiquid() {
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", 1));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
    }

    frmLiqLineLoss& Form() { return dynamic_cast<frmLiqLineLoss&>(*LoadedForm("frmLiqLineLoss")); }

    static void Type(Control& box, const std::string& text) {
        ASSERT_TRUE(MoveFocus(box)) << box.FullName();
        ASSERT_TRUE(TypeText(box, text)) << box.FullName();
    }

    // 1000 ft of 4 in schedule 40 steel pipe, 100,000 lb/h of a liquid of gravity 1 and 1 cp at 100 psig.
    void FillGoodCase(int i) {
        Suite.HideFluidReminder = words::Yes;
        frmLiqLineLoss& form = Form();
        Type(form.txtInletPipeLen, "1000");
        Type(form.txtInletPipeID, "4.026");
        Type(form.txtFlow(i), "100000");
        Type(form.txtTemp(i), "60");
        Type(form.txtPressure(i), "100");
        Type(form.txtSGFlow(i), "1");
        Type(form.txtViscosity(i), "1");
    }

    // Opens the list of liquids for a case and takes the first row that starts with the text.
    void PickLiquid(int i, const std::string& name) {
        MenuItem* const menus[] = {&Form().mnuPureLiquid1, &Form().mnuPureLiquid2, &Form().mnuPureLiquid3};
        ASSERT_TRUE(ClickControl(*menus[i]));
        ListBox& list = Form().Fluids.lstFluid;
        const auto& rows = list.Rows();
        const auto row = std::find_if(rows.begin(), rows.end(),
                                      [&](const std::string& each) { return each.starts_with(name); });
        ASSERT_TRUE(PickRow(list, static_cast<int>(row - rows.begin()))) << name;
        ASSERT_TRUE(ClickControl(Form().Fluids.cmdSelect));
    }

    void Calculate(int i) { ASSERT_TRUE(ClickControl(Form().cmdCalculate(i))); }
};

}  // namespace quillmetra
