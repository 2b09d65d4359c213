// Each of the five programs by the keyboard alone, from the record browser to a report on disk; and a walk by
// Tab over every form.
#include <deque>
#include <filesystem>
#include <iterator>
#include <set>
#include <sstream>

#include <QElapsedTimer>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QToolButton>

#include "core/Words.h"
#include "desktop/KeyNames.h"
#include "forms/CalculationForm.h"
#include "platform/NumberText.h"
#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {

namespace {

class Keyboard : public DesktopTest {
protected:
    // Plays keys one after the other, each when what the one before brought about has come to rest, also
    // while a dialog waits. A text is typed; "{Alt+G}" is a key; "@txtFlow(0)" is Tab until that control has
    // the keyboard, and "#frmObxProg" waits for a window ("#" for a message box), as a button that is
    // pressed by its letter takes a moment.
    void Play(std::deque<std::string> keys) {
        keys_ = std::move(keys);
        Next();
        ASSERT_TRUE(QTest::qWaitFor([this] { return keys_.empty() && !playing_; }, 30000))
            << "the keys from " << keys_.front() << " on did not come to their turn";
        Settle();
    }

    static QWidget* Target() {
        if (QWidget* const popup = QApplication::activePopupWidget()) return popup;
        QWidget* const modal = QApplication::activeModalWidget();
        QWidget* const window = modal != nullptr ? modal : QApplication::activeWindow();
        if (modal != nullptr && !modal->isActiveWindow()) modal->activateWindow();
        if (window == nullptr || !window->isVisible()) Activate();
        if (window == nullptr || !window->isActiveWindow() || !window->isVisible()) return nullptr;
        QWidget* const focus = QApplication::focusWidget();
        return focus != nullptr && window->isAncestorOf(focus) ? focus : window;
    }

    // The invisible screen leaves a menu active that has closed.
    static void Activate() {
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible() && window->isEnabled() && dynamic_cast<FormWindow*>(window) != nullptr) {
                window->activateWindow();
            }
        }
    }

    static void Press(const std::string& key) {
        const QKeyCombination combination = QKeySequence(ToQt(key))[0];
        QTest::keyClick(Target(), combination.key(), combination.keyboardModifiers());
    }

    // The mouse goes from head to head, pressing each.
    void ClickMenu(std::initializer_list<Control*> heads) {
        QWidget* place = WindowOf((*heads.begin())->Owner()).menuBar();
        for (Control* head : heads) {
            auto* const action = WindowOf(head->Owner()).findChild<QAction*>(ToQt(head->FullName()));
            auto* const menu = qobject_cast<QMenu*>(place);
            const QRect at = menu == nullptr ? static_cast<QMenuBar*>(place)->actionGeometry(action)
                                             : menu->actionGeometry(action);
            QTest::mouseMove(place, at.center());
            QTest::mouseClick(place, Qt::LeftButton, {}, at.center());
            place = action->menu();
        }
    }

private:
    void Next() {
        QTimer::singleShot(10, &turns_, [this] {
            if (keys_.empty() || Target() == nullptr) {
                if (!keys_.empty()) Next();
                return;
            }
            const std::string key = keys_.front();
            if (key[0] == '#') {
                const QWidget* const window = Target()->window();
                const bool isThere = key == "#" ? qobject_cast<const QMessageBox*>(window) != nullptr
                                                : window->objectName() == ToQt(key.substr(1));
                if (isThere) keys_.pop_front();
                return Next();
            }
            if (key[0] == '@') {
                if (Target()->objectName() == ToQt(key.substr(1)) || ++tabs_ > 100) {
                    EXPECT_LE(tabs_, 100) << "Tab does not reach " << key;
                    tabs_ = 0;
                    keys_.pop_front();
                    return Next();
                }
            } else {
                keys_.pop_front();
            }
            // The next key waits behind this one, and comes to its turn within a dialog that this one opens.
            Next();
            playing_ = true;
            if (key[0] == '@') {
                Press("Tab");
            } else if (key[0] == '{') {
                Press(key.substr(1, key.size() - 2));
            } else {
                QTest::keyClicks(Target(), ToQt(key));
            }
            playing_ = false;
        });
    }

    std::deque<std::string> keys_;
    int tabs_ = 0;
    bool playing_ = false;
    QObject turns_;  // no key comes to its turn after the test
};

struct ByKeys {
    const char* Name;
    const char* Keys;  // from the selector of programs to results
    const char *Form, *Result;
    int Index;
    double Value;
};

