// The liquid line-loss form as a user meets it: from the browser to a result, its messages, its fluid.
#include <cmath>
#include <functional>

#include "core/Programs.h"
#include "platform/DropButton.h"
#include "platform/NumberText.h"
#include "reports/FormRows.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

TEST_F(LiquidForm, KeepsNonFiniteNumbersOut) {
    FillGoodCase(0);
    Suite.HideFlowStatus = words::Yes;
    for (const char* huge : {"1e300", "1e-300", "1e-310", "1e308"}) {
        for (TextBox* box : {&Form().txtInletPipeID, &Form().txtFlow(0), &Form().txtSGFlow(0),
                             &Form().txtViscosity(0), &Form().txtEquip(0), &Form().txtInletPipeElev,
                             &Form().txtInletGate, &Form().txtTemp(0), &Form().txtPressure(0)}) {
            const std::string good = box->Text();
            Type(*box, huge);
            Calculate(0);
            for (const Control* control : Form().Controls()) {
                EXPECT_EQ(control->Text().find("inf"), std::string::npos) << control->FullName();
                EXPECT_EQ(control->Text().find("nan"), std::string::npos) << control->FullName();
            }
            for (const auto& row : Calc.CaseResult) EXPECT_TRUE(std::isfinite(row[0]));
            Type(*box, good);
        }
    }
    User.Boxes.clear();
    Calculate(0);
    EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    EXPECT_NEAR(Val(Form().txtDestPress(0).Text()), 90.31, 0.001);
}

TEST_F(LiquidForm, UntouchedNumbersKeepAllTheirDigits) {
    Calc.PipeData[2] = 1.0 / 3 * 10;
    Calc.CaseInput[1][0] = 3600 / 3.785412;
    ShowForm("frmLiqLineLoss");
    Calc.UnitsConverted = words::Yes;
    Form().Dispatch([] { ControlOf("frmLiqLineLoss", "txtInletPipeID"); });
    auto& box = Form().txtInletPipeID;
    {
        Calc.FormLoading = words::Yes;
        box.SetText(Str(Calc.PipeData[2]));
        Calc.FormLoading = words::No;
    }
    Form().StoreForm();
    EXPECT_EQ(Calc.PipeData[2], 1.0 / 3 * 10);
}

TEST_F(LiquidForm, CopiesInputsAndResultsForASpreadsheet) {
    FillGoodCase(1);
    Calculate(1);
    ClickControl(Form().mnuCopyResults);
    EXPECT_NE(User.Copied.find("\tMaximum\tNormal\tMinimum\tUnit\n"), std::string::npos);
    EXPECT_NE(User.Copied.find("\nFlow\t\t100000\t\tlb/h\n"), std::string::npos) << User.Copied;
    EXPECT_NE(User.Copied.find("\nDestination pressure\t\t90.31\t\tpsig\n"), std::string::npos);
    EXPECT_EQ(User.Copied.find("Gate"), std::string::npos) << "a row without a value";
}

// --- Units in place, on all calculation forms ------------------------------------------------------------

class UnitsInPlace : public LiquidForm {
protected:
    using Way = std::function<void(DropButton& button, int line)>;
    struct State {
        CalcRecord Record;
        std::vector<std::string> Texts;
    };

    UnitsInPlace() {
        Suite.HideFluidReminder = words::Yes;
        Suite.HideFlowStatus = words::Yes;
        User.WhileAsked = [this] {
            if (User.LastText().starts_with("Round converted")) ExpectRecordInSight();
        };
    }

    static quillmetra::Form& OpenForm() { return *LoadedForm(FindProgram(Calc.CurrentProgram)->Form); }

