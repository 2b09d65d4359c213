// The life of forms by name, and that nothing a handler does to them, or throws, breaks the suite.
#include <stdexcept>

#include "tests/platform/TestForms.h"

namespace quillmetra {
namespace {

class LifeForm : public PlainForm {
public:
    LifeForm() : PlainForm("frmLife") { Note("made"); }
    ~LifeForm() override { Note("destroyed"); }
    void Load() override { Note(Visible() ? "load shown" : "load hidden"); }
    std::string ProblemTitle() const override { return "Line loss"; }

    TextBox txtName{*this, "txtName"};
    ControlArray<TextBox> txtFlow{*this, "txtFlow", {0, 2}};
    CommandButton cmdGo{*this, "cmdGo", "Go"};
};

class OtherForm : public PlainForm {
public:
    OtherForm() : PlainForm("frmOther") {}
    TextBox txtThere{*this, "txtThere"};
};

class Forms : public ModelTest {
protected:
    Forms() {
        RegisterForm("frmLife", [] { return std::unique_ptr<Form>(std::make_unique<LifeForm>()); });
        RegisterForm("frmOther", [] { return std::unique_ptr<Form>(std::make_unique<OtherForm>()); });
    }
    static LifeForm& Life() { return static_cast<LifeForm&>(LoadForm("FRMLIFE")); }
    static Log Events() { return std::exchange(TheLog, {}); }
};

TEST_F(Forms, NamingAFormLoadsItHiddenOnce) {
    EXPECT_FALSE(IsFormLoaded("frmLife"));
    EXPECT_EQ(ControlOf("frmlife", "TXTFLOW", 2).FullName(), "txtFlow(2)");
    EXPECT_TRUE(IsFormLoaded("frmLife"));
    EXPECT_FALSE(Life().Visible());
    ShowForm("frmLife");
    EXPECT_TRUE(TakesInput(Life()));
    HideForm("frmLife");
    EXPECT_FALSE(TakesInput(Life()));
    EXPECT_EQ(Events(), (Log{"made", "load hidden"}));
    UnloadForm("frmLife");
    UnloadForm("frmLife");
    HideForm("frmLife");
    EXPECT_EQ(Events(), (Log{"gone frmLife", "destroyed"}));
}

TEST_F(Forms, WrongNamesAreFailures) {
    EXPECT_THROW(LoadForm("frmNone"), RuntimeError);
    EXPECT_THROW(ControlOf("frmLife", "txtNone"), RuntimeError);
    EXPECT_THROW(ControlOf("frmLife", "txtFlow", 1), RuntimeError);
    EXPECT_THROW(ControlOf("frmLife", "txtFlow"), RuntimeError) << "an element has its index";
    EXPECT_THROW(Life().txtFlow(1), RuntimeError);
    EXPECT_THROW(Life().txtFlow(-1), RuntimeError);
    EXPECT_THROW(TextBox(Life(), "TXTNAME"), std::logic_error) << "the name differs only by case";
    EXPECT_THROW(TextBox(Life(), "txtflow", 2), std::logic_error);
    EXPECT_EQ(Life().Controls().size(), 4U);
}

TEST_F(Forms, AFormThatUnloadsItselfLivesUntilItsActEnds) {
    ShowForm("frmLife");
    Life().cmdGo.Click = [] {
        LifeForm& old = Life();
        UnloadForm("frmLife");
        EXPECT_FALSE(IsFormLoaded("frmLife"));
        old.txtName.SetText("still here");
        old.txtName.SetFocus();
        EXPECT_NE(&Life(), &old) << "the next load is a fresh form";
        EXPECT_EQ(Life().txtName.Text(), "");
        Note("end of click");
    };
    Events();
    ClickControl(Life().cmdGo);
    EXPECT_EQ(Events(), (Log{"made", "load hidden", "end of click", "gone frmLife", "destroyed"}));
    EXPECT_TRUE(IsFormLoaded("frmLife"));
}

// Each of these runs several handlers of one act, or handlers of two forms.
TEST_F(Forms, UnloadingInAnyHandlerIsSafe) {
    const auto unload = [] { UnloadForm("frmLife"); };
    const std::function<void(LifeForm&)> acts[] = {
        [&](LifeForm& form) {
            form.txtName.KeyPress = [&](Key&) { unload(); };
            PressKey(form.txtName, "x");
        },
        [&](LifeForm& form) {
            form.txtName.Change = unload;
            TypeText(form.txtName, "x");
        },
        [&](LifeForm& form) {
            form.txtName.LostFocus = unload;
            form.cmdGo.Click = [] { ADD_FAILURE() << "a click on a form that is gone"; };
            ClickControl(form.cmdGo);
        },
        [&](LifeForm& form) {
            form.cmdGo.Click = unload;
            form.cmdGo.DoubleClick = [] { ADD_FAILURE() << "a double click on a form that is gone"; };
            DoubleClickControl(form.cmdGo);
        },
        [&](LifeForm& form) {
            form.cmdGo.Click = [&] { form.txtFlow(0).SetFocus(); };
            form.txtFlow(0).GotFocus = unload;
            ClickControl(form.cmdGo);
        },
        [&](LifeForm& form) {
            ShowForm("frmOther");
            auto& other = static_cast<OtherForm&>(*LoadedForm("frmOther"));
            form.txtName.Change = unload;
            other.txtThere.Change = [&] {
                form.txtName.SetText("from there");
                EXPECT_NE(TheLog.back(), "destroyed") << "the handler still refers to the form";
                form.txtName.SetColours(1, 2);
            };
            TypeText(other.txtThere, "x");
        },
        [&](LifeForm& form) { CloseWindow(form); },
    };
    for (const auto& act : acts) {
        ShowForm("frmLife");
        act(Life());
        EXPECT_FALSE(IsFormLoaded("frmLife"));
        EXPECT_EQ(TheLog.back(), "destroyed");
        EXPECT_TRUE(User.Boxes.empty()) << User.LastText();
    }
}

TEST_F(Forms, DispatchTellsWhatNobodyCaughtAndTheFormStaysUsable) {
    ShowForm("frmLife");
    LifeForm& form = Life();
    const std::function<void()> faults[] = {
        [] { throw failure::DivisionByZero(); },
        [] { throw std::out_of_range("out of range"); },
        [&] { form.txtFlow(7).SetText("x"); },
    };
    const char* const words[] = {"Division by zero", "out of range",
                                 "Control array element 'txtFlow(7)' does not exist"};
    for (std::size_t i = 0; i < 3; ++i) {
        form.cmdGo.Click = [&] {
            form.txtName.SetFocus();
            faults[i]();
        };
        const int before = BoxesShown();
        EXPECT_TRUE(ClickControl(form.cmdGo));
        EXPECT_EQ(User.LastText(), words[i]);
        EXPECT_EQ(User.Boxes.back().Title, "Line loss");
        EXPECT_EQ(User.Boxes.back().Sign, Icon::Stop);
        EXPECT_EQ(BoxesShown(), before + 1);
        EXPECT_EQ(form.Focus.Current(), &form.txtName) << "focus moves are done all the same";
        EXPECT_TRUE(CanAct(form.cmdGo));
    }
}

// The script player ends with an exception that forms do not catch; nothing may be left as it was within.
TEST_F(Forms, AnExceptionThatIsNoFailurePassesThrough) {
    struct Stop {};
    ShowForm("frmOther");
    ShowForm("frmLife");
    Life().cmdGo.Click = [] { ShowForm("frmOther", Modal::Yes); };
    User.WhileShown = [](Form&) {
        UnloadForm("frmLife");
        throw Stop();
    };
    EXPECT_THROW(ClickControl(Life().cmdGo), Stop);
    EXPECT_EQ(TheLog.back(), "destroyed") << "no handler is thought to run any more";
    EXPECT_EQ(TopModalForm(), nullptr);
    EXPECT_TRUE(TakesInput(*LoadedForm("frmOther")));
}

TEST_F(Forms, AModalFormShutsTheOthers) {
    ShowForm("frmLife");
    LifeForm& life = Life();
    User.WhileShown = [&](Form& dialog) {
        EXPECT_EQ(TopModalForm(), &dialog);
        EXPECT_TRUE(TakesInput(dialog));
        EXPECT_FALSE(ClickControl(life.cmdGo));
        EXPECT_FALSE(TypeText(life.txtName, "x"));
        ShowForm("frmOther");
        EXPECT_TRUE(dialog.Modal()) << "showing it again does not let it go";
        UnloadForm("frmOther");
        EXPECT_TRUE(TakesInput(life));
    };
    ShowForm("frmOther", Modal::Yes);
    EXPECT_EQ(Events().back(), "gone frmOther");
    EXPECT_TRUE(ClickControl(life.cmdGo));
}

TEST_F(Forms, AnInertFormOrAnEndedSuiteTakesNoInput) {
    ShowForm("frmLife");
    LifeForm& form = Life();
    form.SetEnabled(false);
    EXPECT_FALSE(ClickControl(form.cmdGo));
    CloseWindow(form);
    EXPECT_TRUE(IsFormLoaded("frmLife"));
    form.SetEnabled(true);
    EndProcess();
    EXPECT_TRUE(User.Ended);
    EXPECT_FALSE(ClickControl(form.cmdGo));
}

TEST_F(Forms, AFormWhoseLoadFailsIsNotLoaded) {
    static int loads;
    class Failing : public PlainForm {
    public:
        Failing() : PlainForm("frmFailing") {}
        void Load() override {
            if (++loads == 1) throw failure::FileNotFound();
            if (loads == 2) UnloadForm("frmFailing");
        }
    };
    loads = 0;
    RegisterForm("frmFailing", [] { return std::unique_ptr<Form>(std::make_unique<Failing>()); });
    EXPECT_THROW(ShowForm("frmFailing"), RuntimeError);
    EXPECT_FALSE(IsFormLoaded("frmFailing"));
    EXPECT_THROW(ShowForm("frmFailing"), RuntimeError) << "it unloaded itself";
    ShowForm("frmFailing");
    EXPECT_TRUE(IsFormLoaded("frmFailing"));
}

TEST_F(Forms, TheHookAfterAnActRunsOnceAndMayDoActsItself) {
    ShowForm("frmLife");
    Life().cmdGo.Click = [] {
        Life().txtName.SetText("typed");
        Note("click");
    };
    SetAfterAct([] {
        Note("after");
        ShowForm("frmOther");
        Life().txtFlow(2).SetFocus();
    });
    Events();
    ClickControl(Life().cmdGo);
    EXPECT_EQ(Events(), (Log{"click", "after"}));
    EXPECT_EQ(Life().Focus.Current(), &Life().txtFlow(2));
}

}  // namespace
}  // namespace quillmetra
