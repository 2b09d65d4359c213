// A user who presses, types and closes at random: whatever he does, no number on the form stops being one,
// and the form stays usable.
#include <algorithm>
#include <cmath>
#include <random>

#include "core/Words.h"
#include "forms/CalculationForm.h"
#include "forms/RegisterForms.h"
#include "platform/NumberText.h"
#include "platform/UserActs.h"
#include "reports/FormRows.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

struct Run {
    int Program;
    unsigned Seed;
};

constexpr const char* CalculationForms[] = {"frmLiqLineLoss", "frmGasLineLoss", "frmWaterHammer",
                                            "frmLiqData", "frmGasData"};

class RestlessUser : public SuiteTest, public ::testing::WithParamInterface<Run> {
protected:
    RestlessUser() : random_(GetParam().Seed) {
        RegisterForms();
        StartUp(SuitePath(Folder));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", GetParam().Program));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
    }

    // The calculation form that is loaded; null for none.
    static CalculationForm* Calculation() {
        for (const char* name : CalculationForms) {
            auto* form = dynamic_cast<CalculationForm*>(LoadedForm(name));
            if (form != nullptr && form->ProgramNumber() == Calc.CurrentProgram) return form;
        }
        return nullptr;
    }

    // The control of a case, or the only one of that name.
    static Control* OfCase(CalculationForm& form, const char* name, int i) {
        Control* const control = form.Find(name, i);
        return control != nullptr || i > 0 ? control : form.Find(name);
    }
    static Control* CalculateButton(CalculationForm& form, int i) {
        Control* const button = OfCase(form, "cmdCalculate", i);
        if (button != nullptr) return button;
        return OfCase(form, form.ProgramNumber() == 3 ? "cmdCalculateliq" : "cmdOK", i);
    }

    // A case that calculates: 1000 ft of 4 in pipe with a light liquid or methane.
    static void FillGoodCase(CalculationForm& form, int i) {
        Suite.HideFluidReminder = words::Yes;
        for (const auto& [box, text] : {std::pair{"txtInletPipeLen", "1000"},
                                        {"txtInletPipeID", "4.026"},
                                        {"txtFlow", form.ProgramNumber() == 1 ? "100000" : "5000"},
                                        {"txtTemp", "60"},
                                        {"txtPressure", "100"},
                                        {"txtSGFlow", "1"},
                                        {"txtViscosity", "0.1"},
                                        {"txtMW", "16.04"},
                                        {"txtRatioSH", "1.3"},
                                        {"txtCritTemp", "343"},
                                        {"txtCritPressure", "667"},
                                        {"txtMaxLiqFlow", "100000"},
                                        {"txtFlowTemp", "60"},
                                        {"txtOperPressure", "100"},
                                        {"txtBulkModulus", "300000"},
                                        {"txtLineLength", "1000"},
                                        {"txtPipeID", "4.026"},
                                        {"txtPipeWall", "0.237"},
                                        {"txtLineModulus", "2e7"},
                                        {"txtMaxAllowPressure", "300"},
                                        {"txtSelectedTime", "2"}}) {
            Control* const control = OfCase(form, box, i);
            if (control != nullptr && !static_cast<TextBox*>(control)->Locked) Type(*control, text);
        }
        if (form.ProgramNumber() < 4) return;
        // A fluid of the table is the calculation of these.
        const std::string entry = form.ProgramNumber() == 4 ? "mnuLiquid" : "mnuPureGases";
        ClickControl(*form.Find(entry + std::to_string(i + 1)));
        if (CanAct(form.Fluids.cmdSelect)) ClickControl(form.Fluids.cmdSelect);
    }
    static void Type(Control& box, const std::string& text) {
        MoveFocus(box);
        TypeText(box, text);
    }

    int Below(std::size_t count) { return static_cast<int>(random_() % count); }