    // Units and numbers of the form are those of the record.
    static void ExpectRecordInSight() {
        for (const FormRow& row : FormRows(Calc.CurrentProgram)) {
            for (int i = 0; i < (row.PerCase ? CaseCount : 1); ++i) {
                const Control& box = RowControl(OpenForm(), row, i);
                const double value = LiveValue(row, i);
                if (value > 0 && !row.IsResult()) EXPECT_EQ(box.Text(), Str(value)) << box.FullName();
            }
        }
        for (DropButton* button : Buttons())
            EXPECT_EQ(button->Caption(), Calc.UnitName[At(button->Index())]) << button->FullName();
    }

    static std::vector<DropButton*> Buttons() {
        std::vector<DropButton*> buttons;
        for (Control* control : OpenForm().Controls()) {
            auto* const button = dynamic_cast<DropButton*>(control);
            if (button != nullptr && button->Seen()) buttons.push_back(button);
        }
        return buttons;
    }

    static State StateNow() {
        State state{Calc, {}};
        for (const Control* control : OpenForm().Controls()) state.Texts.push_back(control->Text());
        return state;
    }

    void Begin(int program) {
        User.Answers = {Answer::No};
        ClickControl(*OpenForm().Find("mnuProgram"));
        User.Answers.clear();
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", program));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
        double number = 1.25;
        for (const FormRow& row : FormRows(program)) {
            for (int i = 0; !row.IsResult() && i < (row.PerCase ? CaseCount - 1 : 1); ++i) {
                Control& box = RowControl(OpenForm(), row, i);
                if (CanAct(box)) Type(box, TrimmedStr(number += 3.4567));
            }
        }
    }

    static void Choose(const char* option) {
        ClickControl(ControlOf(OpenForm().Name(), "cmdFormLayout"));
        if (CanAct(ControlOf("frmCalcOptions", option))) ClickControl(ControlOf("frmCalcOptions", option));
        ClickControl(ControlOf("frmCalcOptions", "cmdOKOptions"));
    }

    // Every line of every button, in mass and in volume units, and what stands after each.
    std::vector<State> Play(int program, const Way& way) {
        Begin(program);
        std::vector<State> states;
        for (const char* option : {"optLiqDensity", "optVolSIUnits"}) {
            Choose(option);
            for (DropButton* button : Buttons()) {
                const DropLines lines = button->Lines ? button->Lines() : DropLines();
                for (int line = 0; line < static_cast<int>(lines.size()); ++line) {
                    if (lines[At(line)].StandsApart) continue;
                    way(*button, line);
                    states.push_back(StateNow());
                    EXPECT_EQ(button->Caption(), lines[At(line)].Text);
                }
            }
        }
        return states;
    }
};

void TakeInPlace(DropButton& button, int line) { EXPECT_TRUE(TakeDropLine(button, line)); }

void TakeInTheWindow(DropButton& button, int line) {
    ClickControl(button);
    Control* const family = LoadForm("frmUnits").Focus.Current();
    ASSERT_NE(family, nullptr);
    ClickControl(*family);
    if (Control& basis = ControlOf("frmUnits", "cmdBasis"); CanAct(basis)) ClickControl(basis);
    PickRow(static_cast<ListBox&>(ControlOf("frmUnits", "cboUnit")), line);
    ClickControl(ControlOf("frmUnits", "cmdSelect"));
    ClickControl(ControlOf("frmUnits", "cmdOK"));
}

TEST_F(UnitsInPlace, GiveTheRecordOfTheUnitWindow) {
    for (int program = 1; program <= 5; ++program) {
        const std::vector<State> inPlace = Play(program, TakeInPlace);
        const std::vector<State> window = Play(program, TakeInTheWindow);
        ASSERT_EQ(inPlace.size(), window.size());
        ASSERT_GE(inPlace.size(), 26U) << program;
        for (std::size_t i = 0; i < window.size(); ++i) {
            EXPECT_EQ(inPlace[i].Texts, window[i].Texts) << program << ", choice " << i;
            EXPECT_TRUE(inPlace[i].Record == window[i].Record) << program << ", choice " << i;
        }
    }
}

}  // namespace
}  // namespace quillmetra
