// Rules over all controls of all forms. They run once for each scale of the screen, in a process of its own.
#include <map>
#include <set>

#include <QAbstractButton>
#include <QAccessible>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QStyle>

#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {

namespace {

class Rules : public DesktopTest, public testing::WithParamInterface<std::string_view> {
protected:
    Rules() : Shown(Show(GetParam())) {
        // The screen of the tests is small; the rules are about a window in its own size.
        QWidget* const pane = PaneOf(WindowOf(Shown));
        WindowOf(Shown).setMaximumSize(4000, 4000);
        WindowOf(Shown).resize(pane->sizeHint() + QSize(0, 60));
        Settle();
    }

    static QWidget* PaneOf(FormWindow& window) { return window.centralWidget()->findChild<QWidget*>("pane"); }

    bool IsInput(const Control& control) const {
        switch (control.Kind()) {
            case ControlKind::Label:
            case ControlKind::Frame:
            case ControlKind::MenuItem: return false;
            default: return true;
        }
    }

    // Opens all that the form shows at times, so that it is seen by the rules too.
    void OpenAll() {
        for (Control* control : Shown.Controls()) control->SetVisible(true);
        Settle();
    }

    QRect PlaceOf(const Control& control) {
        QWidget& widget = WidgetOf(control);
        return {widget.mapTo(&WindowOf(Shown), QPoint()), widget.size()};
    }

