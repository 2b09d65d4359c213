// A window and its form say the same, whoever changes it, and the focus goes the model's way.
#include <QAbstractEventDispatcher>
#include <QAction>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>

#include "desktop/SchemePalette.h"
#include "forms/ColourSchemes.h"
#include "forms/ColourShades.h"
#include "forms/frmTRProg.h"
#include "forms/WinSeek.h"
#include "tests/desktop/WindowFixture.h"

namespace quillmetra {

namespace {

TEST_F(WindowTest, TypedTextReachesTheModelAndBack) {
    QTest::keyClicks(&Edit(Sample->txtOne), "12,5");
    EXPECT_EQ(Sample->txtOne.Text(), "12,5");
    Sample->txtOne.SetText("other");
    EXPECT_EQ(Edit(Sample->txtOne).text(), "other");
    QTest::keyClicks(&Edit(Sample->txtShort), "\u00b5bcd");
    EXPECT_EQ(Sample->txtShort.Text(), "\u00b5bc");
    EXPECT_EQ(Edit(Sample->txtShort).text(), QString::fromUtf8("\u00b5bc"));
    QTest::keyClicks(&Edit(Sample->txtResult), "x");
    EXPECT_EQ(Sample->txtResult.Text(), "");
    QTest::keyClicks(&Edit(Sample->txtTwo), "5r");
    EXPECT_EQ(Edit(Sample->txtTwo).text(), "remainder") << "a key that the control uses is not typed";
}

TEST_F(WindowTest, WritingTheSameTextLeavesTheCaret) {
    Sample->txtOne.SetText("1250");
    Edit(Sample->txtOne).setCursorPosition(2);
    Sample->txtOne.SetText("1250");
    QTest::keyClicks(&Edit(Sample->txtOne), "7");
    EXPECT_EQ(Sample->txtOne.Text(), "12750");
}

TEST_F(WindowTest, AButtonTakesTheFocusAtTheReleaseOfTheMouse) {
    QWidget& button = WidgetOf(Sample->cmdGo);
    QTest::mousePress(&button, Qt::LeftButton);
    Settle();
    EXPECT_EQ(Sample->TakeEvents(), Events());
    QTest::mouseRelease(&button, Qt::LeftButton);
    Settle();
    EXPECT_EQ(Sample->TakeEvents(), (Events{"one lost", "go got", "go click"}));
    EXPECT_TRUE(HasKeyboard(Sample->cmdGo));
}

TEST_F(WindowTest, AButtonDropsItsListByArrowAndRightButton) {
    Suite.ConvertedFigures = Figures::Round;
    Control& pressure = *Show("frmLiqLineLoss").Find("cmdUnits", unit::Pressure);
    QWidget& button = WidgetOf(pressure);
    const QPoint arrow(button.width() - 8, button.height() / 2);
    const auto menu = [] { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); };
    QTest::mouseClick(&button, Qt::LeftButton, {}, arrow);
    Settle();
    ASSERT_NE(menu(), nullptr);
    EXPECT_EQ(menu()->activeAction()->text(), "&psig");
    QTest::keyClick(menu(), Qt::Key_Escape);
    Settle();
    QContextMenuEvent right(QContextMenuEvent::Mouse, arrow, button.mapToGlobal(arrow));
    QCoreApplication::sendEvent(&button, &right);
    Settle();
    ASSERT_NE(menu(), nullptr);
    QTest::mouseClick(menu(), Qt::LeftButton, {}, menu()->actionGeometry(menu()->actions()[1]).center());
    Settle();
    EXPECT_EQ(pressure.Caption(), "kPag");
    EXPECT_EQ(pressure.Owner().Focus.Current(), &pressure);
}

TEST_F(WindowTest, ABoxTakesTheFocusAtTheReleaseOfTheMouse) {
    QTest::mousePress(&Edit(Sample->txtTwo), Qt::LeftButton);
    Settle();
    EXPECT_EQ(Sample->TakeEvents(), Events());
    QTest::mouseRelease(&Edit(Sample->txtTwo), Qt::LeftButton);
    Settle();
    EXPECT_EQ(Sample->TakeEvents(), (Events{"one lost", "two got"}));
    EXPECT_TRUE(HasKeyboard(Sample->txtTwo));
}

TEST_F(WindowTest, KeysMoveTheFocusByTheRulesOfTheForm) {
    QTest::keyClick(&Edit(Sample->txtOne), Qt::Key_Tab);
    EXPECT_TRUE(HasKeyboard(Sample->txtTwo));
    QTest::keyClick(&Edit(Sample->txtTwo), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(HasKeyboard(Sample->txtOne));
    QTest::keyClick(&Edit(Sample->txtOne), Qt::Key_Return);
    EXPECT_TRUE(HasKeyboard(Sample->txtTwo));
    EXPECT_EQ(Sample->TakeEvents(),
              (Events{"one lost", "two got", "two lost", "one got", "one lost", "two got"}));
    QTest::keyClick(&WidgetOf(Sample->cmdGo), Qt::Key_Return);
    EXPECT_EQ(Sample->TakeEvents(), (Events{"two lost", "go got", "go click"}));
}

TEST_F(WindowTest, AHandlerMovesTheFocusBack) {
    Sample->txtOne.LostFocus = [this] { Sample->txtOne.SetFocus(); };
    Click(Sample->cmdGo);
    EXPECT_TRUE(HasKeyboard(Sample->txtOne));
    EXPECT_EQ(Sample->Focus.Current(), &Sample->txtOne);
}

TEST_F(WindowTest, MenusBoxesAndOtherWindowsAreNoLossOfFocus) {
    QMenu* const menu = WindowOf(*Sample).menuBar()->actions().front()->menu();
    menu->popup(QPoint(10, 10));
    Settle();
    menu->actions().front()->trigger();
    menu->close();
    WhenDialogOpens([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    Tell("Text", "Title");
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    other.hide();
    Settle();
    EXPECT_EQ(Sample->TakeEvents(), Events{"entry"});
    EXPECT_EQ(Sample->Focus.Current(), &Sample->txtOne);
}

TEST_F(WindowTest, AHeadThatPutsUpABoxKeepsItsEntriesShut) {
    QMenuBar& bar = *WindowOf(*Sample).menuBar();
    const auto click = [&bar](int head) {
        QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.actionGeometry(bar.actions().at(head)).center());
        Settle();
    };
    QMenu& opened = *bar.actions().at(0)->menu();
    QMenu& refused = *bar.actions().at(1)->menu();
    bool boxShown = false;
    WhenDialogOpens([&](QWidget& box) {
        boxShown = true;
        EXPECT_FALSE(refused.isVisible());
        QTest::keyClick(&box, Qt::Key_Return);
    });
    click(1);
    EXPECT_TRUE(boxShown);
    EXPECT_FALSE(refused.isVisible());
    EXPECT_EQ(bar.activeAction(), nullptr);
    const QPointF head = bar.actionGeometry(bar.actions().at(0)).center();
    QMouseEvent hover(QEvent::MouseMove, head, bar.mapToGlobal(head), Qt::NoButton, {}, {});
    QCoreApplication::sendEvent(&bar, &hover);
    EXPECT_FALSE(opened.isVisible());
    click(0);
    EXPECT_TRUE(opened.isVisible());
    opened.close();
}

TEST_F(WindowTest, AWidgetSwitchedOffWithTheFocusIsNotLeft) {
    Sample->txtOne.SetEnabled(false);
    Settle();
    EXPECT_EQ(Sample->TakeEvents(), Events());
    EXPECT_FALSE(HasKeyboard(Sample->txtOne) || HasKeyboard(Sample->txtTwo));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(HasKeyboard(Sample->txtTwo));
    Sample->txtOne.SetEnabled(true);
    Settle();
    EXPECT_TRUE(HasKeyboard(Sample->txtTwo));
}

TEST_F(WindowTest, OptionsExcludeOneAnotherAndAFrameSwitchesItsContentsOff) {
    const auto ticked = [this](const Control& control) {
        return static_cast<QAbstractButton&>(WidgetOf(control)).isChecked();
    };
    Click(Sample->optA);
    Click(Sample->optA);
    EXPECT_TRUE(ticked(Sample->optA) && Sample->optA.Checked());
    Click(Sample->optB);
    EXPECT_TRUE(!ticked(Sample->optA) && ticked(Sample->optB) && Sample->optB.Checked());
    Click(Sample->chkOn);
    EXPECT_TRUE(ticked(Sample->chkOn) && Sample->chkOn.Checked());
    Sample->fraOptions.SetEnabled(false);
    EXPECT_FALSE(WidgetOf(Sample->chkOn).isEnabled());
    Sample->fraOptions.SetEnabled(true);
    EXPECT_TRUE(WidgetOf(Sample->chkOn).isEnabled());
}

// What the model does not paint goes with what it does; nothing stands unread on its ground.
TEST_F(WindowTest, ASchemePaintsTheWholeProgram) {
    Show("frmTRProg");
    for (const char* scheme : SchemeNames) {
        SCOPED_TRACE(scheme);
        TakeScheme(scheme);
        QMessageBox box;
        const QPalette palette = box.palette();
        EXPECT_EQ(palette.color(QPalette::Window), ToQt(SlotColour(slot::Area)));
        using Role = QPalette::ColorRole;
        for (const auto& [ground, text] :
             std::initializer_list<std::pair<Role, Role>>{{QPalette::Window, QPalette::WindowText},
                                                          {QPalette::Base, QPalette::Text},
                                                          {QPalette::Button, QPalette::ButtonText},
                                                          {QPalette::Highlight, QPalette::HighlightedText},
                                                          {QPalette::ToolTipBase, QPalette::ToolTipText}}) {
            for (const auto group : {QPalette::Active, QPalette::Disabled}) {
                const auto colour = [&](Role role) { return FromQt(palette.color(group, role)); };
                EXPECT_GE(Contrast(colour(ground), colour(text)), 4.5) << group << " " << ground;
            }
        }
        EXPECT_GE(Contrast(FromQt(palette.color(role::Border)), SlotColour(slot::Area)), 3);
    }
}

TEST_F(WindowTest, ChangedDataIsBold) {
    Sample->txtOne.ColourGroup = 2;
    for (const int text : {slot::Changed, slot::InputText}) {
        Sample->txtOne.SetColours(SlotColour(slot::InputBack), SlotColour(text));
        EXPECT_EQ(Edit(Sample->txtOne).font().bold(), text == slot::Changed);
    }
}

TEST_F(WindowTest, TheCloseBoxAsksTheForm) {
    WindowOf(*Sample).close();
    Settle();
    EXPECT_EQ(Sample->TakeEvents(), Events{"close"});
    EXPECT_TRUE(WindowOf(*Sample).isVisible());
}

TEST_F(WindowTest, AFormMayUnloadItselfInItsOwnClick) {
    Sample->cmdGo.Click = [] { UnloadForm("frmSample"); };
    FormWindow* const window = &WindowOf(*Sample);
    QPointer<FormWindow> alive(window);
    Click(Sample->cmdGo);
    EXPECT_TRUE(alive.isNull());
    EXPECT_FALSE(IsFormLoaded("frmSample"));
}

TEST_F(WindowTest, AFormThatWaitsLeavesTheFrontToItsPanel) {
    const Form& panel = Show("frmTRProg");
    Sample->SetEnabled(false);
    WindowOf(*Sample).activateWindow();
    Settle();
    EXPECT_EQ(QApplication::activeWindow(), &WindowOf(panel));
}

TEST_F(WindowTest, AModalFormHoldsTheOthersUntilItGoes) {
    bool held = false;
    WhenDialogOpens([&](QWidget& dialog) {
        held = !TakesInput(*Sample) && dialog.objectName() == "frmPipeSize";
        HideForm("frmPipeSize");
    });
    ShowForm("frmPipeSize", Modal::Yes);
    EXPECT_TRUE(held);
    EXPECT_TRUE(TakesInput(*Sample));
}

TEST_F(WindowTest, AModalFormComesBackWhereItWas) {
    Screen.RememberPlaces(SuitePath(Folder / "places.ini"));
    std::vector<QRect> places;
    for (int i = 0; i < 3; ++i) {
        WhenDialogOpens([&](QWidget& window) {
            Settle();
            places.push_back(window.geometry());
            CloseWindow(LoadForm("frmPipeSize"));
        });
        ShowForm("frmPipeSize", Modal::Yes);
        UnloadForm("frmPipeSize");
    }
    EXPECT_EQ(places, std::vector<QRect>(3, places.at(0)));
}

TEST_F(WindowTest, ABoxOutlivesTheWindowThatHasJustClosed) {
    FormWindow& window = WindowOf(Show("frmPipeSize"));
    UnloadForm("frmPipeSize");
    QApplication::setActiveWindow(&window);  // as long as the system has not told otherwise
    WhenDialogOpens([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
    Tell("Text", "Title");
}

TEST_F(WindowTest, TheEndOfTheProcessEndsAModalForm) {
    WhenDialogOpens([](QWidget&) { EndProcess(); });
    ShowForm("frmPipeSize", Modal::Yes);
    EXPECT_FALSE(WindowOf(*Sample).isVisible());
}

TEST_F(WindowTest, EscapeIsHeardWithinALongCalculationAndNothingElse) {
    EXPECT_FALSE(Screen.Yield());
    QCoreApplication::postEvent(&Edit(Sample->txtOne), new QKeyEvent(QEvent::KeyPress, Qt::Key_X, {}, "x"));
    QCoreApplication::postEvent(&Edit(Sample->txtOne), new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, {}));
    EXPECT_TRUE(Screen.Yield());
    EXPECT_EQ(Sample->txtOne.Text(), "");
}

TEST_F(WindowTest, ASearchForFilesIsStoppedByMouseAndKey) {
    auto& finder = static_cast<WinSeek&>(Show("WinSeek"));
    const QSize folded = WindowOf(finder).size();
    WindowOf(finder).move(700, 700);
    ClickControl(finder.cmdBrouse);
    EXPECT_GT(WindowOf(finder).height(), folded.height());
    EXPECT_TRUE(WindowOf(finder).screen()->availableGeometry().contains(WindowOf(finder).frameGeometry()));
    for (const bool byKey : {false, true}) {
        finder.txtSearchSpec.SetText("*");
        QTest::qWait(30);  // the user is let in at the first folder
        // He acts as soon as the search lets him in; Windows' loop keeps timers back while messages wait.
        QTimer user;
        const auto acts = [&] {
            if (!user.isActive() || !ViewOf(finder.cmdStop).Widget()->isEnabled()) return;
            user.stop();
            EXPECT_FALSE(ViewOf(finder.cmdOK).Widget()->isEnabled());
            QCoreApplication::sendPostedEvents();  // the focus leaves what the search has switched off
            if (byKey) return QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            QTest::mouseClick(ViewOf(finder.cmdStop).Widget(), Qt::LeftButton);
        };
        QObject::connect(&user, &QTimer::timeout, &user, acts);
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &user, acts);
        user.start(0);
        ClickControl(finder.cmdSearch);
        EXPECT_EQ(finder.lblSearch.Caption(), "Search Complete");
        EXPECT_EQ(finder.lblCount.Caption(), "0") << (byKey ? "by key" : "by mouse");
        ClickControl(finder.cmdSearch);  // Reset
    }

    ClickControl(finder.cmdExit);
    Settle();
    EXPECT_EQ(WindowOf(finder).size(), folded);
    CloseWindow(finder);
    EXPECT_FALSE(IsFormLoaded("WinSeek"));
}

// The mouse comes by the window, as from the screen.
TEST_F(WindowTest, CancelButtonIsHeardWithinALongRunAndNoOther) {
    Sample->CancelButton = &Sample->cmdStop;
    const auto clickWithin = [this](const Control& button) {
        QWidget& widget = WidgetOf(button);
        bool clicked = false, told = false;
        QTimer::singleShot(0, qApp, [&] {
            QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                              widget.mapTo(widget.window(), widget.rect().center()));
            clicked = true;
        });
        // One round of the events may end before the timer's turn.
        while (!clicked) told = Screen.Yield() || told;
        return told;
    };
    EXPECT_FALSE(clickWithin(Sample->cmdGo));
    EXPECT_TRUE(clickWithin(Sample->cmdStop));
    Sample->cmdStop.SetEnabled(false);
    EXPECT_FALSE(clickWithin(Sample->cmdStop));
    EXPECT_TRUE(Sample->Events.empty());
}

TEST_F(WindowTest, ProgressShows) {
    Sample->barRun.SetProgress(12, 40);
    const auto& bar = static_cast<const QProgressBar&>(WidgetOf(Sample->barRun));
    EXPECT_EQ(bar.value(), 12);
    EXPECT_EQ(bar.maximum(), 40);
    EXPECT_EQ(bar.text(), "12 of 40");
}

}  // namespace

}  // namespace quillmetra
