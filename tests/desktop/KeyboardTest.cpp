// Each of the five programs by the keyboard alone, from the record browser to a report on disk; and a walk by
// Tab over every form.
#include <deque>
#include <filesystem>
#include <set>

#include <QElapsedTimer>
#include <QKeySequence>
#include <QMenu>

#include "core/Words.h"
#include "platform/NumberText.h"
#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {

namespace {

class Keyboard : public DesktopTest {
protected:
    // Plays keys one after the other, each when what the one before brought about has come to rest, also
    // while a dialog waits. A text is typed; "{Alt+G}" is a key; "@txtFlow(0)" is Tab until that control has
    // the keyboard, and "#frmObxProg" waits for a window, as a button that is pressed by its letter takes a
    // moment.
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

private:
    void Next() {
        QTimer::singleShot(10, &turns_, [this] {
            if (keys_.empty() || Target() == nullptr) {
                if (!keys_.empty()) Next();
                return;
            }
            const std::string key = keys_.front();
            if (key[0] == '#') {
                if (Target()->window()->objectName() == ToQt(key.substr(1))) keys_.pop_front();
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
    std::deque<std::string> Keys;  // from the selector of programs to results
    const char *Form, *Result;
    int Index;
    double Value;
};

const ByKeys Ways[] = {
    {"liquid line",
     {"{Return}",    "P-1",        "@txtInletPipeLen",
      "1000",        "@cmdPipeID", "{Space}",
      "4",           "{Return}",   "{Return}",
      "@txtFlow(0)", "100000",     "{Return}",
      "68",          "{Return}",   "100",
      "{Alt+U}",     "M",          "P",
      "Tolu",        "{Return}",   "@cmdCalculate(0)",
      "{Space}"},
     "frmLiqLineLoss",
     "txtDestPress",
     0,
     89.39},
    {"gas line",
     {"{Down}",
      "{Return}",
      "P-2",
      "@txtInletPipeLen",
      "1000",
      "{Return}",
      "4.026",
      "@txtFlow(1)",
      "5000",
      "{Return}",
      "60",
      "{Return}",
      "100",
      "{Alt+U}",
      "N",
      "P",
      "Meth",
      "{Return}",
      "@cmdCalculate(1)",
      "{Space}"},
     "frmGasLineLoss",
     "txtDestPress",
     1,
     95.9},
    {"water hammer",
     {"{Down}",
      "{Down}",
      "{Return}",
      "P-3",
      "@txtMaxLiqFlow",
      "400000",
      "{Return}",
      "60",
      "{Return}",
      "100",
      "{Alt+U}",
      "P",
      "Water",
      "{Return}",
      "@txtLineLength",
      "2500",
      "{Return}",
      "6.065",
      "@txtPipeWall",
      "0.28",
      "@cmdPipeMatl",
      "{Space}",
      "{Return}",
      "@txtMaxAllowPressure",
      "300",
      "@cmdCalculateliq",
      "{Space}"},
     "frmWaterHammer",
     "txtPressureWave",
     Control::NoIndex,
     623},
    {"liquid data",
     {"{Down}", "{Down}", "{Down}", "{Return}", "P-4", "@txtTemp(0)", "80", "{Return}", "100", "{Alt+U}", "C",
      "P", "Tolu", "{Return}"},
     "frmLiqData",
     "txtSGFTP",
     0,
     0.8615},
    {"gas data",
     {"{Down}", "{Down}", "{Down}", "{Down}", "{Return}", "P-5", "@txtTemp(0)", "80", "{Return}", "250",
      "{Alt+U}", "C", "P", "Meth", "{Return}"},
     "frmGasData",
     "txtCompFactor",
     0,
     0.9678},
};

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
        std::deque<std::string> keys = {"{Alt+G}", "#frmObxProg"};
        keys.insert(keys.end(), way.Keys.begin(), way.Keys.end());
        Play(keys);
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
