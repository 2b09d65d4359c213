// A user who presses, types and closes at random: whatever he does, no number on the form stops being one,
// and the form stays usable.
#include <algorithm>
#include <cmath>
#include <random>

#include "core/Words.h"
#include "forms/LineLossForm.h"
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

class RestlessUser : public SuiteTest, public ::testing::WithParamInterface<Run> {
protected:
    RestlessUser() : random_(GetParam().Seed) {
        RegisterForms();
        StartUp(SuitePath(Folder));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", GetParam().Program));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
    }

    // The line-loss form that is loaded, of either program; null for none.
    static LineLossForm* Line() {
        for (const char* name : {"frmLiqLineLoss", "frmGasLineLoss"}) {
            if (auto* form = dynamic_cast<LineLossForm*>(LoadedForm(name))) return form;
        }
        return nullptr;
    }

    // A case that calculates: 1000 ft of 4 in pipe with a light liquid or methane.
    static void FillGoodCase(LineLossForm& form, int i) {
        Suite.HideFluidReminder = words::Yes;
        Type(form.txtInletPipeLen, "1000");
        Type(form.txtInletPipeID, "4.026");
        Type(form.txtFlow(i), form.ProgramNumber() == 1 ? "100000" : "5000");
        for (const auto& [box, text] : {std::pair{"txtTemp", "60"},
                                        {"txtPressure", "100"},
                                        {"txtSGFlow", "1"},
                                        {"txtViscosity", "0.1"},
                                        {"txtMW", "16.04"},
                                        {"txtRatioSH", "1.3"},
                                        {"txtCritTemp", "343"},
                                        {"txtCritPressure", "667"}}) {
            if (Control* const control = form.Find(box, i)) Type(*control, text);
        }
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
            if (current != nullptr && current->Name() != "cmdCalculate")
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
    static std::string InputsOf(LineLossForm& form, int i) {
        std::string inputs = form.txtFluid.Text() + form.cmdMatl.Caption();
        for (const Tickable* tick :
             {static_cast<Tickable*>(&form.chkEntrance), static_cast<Tickable*>(&form.chkExit),
              static_cast<Tickable*>(&form.optSource)}) {
            inputs += tick->Checked() ? "1" : "0";
        }
        for (const FormRow& row : FormRows(form.ProgramNumber())) {
            if (!row.IsResult()) inputs += Str(Val(RowControl(form, row, i).Text()));
        }
        return inputs;
    }

    // Results stand only beside the inputs that gave them.
    void ExpectNoStaleResults(bool calculated) {
        LineLossForm* const line = Line();
        // A panel converts inputs and results alike.
        if (line == nullptr || PanelIsOpen()) return inputs_.fill({});
        for (int i = 0; i < CaseCount; ++i) {
            std::string& former = inputs_[static_cast<std::size_t>(i)];
            if (line->txtDestPress(i).Text().empty()) {
                former.clear();
            } else if (former.empty() || (calculated && Calc.CaseIndex == i)) {
                former = InputsOf(*line, i);
                ++Results;
            } else {
                ASSERT_EQ(former, InputsOf(*line, i)) << "case " << i;
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
        LineLossForm* const line = Line();
        if (Below(40) == 0 && &form == line && CanAct(line->txtFlow(0))) {
            FillGoodCase(*line, Calc.CaseIndex = Below(CaseCount));
            ClickControl(line->cmdCalculate(Calc.CaseIndex));
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
        const bool calculates = control.Name() == "cmdCalculate" || control.Name() == "cmdCalcPseudo";
        const std::string name = form.Name() + "." + control.FullName();
        if (Below(300) == 0 && form.Name() != "frmTRProg") {
            CloseWindow(form);
        } else {
            ActOn(control);
        }
        for (const MessageBox& box : User.Boxes) {
            ASSERT_EQ(box.Text.find("control"), std::string::npos) << name << ": " << box.Text;
        }
        ExpectSoundForm();
        ExpectNoStaleResults(calculates);
        if (HasFatalFailure()) FAIL() << "after act " << act << " on " << name;
    }
    EXPECT_GT(Results, 1) << "too restless to calculate anything";
}

INSTANTIATE_TEST_SUITE_P(Seeds, RestlessUser, ::testing::Values(Run{1, 1}, Run{1, 2}, Run{2, 3}, Run{2, 4}),
                         [](const auto& run) {
                             return "Program" + std::to_string(run.param.Program) + "Seed" +
                                    std::to_string(run.param.Seed);
                         });

}  // namespace
}  // namespace quillmetra
