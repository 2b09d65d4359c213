// A user who wanders at random through the whole suite, by a seed, on whatever host; see
// RestlessSuiteTest.cpp.
#pragma once

#include <cmath>
#include <cstdlib>
#include <functional>
#include <tuple>

#include "platform/NumberText.h"
#include "records/RecordFiles.h"
#include "reports/FormRows.h"
#include "tests/forms/RestlessFixture.h"
#include "tests/Memory.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {

inline int Setting(const char* name, int usual) {
    const char* const text = std::getenv(name);
    return text == nullptr ? usual : std::atoi(text);
}

// Who answers the questions of a host.
struct RandomUser {
    std::function<int(int)> Below;
    std::function<void(Form&)> Stay;
    std::vector<std::string> Files;
    std::vector<MessageBox> Boxes;  // shown since the last act
};

// A host whose dialogs, but for message boxes, are answered at random.
template <class Base>
class RestlessHost : public Base {
public:
    explicit RestlessHost(RandomUser& user) : User(user) {}

    std::optional<std::string> InputBox(const std::string&, const std::string&) override {
        static const char* const texts[] = {"0.9", "1", "", "x", "1e300", "-2"};
        if (User.Below(3) == 0) return std::nullopt;
        return texts[User.Below(6)];
    }
    std::optional<std::string> FileDialog(const FileQuestion&) override {
        if (User.Below(3) == 0) return std::nullopt;
        return User.Files[static_cast<std::size_t>(User.Below(static_cast<int>(User.Files.size())))];
    }
    std::optional<PrinterChoice> PrinterDialog(const PrinterChoice&) override {
        if (User.Below(3) == 0) return std::nullopt;
        return PrinterChoice{.Copies = User.Below(3)};
    }
    std::optional<FontChoice> FontDialog(const FontChoice&) override { return std::nullopt; }
    std::optional<unsigned> ColourDialog(unsigned, const std::string&) override { return std::nullopt; }
    void PageSetupDialog() override {}

protected:
    RandomUser& User;
};

// The program that he stays with, 0 for none, and the seed.
using WalkCase = std::tuple<int, int>;

class RestlessWalk : public RestlessFixture, public ::testing::WithParamInterface<WalkCase> {
protected:
    RestlessWalk() : RestlessFixture(static_cast<unsigned>(std::get<1>(GetParam()))) {
        User.Below = [this](int count) { return Below(static_cast<std::size_t>(count)); };
        User.Stay = [this](quillmetra::Form& form) { StayWith(form); };
    }

    // Once there is a host.
    void Begin() {
        StartUp(SuitePath(Folder));
        const std::string data = SuitePath(DataFolder());
        for (const char* name : {"TRDB.MDB", "records.csv", "HEADINGS.DAT", "OBXDAT.DAT", "page.pdf"}) {
            User.Files.push_back(data + "\\" + name);
        }
        WriteData("HEADINGS.DAT", "old\r\n");
        WriteData("OBXDAT.TAG", "O-1\r\nO-2\r\n");
        std::string old(1842, '\1');
        old[1] = old[922] = '\0';  // liquid line losses
        WriteData("OBXDAT.DAT", old);
        Suite.DatabaseFile = DatabaseFileOf(data);
        MakeEmptyDatabase(Suite.DatabaseFile);
        for (int program = 1; program <= 5; ++program) {
            TakeFilledRecord(program, 1 + program % 4, "T-" + std::to_string(program));
            SaveTRCalc();
        }
        Calc = CalcRecord();
        OpenProgram();
    }

    void OpenProgram() {
        if (program_ == 0) return;
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", program_));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
    }

    // The forms that can be used; a modal one is alone.
    static std::vector<quillmetra::Form*> UsableForms() {
        std::vector<quillmetra::Form*> forms;
        for (const std::string_view name : FormNames()) {
            quillmetra::Form* const form = LoadedForm(name);
            if (form != nullptr && TakesInput(*form)) forms.push_back(form);
        }
        return forms;
    }

    // Chance alone would seldom open the database, and seldom leave a panel.
    Control* Favourite(const quillmetra::Form& form) {
        static constexpr struct {
            const char *Form, *Control;
            int OneIn;
        } favourites[] = {{"frmTRProg", "cmdDBOpen", 20},  {"frmTRProg", "cmdDisplayCalc", 8},
                          {"frmTRProg", "cmdDelete", 200}, {"frmTRProg", "cmdSelect", 4},
                          {"frmUnits", "cmdOK", 5},        {"frmUnits", "cmdCancel", 5},
                          {"frmCalcOptions", "cmdOK", 6},  {"frmObxPrintCalc", "cmdOK", 8},
                          {"FindDialog", "cmdFind", 4},    {"frmObxProg", "cmdOK", 6},
                          {nullptr, "mnuProgram", 30},     {nullptr, "mnuSave", 50},
                          {nullptr, "mnuPrint", 50}};
        if (program_ != 0) return nullptr;
        for (const auto& each : favourites) {
            if (each.Form != nullptr && form.Name() != each.Form) continue;
            if (Below(static_cast<std::size_t>(each.OneIn)) == 0) return form.Find(each.Control);
        }
        return nullptr;
    }

