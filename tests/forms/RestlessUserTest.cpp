// A user who presses, types and closes at random: whatever he does, no number on the form stops being one,
// and the form stays usable.
#include <algorithm>
#include <cmath>

#include "platform/NumberText.h"
#include "reports/FormRows.h"
#include "tests/forms/RestlessFixture.h"

namespace quillmetra {
namespace {

struct Run {
    int Program;
    unsigned Seed;
};

class RestlessUser : public RestlessFixture, public ::testing::WithParamInterface<Run> {
protected:
    RestlessUser() : RestlessFixture(GetParam().Seed) {
        StartUp(SuitePath(Folder));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", GetParam().Program));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
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
            if (Below(4) == 0) PressAnyKey(AnyVisibleForm());
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