const ByKeys Ways[] = {
    {"liquid line",
     "{Return} P-1 @txtInletPipeLen 1000 @cmdPipeID {Space} 4 {Return} {Return} @txtFlow(0) 100000 {Return} "
     "68 {Return} 100 {Alt+U} M P Tolu {Return} @cmdCalculate(0) {Space} @cmdUnits(3) {Alt+Down} b # "
     "{Return}",
     "frmLiqLineLoss", "txtDestPress", 0, 6.163},
    {"gas line",
     "{Down} {Return} P-2 @txtInletPipeLen 1000 {Return} 4.026 @txtFlow(1) 5000 {Return} 60 {Return} 100 "
     "{Alt+U} N P Meth {Return} @cmdCalculate(1) {Space}",
     "frmGasLineLoss", "txtDestPress", 1, 95.9},
    {"water hammer",
     "{Down} {Down} {Return} P-3 @txtMaxLiqFlow 400000 {Return} 60 {Return} 100 {Alt+U} P Water {Return} "
     "@txtLineLength 2500 {Return} 6.065 @txtPipeWall 0.28 @cmdPipeMatl {Space} {Return} "
     "@txtMaxAllowPressure 300 @cmdCalculateliq {Space}",
     "frmWaterHammer", "txtPressureWave", Control::NoIndex, 623},
    {"liquid data",
     "{Down} {Down} {Down} {Return} P-4 @txtTemp(0) 80 {Return} 100 {Alt+K} #frmFluid tolu {Return} "
     "#frmLiqData",
     "frmLiqData", "txtSGFTP", 0, 0.8615},
    {"gas data",
     "{Down} {Down} {Down} {Down} {Return} P-5 @txtTemp(0) 80 {Return} 250 {Alt+U} C P Meth {Return}",
     "frmGasData", "txtCompFactor", 0, 0.9678},
};

// The ways to the entries of the other cases.
const std::deque<std::string> ToOtherCases[] = {{"{Alt+U}", "{Down}", "{Right}"},
                                                {"{Alt+U}", "{Up}", "{Right}"}};

TEST_F(Keyboard, AnEmptyCaseTellsWhatItNeedsAndTypingGoesOn) {
    for (const char* name : {"frmLiqLineLoss", "frmGasLineLoss", "frmLiqData", "frmGasData"}) {
        SCOPED_TRACE(name);
        auto& form = static_cast<CalculationForm&>(Show(name));
        for (const char* box : {"txtTemp", "txtPressure"}) TypeText(*form.Find(box, 0), "80");
        TextBox& tag = form.txtTagNum;
        MoveFocus(tag);
        for (std::deque<std::string> keys : ToOtherCases) {
            TypeText(tag, "");
            keys.insert(keys.end(), {"#", "{Return}", "#" + form.Name(), "7"});
            Play(keys);
            EXPECT_EQ(tag.Text(), "7") << keys.at(1);
        }
        TypeText(tag, "");
        ClickMenu({&form.mnuFluiProp, &form.mnuCase(2)});
        Play({"#", "{Return}", "#" + form.Name(), "7"});
        EXPECT_EQ(tag.Text(), "7") << "by mouse";
        Calc.ChangedFlag.clear();
        ResetForms();
        Settle();
    }
}

// In a very narrow window the whole menu bar is behind its extension.
TEST_F(Keyboard, AnEmptyMenuTellsItThroughTheBarsExtension) {
    auto& form = static_cast<CalculationForm&>(Show("frmGasLineLoss"));
    QMenuBar& bar = *WindowOf(form).menuBar();
    WindowOf(form).resize(60, 400);
    Settle();
    auto* const extension = bar.findChild<QToolButton*>("qt_menubar_ext_button");
    ASSERT_TRUE(extension != nullptr && extension->isVisible());
    QTimer::singleShot(50, qApp, [&] {
        auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        const QRect place =
            menu->actionGeometry(WindowOf(form).findChild<QAction*>(ToQt(form.mnuFluiProp.Name())));
        QTest::mouseMove(menu, place.center());
        QTest::mouseClick(menu, Qt::LeftButton, {}, place.center());
    });
    QTimer::singleShot(0, qApp, [&] { QTest::mouseClick(extension, Qt::LeftButton); });
    Play({"#", "{Return}", "#" + form.Name(), "7"});
    EXPECT_EQ(form.txtTagNum.Text(), "7");
}

TEST_F(Keyboard, ABoxUndoesWhatWasTypedIntoItBeforeTheFormDoes) {
    Form& form = Show("frmLiqLineLoss");
    const Control &length = *form.Find("txtInletPipeLen"), &diameter = *form.Find("txtInletPipeID");
    Play({"@txtInletPipeLen", "650", "{Tab}", "6.065", "{Ctrl+Z}"});
    EXPECT_EQ(diameter.Text() + length.Text(), "650");
    Play({"{Ctrl+Z}"});
    EXPECT_EQ(length.Text(), "");
    Play({"{Ctrl+Y}"});
    EXPECT_EQ(length.Text(), "650");
    Calc.ChangedFlag.clear();
}

