// The liquid line-loss form as a user meets it: from the browser to a result, its messages, its fluid.
#include <cmath>
#include <functional>

#include "core/Programs.h"
#include "platform/DropButton.h"
#include "platform/NumberText.h"
#include "reports/FormRows.h"
#include "tables/TableFiles.h"
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
                if (value > 0 && !row.IsResult()) {
                    EXPECT_EQ(box.Text(), Str(value)) << box.FullName();
                }
            }
        }
        for (DropButton* button : Buttons())
            EXPECT_EQ(button->Caption(), Calc.UnitName[At(button->Index())]) << button->FullName();
    }

    // Those of the units.
    static std::vector<DropButton*> Buttons() {
        std::vector<DropButton*> buttons;
        for (Control* control : OpenForm().Controls()) {
            auto* const button = dynamic_cast<DropButton*>(control);
            if (button != nullptr && button->Seen() && button->Index() >= 0) buttons.push_back(button);
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

// The dialog of the fluid beside the menus of the cases: the same acts twice, from the start on.
struct FluidWay {
    const char* Name;
    int Program;
    const char* Kind;  // the tab, and its kind of steam
    // The entries of the menus that select the fluid, case by case.
    std::vector<const char*> Entries;
    std::vector<const char*> Fluids;  // with a percentage each where there are several
};

const FluidWay FluidWays[] = {
    {"liquid", 1, "optPure", {"mnuPureLiquid1", "mnuPureLiquid2", "mnuPureLiquid3"}, {"Water"}},
    {"liquid mixture",
     1,
     "optMixture",
     {"mnuMixture1", "mnuMixture2", "mnuMixture3"},
     {"Toluene", "Benzene"}},
    {"gas", 2, "optPure", {"mnuPureGases1", "mnuPureGases2", "mnuPureGases3"}, {"Methane"}},
    {"gas mixture", 2, "optMixture", {"mnuMixtures1", "mnuMixtures2", "mnuMixtures3"}, {"Methane", "Ethane"}},
    {"saturated", 2, "optSaturated", {"mnuSatSteam1", "mnuSatSteam2", "mnuSatSteam3"}, {}},
    {"superheated", 5, "optSuperheated", {"mnuSupersteam1", "mnuSupersteam2", "mnuSupersteam3"}, {}},
    {"hammer", 3, "optPure", {"mnuPureLiquids"}, {"Toluene"}},
    {"hammer mixture", 3, "optMixture", {"mnuMixtures"}, {"Toluene", "Benzene"}},
    {"liquid data", 4, "optPure", {"mnuLiquid1", "mnuLiquid2", "mnuLiquid3"}, {"Toluene"}},
    {"gas data mixture",
     5,
     "optMixture",
     {"mnuMixtures1", "mnuMixtures2", "mnuMixtures3"},
     {"Methane", "Ethane"}}};

class FluidDialog : public SuiteTest, public testing::WithParamInterface<FluidWay> {
protected:
    static Control& On(const char* control, int index = Control::NoIndex) {
        return ControlOf(FindProgram(GetParam().Program)->Form, control, index);
    }

    // A calculation whose cases have 500 to 520 degF and 100 to 102 psig, a liquid 60 to 80.
    void Begin() {
        ForgetForms();
        Calc = CalcRecord();
        Suite = SuiteState();
        RegisterForms();
        StartUp(SuitePath(Folder));
        Suite.HideFluidReminder = words::Yes;
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", GetParam().Program));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
        const bool hammer = GetParam().Program == program::WaterHammer;
        const int low = program::IsOfGas(GetParam().Program) ? 500 : 60;
        for (int i = 0; i < static_cast<int>(GetParam().Entries.size()); ++i) {
            Type(hammer ? On("txtFlowTemp") : On("txtTemp", i), std::to_string(low + 10 * i));
            Type(hammer ? On("txtOperPressure") : On("txtPressure", i), std::to_string(100 + i));
        }
        LeaveFocus(On("txtTagNum").Owner());
    }

    static void Type(Control& box, const std::string& text) {
        ASSERT_TRUE(MoveFocus(box)) << box.FullName();
        ASSERT_TRUE(TypeText(box, text)) << box.FullName();
    }

    static void PickInList(const std::string& name) {
        auto& list = static_cast<ListBox&>(On("lstFluid"));
        int row = 0;
        while (RowName(list.Row(row)) != name) ASSERT_LT(++row, list.RowCount()) << name;
        ASSERT_TRUE(PickRow(list, row));
        ASSERT_TRUE(ClickControl(On("cmdSelect")));
    }

    static void ByMenus() {
        for (const char* entry : GetParam().Entries) {
            ASSERT_TRUE(ClickControl(On(entry))) << entry;
            const auto& fluids = GetParam().Fluids;
            const bool isEmpty = !IsYes(Calc.MixtureFlag);
            if (fluids.size() == 1) PickInList(fluids[0]);
            if (fluids.size() < 2) continue;
            for (int i = 0; isEmpty && i < static_cast<int>(fluids.size()); ++i) {
                PickInList(fluids[At(i)]);
                Type(On("txtPercent", i), i == 0 ? "60" : "40");
            }
            ASSERT_TRUE(ClickControl(On("cmdCalcPseudo")));
        }
    }

    static Control& InDialog(const char* control, int index = Control::NoIndex) {
        return ControlOf("frmFluid", control, index);
    }

    static void ByDialog() {
        ASSERT_TRUE(ClickControl(On("cmdFluid")));
        const std::string kind = GetParam().Kind;
        if (kind.starts_with("optS")) ClickControl(InDialog("optSteam"));
        ClickControl(InDialog(GetParam().Kind));
        const auto& fluids = GetParam().Fluids;
        for (int i = 0; i < static_cast<int>(fluids.size()); ++i) {
            Type(InDialog("txtFilter"), fluids[At(i)]);
            if (fluids.size() < 2) continue;
            PressKey(InDialog("txtFilter"), "Enter");
            Type(InDialog("txtPercent", i), i == 0 ? "60" : "40");
        }
        ASSERT_TRUE(ClickControl(InDialog("cmdOK")));
        EXPECT_FALSE(IsFormLoaded("frmFluid"));
    }

    static std::string Texts() {
        std::string all;
        for (const Control* control : On("txtTagNum").Owner().Controls()) {
            if (control->Seen()) all += control->Text() + "\n";
        }
        return all;
    }
};

TEST_P(FluidDialog, GivesTheRecordOfTheMenus) {
    Begin();
    ByMenus();
    const CalcRecord menus = Calc;
    const std::string texts = Texts();
    EXPECT_EQ(menus.FluidDataSource, words::Loaded);
    User.Boxes.clear();
    Begin();
    ByDialog();
    EXPECT_TRUE(Calc == menus);
    EXPECT_EQ(Texts(), texts);
    EXPECT_LE(User.Boxes.size(), 1U) << "what is only told is told once";
    // Opened again it has the fluid selected, and Cancel changes nothing.
    const CalcRecord taken = Calc;
    ClickControl(On("cmdFluid"));
    EXPECT_TRUE(static_cast<OptionButton&>(InDialog(GetParam().Kind)).Checked());
    ClickControl(InDialog("cmdCancel"));
    EXPECT_TRUE(Calc == taken);
}

INSTANTIATE_TEST_SUITE_P(AllWays, FluidDialog, testing::ValuesIn(FluidWays), [](const auto& way) {
    std::string name = way.param.Name;
    std::ranges::replace(name, ' ', '_');
    return name;
});

}  // namespace
}  // namespace quillmetra
