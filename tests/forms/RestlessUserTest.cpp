// A user who presses, types and closes at random: whatever he does, no number on the form stops being one,
// and the form stays usable.
#include <cmath>
#include <random>

#include "platform/NumberText.h"
#include "reports/FormRows.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

class RestlessUser : public LiquidForm, public ::testing::WithParamInterface<unsigned> {
protected:
    RestlessUser() : random_(GetParam()) {}

    int Below(std::size_t count) { return static_cast<int>(random_() % count); }

    std::string AnyText() {
        static const char* const texts[] = {"",        "0",      "1",      "60",       "100", "4.026",
                                            "1e300",   "-1e300", "1e-310", "-5",       "abc", "12,5",
                                            "nan",     "inf",    "0x10",   "1e999999", " 7 ", "+3",
                                            "-459.67", "-14.7",  "705",    "99999999", "\"",  "1e15"};
        return texts[Below(std::size(texts))];
    }

    quillmetra::Form& AnyVisibleForm() {
        for (const char* name :
             {"frmPipeSize", "frmUnits", "frmCalcOptions", "frmLiqLineLoss", "frmObxProg", "frmTRProg"}) {
            quillmetra::Form* form = LoadedForm(name);
            if (form != nullptr && form->Visible()) return *form;
        }
        throw std::logic_error("no form is shown");
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
    std::string InputsOf(int i) {
        std::string inputs = Form().txtFluid.Text() + Form().cmdMatl.Caption();
        for (const Tickable* tick :
             {static_cast<Tickable*>(&Form().chkEntrance), static_cast<Tickable*>(&Form().chkExit),
              static_cast<Tickable*>(&Form().optSource)}) {
            inputs += tick->Checked() ? "1" : "0";
        }
        for (const FormRow& row : FormRows(1)) {
            if (!row.IsResult()) inputs += Str(Val(RowControl(Form(), row, i).Text()));
        }
        return inputs;
    }

    // Results stand only beside the inputs that gave them.
    void ExpectNoStaleResults(bool calculated) {
        // A panel converts inputs and results alike.
        if (!IsFormLoaded("frmLiqLineLoss") || PanelIsOpen()) return inputs_.fill({});
        for (int i = 0; i < CaseCount; ++i) {
            std::string& former = inputs_[static_cast<std::size_t>(i)];
            if (Form().txtDestPress(i).Text().empty()) {
                former.clear();
            } else if (former.empty() || (calculated && Calc.CaseIndex == i)) {
                former = InputsOf(i);
                ++Results;
            } else {
                ASSERT_EQ(former, InputsOf(i)) << "case " << i;
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
        if (Below(40) == 0 && CanAct(*form.Controls().front()) && form.Find("txtFlow", 0) != nullptr &&
            CanAct(*form.Find("txtFlow", 0))) {
            FillGoodCase(Calc.CaseIndex = Below(CaseCount));
            ClickControl(Form().cmdCalculate(Calc.CaseIndex));
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
        const bool calculates = control.Name() == "cmdCalculate";  // the act may unload the form
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

INSTANTIATE_TEST_SUITE_P(Seeds, RestlessUser, ::testing::Values(1U, 2U, 3U));

}  // namespace
}  // namespace quillmetra
