// The liquid line-loss form on a host without a display, with a case calculated, for what is measured on
// forms.
#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/StartUp.h"
#include "core/Suite.h"
#include "core/Words.h"
#include "forms/frmLiqLineLoss.h"
#include "forms/RegisterForms.h"
#include "platform/Forms.h"
#include "platform/TemporaryFolder.h"
#include "platform/TextFiles.h"
#include "platform/UserActs.h"
#include "script/ScriptHost.h"

namespace quillmetra {

// What a user types for the case, box by box.
inline const std::vector<std::pair<std::string, std::string>> FilledBoxes = {
    {"txtInletPipeLen", "1000"}, {"txtInletPipeID", "4.026"}, {"txtTemp(0)", "60"},
    {"txtPressure(0)", "100"},   {"txtSGFlow(0)", "1"},       {"txtViscosity(0)", "1"},
    {"txtFlow(0)", "100000"}};

class FilledForm {
public:
    // Program 1 with its case, another one empty.
    explicit FilledForm(int program = 1) : host_(out_) {
        ResetForms();
        InstallHost(&host_);
        Calc = CalcRecord();
        Suite = SuiteState();
        RegisterForms();
        StartUp(SuitePath(folder_.Path()));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", program));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
        Suite.HideFluidReminder = Suite.HideFlowStatus = words::Yes;
        if (program != 1) return;
        for (const auto& [box, text] : FilledBoxes) TypeText(Named(box), text);
        ClickControl(Form().cmdCalculate(0));
    }
    ~FilledForm() {
        ResetForms();
        InstallHost(nullptr);
    }
    FilledForm(const FilledForm&) = delete;
    FilledForm& operator=(const FilledForm&) = delete;

    static frmLiqLineLoss& Form() { return dynamic_cast<frmLiqLineLoss&>(*LoadedForm("frmLiqLineLoss")); }

    // As many boxes as one command of a script may put up are again to be had.
    void NextCommand() { host_.CommandStarts(); }

    // "txtFlow(0)" for an element of an array.
    static Control& Named(const std::string& name) {
        const std::size_t bracket = name.find('(');
        const int index = bracket == std::string::npos ? Control::NoIndex : name[bracket + 1] - '0';
        return ControlOf("frmLiqLineLoss", name.substr(0, bracket), index);
    }

private:
    std::ostringstream out_;
    ScriptHost host_;
    TemporaryFolder folder_;
};

}  // namespace quillmetra