TEST_F(Keyboard, EscapeOutOfAMenuGivesTheKeyboardBack) {
    Control& tag = *Show("frmLiqLineLoss").Find("txtTagNum");
    Play({"{Alt+F}", "{Down}", "{Escape}", "7"});
    EXPECT_EQ(tag.Text(), "7");
}

// What a key is called that has something to do on the form: it is no key for a box.
bool IsUsed(const Form& form, const std::string& key) {
    if (key == "Enter" || key == "Tab" || key == "Shift+Tab" || key == "F1") return true;
    if (key == "Escape") return form.CancelButton != nullptr;
    return std::any_of(form.Controls().begin(), form.Controls().end(), [&](const Control* control) {
        const std::string& text = control->Caption();
        const std::size_t mark = text.find('&');
        if (mark != std::string::npos && key == "Alt+" + std::string(1, LowerCase(text[mark + 1])))
            return true;
        return control->Kind() == ControlKind::MenuItem && CanAct(*control) &&
               SameName(static_cast<const MenuItem*>(control)->Shortcut, key);
    });
}

class EveryForm : public Keyboard, public testing::WithParamInterface<std::string_view> {};

TEST_P(EveryForm, AKeyThatABoxDoesNotUseLeavesTheKeyboardThere) {
    Form& form = Show(GetParam());
    const auto stops = form.TabStops();
    const auto isBox = [](Control* stop) { return stop->Kind() == ControlKind::TextBox && CanAct(*stop); };
    const auto firstBox = std::find_if(stops.begin(), stops.end(), isBox);
    Control& stop = firstBox != stops.end() ? **firstBox : *form.Focus.Current();
    MoveFocus(stop);
    QWidget* const widget = ViewOf(stop).KeyTarget();
    for (const int code : KeyCodes()) {
        for (const Qt::KeyboardModifier held :
             {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
            const bool types = code < 0x100 && (held == Qt::NoModifier || held == Qt::ShiftModifier);
            const QKeyEvent key(QEvent::KeyPress, code, held, types ? QString(QChar(code)) : QString());
            if (IsUsed(form, NameOfKey(key)) || (stop.KeyPress && (types || code == Qt::Key_Down))) continue;
            if (!isBox(&stop) && (code == Qt::Key_Space || (code >= Qt::Key_Left && code <= Qt::Key_Down)))
                continue;
            const std::string before = stop.Text();
            QTest::keyClick(QApplication::focusWidget(), static_cast<Qt::Key>(code), held);
            if (held == Qt::AltModifier && code >= Qt::Key_Space && code <= Qt::Key_Z) {
                EXPECT_EQ(stop.Text(), before);
            }
            Settle();
            while (QWidget* menu = QApplication::activePopupWidget()) QTest::keyClick(menu, Qt::Key_Escape);
            Settle();
            ASSERT_EQ(QApplication::focusWidget(), widget) << NameOfKey(key);
        }
    }
    if (!isBox(&stop)) return;
    TypeText(stop, "");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_7);
    EXPECT_EQ(stop.Text(), "7");
}

INSTANTIATE_TEST_SUITE_P(Keyboard, EveryForm, testing::ValuesIn(FormNames()),
                         [](const auto& each) { return std::string(each.param); });

TEST_F(Keyboard, ReachesTheBaseConditions) {
    Form& form = Show("frmGasLineLoss");
    ClickControl(*form.Find("mnuSTP"));
    Play({"@txtSTPBaro", "13.5", "@cmdOKSTP", "{Space}"});
    EXPECT_EQ(Calc.BaroPressure, 13.5);
}

TEST_F(Keyboard, FromTheBrowserToAReport) {
    Suite.HideFlowStatus = Suite.HideFluidReminder = words::Yes;
    for (const ByKeys& way : Ways) {
        SCOPED_TRACE(way.Name);
        Show("frmTRProg");
        std::istringstream keys(std::string("{Alt+G} #frmObxProg ") + way.Keys);
        Play({std::istream_iterator<std::string>(keys), {}});
        Form* const form = LoadedForm(way.Form);
        ASSERT_TRUE(form != nullptr && form->Visible());
        EXPECT_NEAR(Val(form->Find(way.Result, way.Index)->Text()), way.Value, 0.001 * way.Value)
            << form->Find(way.Result, way.Index)->Text();
        const std::string pdf = (Folder / (std::string(way.Name) + ".pdf")).string();
        Play({"{Ctrl+P}", "#frmObxPrintCalc", "{Alt+F}", "P", pdf, "{Return}", "#frmObxPrintCalc",
              "{Escape}"});
        EXPECT_TRUE(std::filesystem::exists(pdf));
        Calc.ChangedFlag.clear();
        Play({"{Alt+F}", "g", "#frmTRProg"});
    }
}

}  // namespace

}  // namespace quillmetra