    Control& AnyControl(quillmetra::Form& form) {
        if (Control* const favourite = Favourite(form); favourite != nullptr && CanAct(*favourite)) {
            return *favourite;
        }
        const auto any = [&]() -> Control& {
            return *form.Controls()[static_cast<std::size_t>(Below(form.Controls().size()))];
        };
        for (int tries = stays_ ? -970 : 0; tries < 30; ++tries) {
            Control& control = any();
            const bool still = control.Kind() == ControlKind::Label || control.Kind() == ControlKind::Frame;
            if (CanAct(control) && !Avoids(control) && (!still || control.Click)) return control;
        }
        return any();
    }

    // What would end most walks before they get anywhere.
    bool Avoids(const Control& control) {
        const std::string& name = control.Name();
        const bool leaves =
            name == "mnuExit" || name == "mnuNew" || name == "mnuProgram" || name == "cmdCancelGrid";
        return (leaves && (stays_ || Below(10) != 0)) || (stays_ && name.starts_with("mnuSave"));
    }

    virtual void Act() {
        const std::vector<quillmetra::Form*> forms = UsableForms();
        ASSERT_FALSE(forms.empty()) << "after " << last_;
        quillmetra::Form& form = *forms[static_cast<std::size_t>(Below(forms.size()))];
        CalculationForm* const calculation = dynamic_cast<CalculationForm*>(&form);
        const int anyCase = Below(CaseCount);
        bool calculates = true, elsewhere = calculation == nullptr;
        if (calculation != nullptr && Below(20) == 0 && CanAct(calculation->txtTagNum)) {
            if (Control* const button = CalculateButton(*calculation, anyCase)) {
                last_ = "a good case of " + form.Name();
                Type(calculation->txtTagNum, "T-" + std::to_string(Below(9)));
                FillGoodCase(*calculation, anyCase);
                ClickControl(*button);
            }
        } else if (Below(200) == 0 && !(stays_ && calculation != nullptr)) {
            last_ = "closing " + form.Name();
            CloseWindow(form);
        } else {
            Control& control = AnyControl(form);
            last_ = form.Name() + "." + control.FullName();
            calculates = Calculates(form, control);
            elsewhere = elsewhere || control.Name() == "cmdUnits";  // converts inputs and results in place
            ActOn(control);
            // The act that showed a modal form ends with that form, before the user comes to a key elsewhere.
            const bool waits = modalForms_ == 0 || form.Visible();
            if (const auto now = UsableForms(); Below(4) == 0 && !now.empty() && waits) {
                elsewhere = elsewhere || now.back() != &form;
                calculates = calculates || ShowsFluids(*now.back());
                PressAnyKey(*now.back());
            }
        }
        const auto asked = [this](std::string_view text) {
            return std::any_of(User.Boxes.begin(), User.Boxes.end(),
                               [text](const MessageBox& box) { return box.Text == text; });
        };
        // Elsewhere a record may be loaded, or numbers and results converted or rounded alike.
        if (elsewhere || asked("Round now?")) inputs_.fill({});
        calculates = calculates || asked("Update Fluid Properties?");
        ExpectSound();
        ExpectNoStaleResults(calculates);
    }

    static bool Calculates(const quillmetra::Form& form, const Control& control) {
        return control.Name().find("Calculate") == 3 || control.Name().starts_with("mnuS") ||
               control.Name() == "mnuUndo" || control.Name() == "mnuRedo" || control.Name() == "cmdOK" ||
               ShowsFluids(form);
    }

    // Where a fluid is picked, a form that has results may calculate them anew.
    static bool ShowsFluids(const quillmetra::Form& form) {
        const Control* const fluids = form.Find("lstFluid");
        return fluids != nullptr && fluids->Seen();
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
        for (const char* name : {"txtDestPress", "txtCriticalTime", "txtDensity"}) {
            if (const Control* result = OfCase(form, name, i)) return !result->Text().empty();
        }
        return false;
    }

    // Results stand only beside the inputs that gave them.
    void ExpectNoStaleResults(bool calculated) {
        CalculationForm* const form = Calculation();
        if (form == nullptr || PanelIsOpen()) return inputs_.fill({});
        for (int i = 0; i < CaseCount; ++i) {
            std::string& former = inputs_[static_cast<std::size_t>(i)];
            if (!HasResults(*form, i)) {
                former.clear();
            } else if (former.empty() || (calculated && (Calc.CaseIndex == i || last_.ends_with("All") ||
                                                         last_.ends_with("do")))) {
                former = InputsOf(*form, i);
                ++results_;
            } else {
                ASSERT_EQ(former, InputsOf(*form, i)) << "case " << i << " after " << last_;
            }
        }
    }