    std::string AnyText() {
        static const char* const texts[] = {"",        "0",      "1",      "60",       "100", "4.026",
                                            "1e300",   "-1e300", "1e-310", "-5",       "abc", "12,5",
                                            "nan",     "inf",    "0x10",   "1e999999", " 7 ", "+3",
                                            "-459.67", "-14.7",  "705",    "99999999", "\"",  "1e15"};
        return texts[Below(std::size(texts))];
    }

    // The one in front: dialogs and panels first, the browser last.
    static quillmetra::Form& AnyVisibleForm() {
        std::vector<std::string_view> names = FormNames();
        std::stable_partition(names.begin(), names.end(), [](std::string_view name) {
            return name == "frmPipeSize" || name == "frmUnits" || name == "frmCalcOptions";
        });
        for (const std::string_view name : names) {
            quillmetra::Form* form = LoadedForm(name);
            if (form != nullptr && form->Visible() && name != "frmTRProg") return *form;
        }
        quillmetra::Form* browser = LoadedForm("frmTRProg");
        if (browser == nullptr || !browser->Visible()) throw std::logic_error("no form is shown");
        return *browser;
    }

    void ActOn(Control& control) {
        static const char* const keys[] = {"Enter", "Escape", "Tab", "Shift+Tab",
                                           "Down",  "PageUp", "R",   "Backspace"};
        switch (control.Kind()) {
            case ControlKind::TextBox:
                MoveFocus(control);
                TypeText(control, AnyText());
                break;
            case ControlKind::ListBox: {
                auto& list = static_cast<ListBox&>(control);
                if (list.RowCount() > 0) PickRow(list, Below(static_cast<std::size_t>(list.RowCount())));
                if (Below(2) == 0) DoubleClickControl(control);
                break;
            }
            default: ClickControl(control);
        }
        if (Below(4) == 0) {
            quillmetra::Form& form = AnyVisibleForm();
            Control* const current = form.Focus.Current();
            if (current != nullptr && !current->Name().starts_with("cmdCalculate"))
                PressKey(*current, keys[Below(std::size(keys))]);
        }
    }

    static bool PanelIsOpen() { return IsFormLoaded("frmUnits") || IsFormLoaded("frmCalcOptions"); }

    void ExpectSoundForm() {
        for (const auto& row : Calc.CaseInput) {
            for (const double value : row) ASSERT_TRUE(std::isfinite(value));
        }
        for (const auto& row : Calc.CaseResult) {
            for (const double value : row) ASSERT_TRUE(std::isfinite(value));
        }
        for (const double value : Calc.HammerResult) ASSERT_TRUE(std::isfinite(value));
        const quillmetra::Form& form = AnyVisibleForm();
        for (const double factor : Calc.UnitFactor) ASSERT_TRUE(std::isfinite(factor));
        ASSERT_TRUE(PanelIsOpen() || Calc.FormLoading != words::Yes);
        bool anyWorks = false;
        for (const Control* control : form.Controls()) {
            anyWorks = anyWorks || (control->Kind() == ControlKind::CommandButton && CanAct(*control));
        }
        ASSERT_TRUE(anyWorks) << form.Name();
    }

    // What a case's results depend on, as the form says it.
    static std::string InputsOf(CalculationForm& form, int i) {
        std::string inputs = form.txtFluid.Text();
        for (const char* material : {"cmdMatl", "txtPipeMatl"}) {
            if (const Control* control = form.Find(material)) inputs += control->Text();
        }
        for (const char* tick : {"chkEntrance", "chkExit", "optSource"}) {
            const auto* control = dynamic_cast<const Tickable*>(form.Find(tick));
            if (control != nullptr) inputs += control->Checked() ? "1" : "0";
        }
        for (const FormRow& row : FormRows(form.ProgramNumber())) {
            if (!row.IsResult()) inputs += Str(Val(RowControl(form, row, i).Text()));
        }
        return inputs;
    }

