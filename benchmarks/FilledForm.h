// The liquid line-loss form on a host without a display, with a case calculated, for what is measured on
// forms.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/frmLiqLineLoss.h"
#include "forms/RegisterForms.h"
#include "platform/Forms.h"
#include "platform/TextFiles.h"
#include "platform/UserActs.h"
#include "script/ScriptHost.h"
#include "script/TemporaryFolder.h"

namespace quillmetra {

class FilledForm {
public:
    FilledForm() : host_(out_) {
        ResetForms();
        InstallHost(&host_);
        Calc = CalcRecord();
        Suite = SuiteState();
        RegisterForms();
        StartUp(SuitePath(folder_.Path()));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
        Suite.HideFluidReminder = Suite.HideFlowStatus = words::Yes;
        const std::pair<Control&, const char*> boxes[] = {
            {Form().txtInletPipeLen, "1000"}, {Form().txtInletPipeID, "4.026"}, {Form().txtTemp(0), "60"},
            {Form().txtPressure(0), "100"},   {Form().txtSGFlow(0), "1"},       {Form().txtViscosity(0), "1"},
            {Form().txtFlow(0), "100000"}};
        for (const auto& [box, text] : boxes) TypeText(box, text);
        ClickControl(Form().cmdCalculate(0));
    }
    ~FilledForm() {
        ResetForms();
        InstallHost(nullptr);
    }
    FilledForm(const FilledForm&) = delete;
    FilledForm& operator=(const FilledForm&) = delete;

    frmLiqLineLoss& Form() { return dynamic_cast<frmLiqLineLoss&>(*LoadedForm("frmLiqLineLoss")); }

    // A table of liquids with so many rows, the first of them the heading.
    std::string WriteLiquids(int rows) const {
        const std::filesystem::path path = folder_.Path() / "TRData" / "Liquid.txt";
        std::filesystem::create_directories(path.parent_path());
        std::ofstream file(path, std::ios::binary);
        for (int row = 0; row < rows; ++row) {
            file << "Liquid " << row
                 << "                  "
                    ",1,92.138,0.8719,605.5,60,0.62,160,0.37,598.5,231.1,0.4,0.5,40,187,12,155,\r\n";
        }
        return SuitePath(path);
    }

private:
    std::ostringstream out_;
    ScriptHost host_;
    TemporaryFolder folder_;
};

}  // namespace quillmetra