    void StayWith(quillmetra::Form& form) {
        ++modalForms_;
        for (int act = Below(20); act > 0 && form.Visible() && !ProcessHasEnded(); --act) {
            Act();
            if (HasFatalFailure()) break;
        }
        for (int tries = 0; form.Visible() && !ProcessHasEnded(); ++tries) {
            CloseWindow(form);
            if (tries == 100) {
                ADD_FAILURE() << form.Name() << " cannot be closed";
                HideForm(form.Name());
            }
        }
        --modalForms_;
    }

    // A user who leaves comes back.
    void StartAgain() {
        ResetForms();
        RegisterForms();
        Calc = CalcRecord();
        StartUp(SuitePath(Folder));
        StayInFolder();
        OpenProgram();
    }

    // The path finder shows the whole machine, and what he finds there is not his to write to.
    void StayInFolder() const {
        const std::string own = SuitePath(Folder);
        for (std::string& path : Suite.DefaultPaths) {
            if (!path.empty() && !path.starts_with(own)) path = SuitePath(DataFolder());
        }
        if (!Suite.DatabasePath.starts_with(own)) {
            Suite.DatabasePath = SuitePath(DataFolder());
            Suite.DatabaseFile = DatabaseFileOf(Suite.DatabasePath);
        }
        if (!Suite.BrowsePath.starts_with(own)) Suite.BrowsePath.clear();
    }

    static bool PanelIsOpen() { return IsFormLoaded("frmUnits") || IsFormLoaded("frmCalcOptions"); }

    void ExpectSound() {
        if (ProcessHasEnded()) return;
        StayInFolder();
        ASSERT_TRUE(PanelIsOpen() || Calc.FormLoading != words::Yes) << last_;
        const auto finite = [](double value) { return std::isfinite(value); };
        const auto expectFinite = [&](const auto& row) {
            ASSERT_TRUE(std::all_of(row.begin(), row.end(), finite)) << last_;
        };
        for (const auto& row : Calc.CaseInput) expectFinite(row);
        for (const auto& row : Calc.CaseResult) expectFinite(row);
        expectFinite(Calc.HammerResult);
        expectFinite(Calc.PipeData);
        expectFinite(Calc.FittingCount);
        expectFinite(Calc.UnitFactor);
        expectFinite(Calc.FluidPercent);
        for (const MessageBox& box : User.Boxes) {
            for (const char* slip : {"control", "vector", "basic_string", "bad_", "std::"}) {
                ASSERT_EQ(box.Text.find(slip), std::string::npos) << last_ << ": " << box.Text;
            }
        }
        User.Boxes.clear();
        for (const std::string_view name : FormNames()) {
            const quillmetra::Form* const form = LoadedForm(name);
            if (form == nullptr || !form->Visible()) continue;
            ASSERT_TRUE(form->Enabled() || PanelIsOpen()) << name << " is dead after " << last_;
            ExpectNumbers(*form);
        }
        for (const quillmetra::Form* form : UsableForms()) {
            ASSERT_TRUE(std::any_of(form->Controls().begin(), form->Controls().end(),
                                    [](const Control* control) { return CanAct(*control); }))
                << form->Name() << " has nothing to click after " << last_;
        }
    }

    void ExpectNumbers(const quillmetra::Form& form) {
        for (const Control* control : form.Controls()) {
            const std::string& text = control->Text();
            if (text.size() < 3 || text.size() > 4) continue;
            for (const char* none : {"nan", "-nan", "inf", "-inf"}) {
                ASSERT_NE(text, none) << form.Name() << "." << control->FullName() << " after " << last_;
            }
        }
    }

    void ExpectSoundDatabase() {
        if (!FileExists(Suite.DatabaseFile)) return;
        ASSERT_EQ(OpenRecords(Suite.DatabaseFile)->Fault(), "") << last_;
    }

    void Walk(int usual) {
        const int acts = Setting("QUILLMETRA_ACTS", usual);
        double before = 0;
        for (int act = 0; act < acts; ++act) {
            Act();
            if (ProcessHasEnded()) StartAgain();
            if (act % 300 == 299) ExpectSoundDatabase();
            if (HasFatalFailure()) FAIL() << "at act " << act;
            if (act == acts / 2) before = ResidentMegabytes();
        }
        constexpr int longWalk = 1000;  // a shorter one still opens windows for the first time
        if (MemoryIsOurs && acts >= longWalk) {
            EXPECT_LT(ResidentMegabytes(), before + 10);
        }
        EXPECT_TRUE(program_ == 0 || results_ > 1) << "too restless to calculate anything";
    }

    RandomUser User;
    const int program_ = std::get<0>(GetParam());
    bool stays_ = false;  // with one calculation that is not saved
    std::string last_;    // act
    int modalForms_ = 0;  // whose acts are within another
    Row<std::string, CaseCount> inputs_{};
    int results_ = 0;
};

}  // namespace quillmetra
