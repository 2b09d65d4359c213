// A calculation form opened as a user opens it: by the browser, the selector and OK.
#pragma once

#include <string>

#include "core/Words.h"
#include "forms/frmLiqLineLoss.h"
#include "forms/RegisterForms.h"
#include "platform/NumberText.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {

class LiquidFormTest : public SuiteTest {
protected:
    LiquidFormTest() {
        RegisterForms();
        StartUp(SuitePath(Folder));
        OpenLiquid();
    }

    static void OpenLiquid() {
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", 1));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
    }

    static frmLiqLineLoss& Form() { return dynamic_cast<frmLiqLineLoss&>(*LoadedForm("frmLiqLineLoss")); }

    static void Type(Control& box, const std::string& text) {
        ASSERT_TRUE(MoveFocus(box)) << box.FullName();
        ASSERT_TRUE(TypeText(box, text)) << box.FullName();
    }

    // 1000 ft of 4 in schedule 40 steel pipe, 100,000 lb/h of a liquid of gravity 1 and 1 cp at 100 psig.
    static void FillGoodCase(int i) {
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

    static void Calculate(int i) { ASSERT_TRUE(ClickControl(Form().cmdCalculate(i))); }
};

}  // namespace quillmetra
