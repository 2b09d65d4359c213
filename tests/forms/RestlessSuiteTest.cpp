// A user who wanders at random through the whole suite: browser, database, calculations, printout, table
// editor, panels, and the end of the program and its next start. Nothing that he does may leave a number that
// is none, a form that is dead, results beside other inputs than gave them, or a damaged database. In ten
// more walks he stays with one calculation. QUILLMETRA_ACTS and QUILLMETRA_SEEDS make it long.
#include "tests/forms/RestlessSuite.h"

#include <cmath>

namespace quillmetra {
namespace {

// Without a screen.
class RestlessFake : public RestlessHost<FakeHost> {
public:
    using RestlessHost::RestlessHost;

    Answer ShowMessageBox(const MessageBox& box) override {
        User.Boxes.push_back(box);
        if (box.Choice == Buttons::Ok) return Answer::Ok;
        if (box.Choice == Buttons::YesNoCancel && User.Below(3) == 0) return Answer::Cancel;
        return User.Below(2) == 0 ? Answer::Yes : Answer::No;
    }
    bool Yield() override { return User.Below(50) == 0; }
    void RunModal(Form& form) override { User.Stay(form); }
};

class RestlessSuite : public RestlessWalk {
protected:
    RestlessSuite() { Begin(); }

    void Act() override {
        RestlessWalk::Act();
        Host.Pages.clear();
        Host.Jobs.clear();
    }

    RestlessFake Host{User};
};

TEST_P(RestlessSuite, StaysWhole) { Walk(program_ == 0 ? 1500 : 4000); }

using ::testing::Combine;
using ::testing::Range;
INSTANTIATE_TEST_SUITE_P(Seeds, RestlessSuite,
                         Combine(Range(0, 1), Range(1, 1 + Setting("QUILLMETRA_SEEDS", 4))));
INSTANTIATE_TEST_SUITE_P(OneProgram, RestlessSuite, Combine(Range(1, 6), Range(1, 3)));

// Whatever was done to a calculation, all of it undone gives the record of before to the digit, but for what
// the database has, and all of it done again that of after.
class UndoneActs : public RestlessSuite {
protected:
    void Repeat(const char* key) {
        while (!Calculation()->Enabled() || modalForms_ > 0) CloseWindow(*UsableForms().back());
        Calculation()->CloseOverlays();
        while (ClickControl(*Calculation()->Find(key))) continue;
    }
    std::string Texts() {
        std::string texts;
        for (const Control* control : Calculation()->Controls()) {
            const bool isBox = control->Kind() == ControlKind::TextBox && Calculation()->Remembers(*control);
            if (isBox) texts += control->FullName() + "=" + control->Text() + "\n";
        }
        return texts;
    }
};

// But for the saved side; a refused calculation may leave no number in the working layer.
bool IsRecordInHand(const CalcRecord& record) {
    CalcRecord one = WithSavedSideOf(record, Calc), other = Calc;
    for (double CalcRecord::*const scratch :
         {&CalcRecord::Velocity, &CalcRecord::SonicVelocity, &CalcRecord::LossPer100,
          &CalcRecord::FlowPressure, &CalcRecord::EquivLength, &CalcRecord::CompressFactor,
          &CalcRecord::Density}) {
        if (std::isnan(one.*scratch) && std::isnan(other.*scratch)) one.*scratch = other.*scratch = 0;
    }
    return one == other;
}

TEST_P(UndoneActs, GiveTheRecordOfBefore) {
    stays_ = true;
    FillGoodCase(*Calculation(), 0);
    ClickControl(*CalculateButton(*Calculation(), 0));
    Calculation()->History.Forget();
    LeaveFocus(*Calculation());
    const CalcRecord start = Calc;
    const std::string before = Texts();
    for (int act = 0; act < 50; ++act) Act();
    Repeat("mnuRedo");
    const CalcRecord end = Calc;
    const std::string after = Texts();
    const std::size_t boxes = User.Boxes.size();
    Repeat("mnuUndo");
    EXPECT_TRUE(IsRecordInHand(start));
    EXPECT_EQ(before, Texts());
    Repeat("mnuRedo");
    EXPECT_TRUE(IsRecordInHand(end));
    EXPECT_EQ(after, Texts());
    EXPECT_EQ(User.Boxes.size(), boxes);
}
INSTANTIATE_TEST_SUITE_P(Programs, UndoneActs,
                         Combine(Range(1, 6), Range(1, 1 + Setting("QUILLMETRA_SEEDS", 3))));

// One with a hole in it, and one whose second case is refused.
class AllCases : public RestlessFixture, public ::testing::WithParamInterface<int> {
protected:
    AllCases() : RestlessFixture(1) {}

    CalcRecord Calculated(bool refused, bool atOnce) {
        ResetForms();
        RegisterForms();
        Calc = CalcRecord();
        Suite.HideFlowStatus.clear();
        StartUp(SuitePath(Folder));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", GetParam()));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
        CalculationForm& form = *Calculation();
        const std::vector<int> cases = GetParam() == 3 ? std::vector{0} : std::vector{0, 1, 2};
        for (const int i : cases) {
            if (i != 1 || refused) FillGoodCase(form, i);
        }
        if (refused && GetParam() != 3) Type(*form.Find("txtTemp", 1), "-500");
        Host.Boxes.clear();
        if (atOnce) {
            PressKey(form, "F5");
        } else {
            for (const int i : cases) {
                if (i != 1 || refused) ClickControl(*CalculateButton(form, i));
            }
        }
        return Calc;
    }

    FakeHost Host;
};

TEST_P(AllCases, AreThoseOfTheirButtons) {
    for (const bool refused : {false, true}) {
        const CalcRecord byButtons = Calculated(refused, false);
        EXPECT_TRUE(byButtons == Calculated(refused, true)) << refused;
        const auto tells = [](const MessageBox& box) { return box.Choice == Buttons::Ok; };
        EXPECT_LE(std::ranges::count_if(Host.Boxes, tells), refused ? 2 : 1);  // one as the box is left
        EXPECT_TRUE(
            std::ranges::none_of(Host.Boxes, [](const auto& box) { return box.Title == "Flow Status"; }));
        EXPECT_EQ(Suite.HideFlowStatus, "");
    }
}
INSTANTIATE_TEST_SUITE_P(Programs, AllCases, Range(1, 6));

}  // namespace
}  // namespace quillmetra