    static bool HasResults(CalculationForm& form, int i) {
        const Control* result = OfCase(form, "txtDestPress", i);
        if (result == nullptr) result = OfCase(form, "txtCriticalTime", i);
        if (result == nullptr) result = OfCase(form, "txtDensity", i);
        return result != nullptr && !result->Text().empty();
    }

    // Results stand only beside the inputs that gave them.
    void ExpectNoStaleResults(bool calculated) {
        CalculationForm* const form = Calculation();
        // A panel converts inputs and results alike.
        if (form == nullptr || PanelIsOpen()) return inputs_.fill({});
        for (int i = 0; i < CaseCount; ++i) {
            std::string& former = inputs_[static_cast<std::size_t>(i)];
            if (!HasResults(*form, i)) {
                former.clear();
            } else if (former.empty() || (calculated && Calc.CaseIndex == i)) {
                former = InputsOf(*form, i);
                ++Results;
            } else {
                ASSERT_EQ(former, InputsOf(*form, i)) << "case " << i;
            }
        }
    }

    int Results = 0;

private:
    std::mt19937 random_;
    Row<std::string, CaseCount> inputs_{};
};

TEST_P(RestlessUser, LeavesEveryFormUsable) {
    for (int act = 0; act < 4000; ++act) {
        quillmetra::Form& form = AnyVisibleForm();
        // Nonsense alone never gets as far as a result.
        CalculationForm* const calculation = Calculation();
        const int anyCase = Below(CaseCount);
        if (Below(40) == 0 && &form == calculation && CanAct(calculation->txtTagNum) &&
            CalculateButton(*calculation, anyCase) != nullptr) {
            Calc.CaseIndex = anyCase;
            FillGoodCase(*calculation, anyCase);
            ClickControl(*CalculateButton(*calculation, anyCase));
            ExpectNoStaleResults(true);
        }
        User.Boxes.clear();
        User.Answers.clear();
        // A conversion asks for a missing gravity until it gets one.
        User.Prompts.clear();
        User.Inputs = {"no number", "0.9", "0.9", "0.9", "0.9", "0.9", "0.9"};
        for (int i = 0; i < 6; ++i) User.Answers.push_back(Below(2) == 0 ? Answer::Yes : Answer::No);
        Control& control = *form.Controls()[static_cast<std::size_t>(Below(form.Controls().size()))];
        if (control.Caption() == "E&xit") continue;
        const bool leaves = control.Name() == "mnuNew" || control.Name() == "mnuProgram";
        if (leaves && Below(10) != 0) continue;
        // The act may unload the form.
        // Where a fluid is picked, a form that has results may calculate them anew.
        const Control* const fluids = form.Find("lstFluid");
        bool calculates = control.Name().starts_with("cmdCalculate") || control.Name().starts_with("mnuS") ||
                          control.Name() == "cmdOK" || (fluids != nullptr && fluids->Seen());
        const std::string name = form.Name() + "." + control.FullName();
        if (Below(300) == 0 && form.Name() != "frmTRProg") {
            CloseWindow(form);
        } else {
            ActOn(control);
        }
        for (const MessageBox& box : User.Boxes) {
            ASSERT_EQ(box.Text.find("control"), std::string::npos) << name << ": " << box.Text;
            calculates = calculates || box.Text == "Update Fluid Properties?";
        }
        ExpectSoundForm();
        ExpectNoStaleResults(calculates);
        if (HasFatalFailure()) FAIL() << "after act " << act << " on " << name;
    }
    EXPECT_GT(Results, 1) << "too restless to calculate anything";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RestlessUser,
                         ::testing::Values(Run{1, 1}, Run{1, 2}, Run{2, 3}, Run{2, 4}, Run{3, 5}, Run{3, 6},
                                           Run{4, 7}, Run{5, 8}),
                         [](const auto& run) {
                             return "Program" + std::to_string(run.param.Program) + "Seed" +
                                    std::to_string(run.param.Seed);
                         });

}  // namespace
}  // namespace quillmetra