    Form& Shown;
};

TEST_P(Rules, EveryControlHasItsWidget) {
    OpenAll();
    FormWindow& window = WindowOf(Shown);
    for (const Control* control : Shown.Controls()) {
        SCOPED_TRACE(control->FullName());
        const QString name = ToQt(control->FullName());
        ASSERT_NE(window.ViewOf(*control), nullptr);
        if (control->Kind() == ControlKind::MenuItem) {
            const auto* action = window.findChild<QAction*>(name);
            ASSERT_NE(action, nullptr);
            EXPECT_EQ(action->text(), ToQt(control->Caption()));
        } else {
            ASSERT_EQ(window.findChild<QWidget*>(name), &WidgetOf(*control));
            EXPECT_TRUE(WidgetOf(*control).isVisible());
        }
    }
}

TEST_P(Rules, WhatIsTypedReachesTheModelAndBack) {
    for (Control* control : Shown.Controls()) {
        if (control->Kind() != ControlKind::TextBox || static_cast<TextBox*>(control)->Locked) continue;
        if (!CanAct(*control)) continue;
        SCOPED_TRACE(control->FullName());
        auto& box = *static_cast<TextBox*>(control);
        auto& edit = static_cast<QLineEdit&>(WidgetOf(box));
        MoveFocus(box);
        edit.selectAll();
        const std::string typed = box.KeyPress ? "75" : "7.5";  // a box that looks at keys may drop the point
        QTest::keyClicks(&edit, ToQt(typed));
        EXPECT_EQ(box.Text(), typed);
        box.SetText("");
        EXPECT_EQ(edit.text(), "");
    }
}

// A screen reader says what a control is, what it holds and in which unit.
TEST_P(Rules, EveryInputSpeaks) {
    OpenAll();
    std::set<QString> names;
    for (Control* control : Shown.Controls()) {
        if (!IsInput(*control)) continue;
        SCOPED_TRACE(control->FullName());
        QWidget* const widget = ViewOf(*control).KeyTarget();
        QAccessibleInterface* const spoken = QAccessible::queryAccessibleInterface(widget);
        ASSERT_NE(spoken, nullptr);
        const QString name = spoken->text(QAccessible::Name);
        EXPECT_FALSE(name.trimmed().isEmpty());
        EXPECT_FALSE(name.contains('&')) << name.toStdString();
        if (control->Kind() == ControlKind::TextBox) {
            // A component has its name when there is one.
            const bool isNamed =
                control->LabelControl() == nullptr || !control->LabelControl()->Caption().empty();
            EXPECT_TRUE(!isNamed || names.insert(name).second)
                << "two boxes are named " << name.toStdString();
            static_cast<QLineEdit*>(widget)->setText("75");
            EXPECT_EQ(spoken->text(QAccessible::Value), "75");
            if (const Control* unit = control->UnitControl()) {
                EXPECT_EQ(spoken->text(QAccessible::Description), ToQt(unit->Caption()));
            }
        }
        if (control->Kind() == ControlKind::CheckBox) {
            static_cast<Tickable*>(control)->SetChecked(true);
            EXPECT_TRUE(spoken->state().checked);
        }
    }
}

// Alt and a letter means one thing on a form, whatever is open or switched off, and every button of the
// suite's own words has such a letter. Enter and Escape press OK and Cancel.
TEST_P(Rules, NoAccessKeyStandsTwice) {
    const std::set<std::string> withoutKey = {"OK", "Cancel", "Maximum", "Normal", "Minimum"};
    std::map<std::pair<const Control*, QChar>, const Control*> owners;
    for (const Control* control : Shown.Controls()) {
        const bool isEntry = control->Kind() == ControlKind::MenuItem;
        const QString caption = ToQt(control->Caption());
        const QKeySequence keys = QKeySequence::mnemonic(caption);
        const bool showsValue = control->LabelControl() != nullptr || control->Name() == "cmdUnits" ||
                                control->Name() == "cmdBaroPress" || control->Name() == "cmdUnit";
        const bool isButton = control->Kind() == ControlKind::CommandButton && !showsValue &&
                              !withoutKey.contains(control->Caption());
        EXPECT_FALSE((isEntry || isButton) && keys.isEmpty()) << control->FullName();
        if (keys.isEmpty() || control->Kind() == ControlKind::Frame) continue;
        const Control* const menu = isEntry ? control->Container() : nullptr;
        const QChar letter = caption.at(caption.indexOf('&') + 1).toUpper();
        const Control* const former = owners.emplace(std::pair(menu, letter), control).first->second;
        const bool bothQuantities = former->Name() == "cmdUnit" && control->Name() == "cmdUnit";
        EXPECT_TRUE(former == control || bothQuantities)
            << former->FullName() << " and " << control->FullName();
    }
}

TEST_P(Rules, F1OpensTheHelp) {
    QWidget* const focus = WindowOf(Shown).focusWidget();
    QTest::keyClick(focus == nullptr ? &WindowOf(Shown) : focus, Qt::Key_F1);
    Settle();
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto isHelp = [](const QWidget* each) { return each->objectName() == "help" && each->isVisible(); };
    const auto help = std::find_if(windows.begin(), windows.end(), isHelp);
    ASSERT_NE(help, windows.end());
    // An unknown topic would show the first, that of the browser.
    const bool isBrowser = Shown.Name() == "frmTRProg" || Shown.Name() == "FindDialog";
    EXPECT_EQ((*help)->findChild<QListWidget*>("topics")->currentRow() == 0, isBrowser);
}

// Every control that takes input can be reached without a mouse, and none keeps the keyboard; a box that has
// it is seen whole, in a small window too.
TEST_P(Rules, TabReachesEveryInput) {
    std::set<std::string> reached;
    FormWindow& window = WindowOf(Shown);
    window.resize(800, 250);
    Settle();
    for (std::size_t i = 0; i <= Shown.Controls().size(); ++i) {
        QWidget* const focus = window.focusWidget();
        if (focus != nullptr && Shown.Focus.Current() != nullptr) {
            reached.insert(Shown.Focus.Current()->FullName());
            EXPECT_EQ(focus, ViewOf(*Shown.Focus.Current()).KeyTarget());
            const bool isBox = i > 0 && qobject_cast<QLineEdit*>(focus) != nullptr;
            if (isBox) {
                EXPECT_EQ(focus->visibleRegion().boundingRect(), focus->rect())
                    << Shown.Focus.Current()->FullName();
            }
        }
        QTest::keyClick(focus == nullptr ? &window : focus, Qt::Key_Tab);
        Settle();
    }
    for (const Control* control : Shown.Controls()) {
        const bool takesInput =
            IsInput(*control) && control->Kind() != ControlKind::Plot &&
            control->Kind() != ControlKind::ProgressBar && CanAct(*control) &&
            (control != Shown.CancelButton || control->TabStop) &&
            !(control->Kind() == ControlKind::TextBox && static_cast<const TextBox*>(control)->Locked);
        if (takesInput) {
            EXPECT_TRUE(reached.contains(control->FullName())) << control->FullName();
        }
    }
}

TEST_P(Rules, NoTextIsCutOff) {
    OpenAll();
    for (const Control* control : Shown.Controls()) {
        if (control->Kind() == ControlKind::MenuItem || control->Caption().empty()) continue;
        SCOPED_TRACE(control->FullName());
        const QWidget& widget = WidgetOf(*control);
        const auto* label = qobject_cast<const QLabel*>(&widget);
        const bool button = qobject_cast<const QAbstractButton*>(&widget) != nullptr;
        if (label == nullptr && !button) continue;
        if (label != nullptr && label->wordWrap()) {
            EXPECT_GE(widget.height(), label->heightForWidth(widget.width()));
        } else {
            EXPECT_GE(widget.width(), widget.minimumSizeHint().width());
            EXPECT_GE(widget.height(), widget.minimumSizeHint().height());
        }
    }
}

TEST_P(Rules, NothingStandsOutsideOfItsAreaOrOverAnother) {
    std::vector<const Control*> seen;
    for (const Control* control : Shown.Controls()) {
        const bool stands = control->Kind() != ControlKind::MenuItem && control->Kind() != ControlKind::Frame;
        if (stands && control->Seen()) seen.push_back(control);
    }
    for (std::size_t i = 0; i < seen.size(); ++i) {
        const QWidget& widget = WidgetOf(*seen[i]);
        EXPECT_TRUE(widget.parentWidget()->rect().contains(widget.geometry())) << seen[i]->FullName();
        for (std::size_t j = i + 1; j < seen.size(); ++j) {
            EXPECT_FALSE(PlaceOf(*seen[i]).intersects(PlaceOf(*seen[j])))
                << seen[i]->FullName() << " and " << seen[j]->FullName();
        }
    }
}

// Within an area, going on never leads back up but to the top of a column further right. Unit buttons come
// after all else, and so begin again.
TEST_P(Rules, TabFollowsTheReadingOrder) {
    const Control* former = nullptr;
    for (const Control* stop : Shown.TabStops()) {
        if (!stop->Seen() || SameName(stop->Name(), "cmdUnits") || stop->Kind() == ControlKind::MenuItem)
            continue;
        const Control* const before = std::exchange(former, stop);
        if (before == nullptr || WidgetOf(*before).parentWidget() != WidgetOf(*stop).parentWidget()) continue;
        const QRect last = PlaceOf(*before);
        const QRect next = PlaceOf(*stop);
        const bool down = next.top() >= last.bottom();
        const bool right = next.left() >= last.right();
        EXPECT_TRUE(down || right) << before->FullName() << " then " << stop->FullName();
    }
}

TEST_P(Rules, EveryNumberHasItsUnitBesideIt) {
    const std::set<std::string> withoutUnit = {
        "txtInletGate",   "txtInletGlobe",  "txtInletCheck", "txtInlet90Deg", "txtInlet45Deg", "txtInletThru",
        "txtInletBranch", "txtReynoldsNum", "txtPipeCond",   "txtPercent",    "txtMW",         "txtRatioSH",
        "txtSGFTP",       "txtSGBase",      "txtCompFactor", "txtRegime",     "txtOutletMach"};
    for (const Control* control : Shown.Controls()) {
        if (control->Kind() != ControlKind::TextBox || !control->Seen()) continue;
        if (!static_cast<const TextBox*>(control)->IsNumber || withoutUnit.contains(control->Name()))
            continue;
        SCOPED_TRACE(control->FullName());
        ASSERT_NE(control->UnitControl(), nullptr);
        if (!control->UnitControl()->Seen()) continue;  // a ratio for now
        const QRect box = PlaceOf(*control);
        const QRect unit = PlaceOf(*control->UnitControl());
        EXPECT_GE(unit.left(), box.right());
        EXPECT_LT(std::abs(unit.center().y() - box.center().y()), box.height() / 2);
    }
}

std::string NameOf(const testing::TestParamInfo<std::string_view>& info) { return std::string(info.param); }

INSTANTIATE_TEST_SUITE_P(AllForms, Rules, testing::ValuesIn(FormNames()), NameOf);

}  // namespace

}  // namespace quillmetra
