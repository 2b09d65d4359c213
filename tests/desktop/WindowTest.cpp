// A window and its form say the same, whoever changes it, and the focus goes the model's way.
#include <QAction>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QProgressBar>
#include <QTableView>

#include "desktop/SchemePalette.h"
#include "forms/ColourSchemes.h"
#include "forms/ColourShades.h"
#include "forms/frmTables.h"
#include "forms/frmTRProg.h"
#include "forms/WinSeek.h"
#include "tests/desktop/DesktopFixture.h"
#include "tests/desktop/SampleForm.h"

namespace quillmetra {

namespace {

using Events = std::vector<std::string>;

class WindowTest : public DesktopTest {
protected:
    WindowTest() {
        RegisterForm("frmSample", [] { return std::unique_ptr<Form>(new SampleForm); });
        Sample = static_cast<SampleForm*>(&Show("frmSample"));
        Sample->TakeEvents();
    }

    QLineEdit& Edit(const TextBox& box) { return static_cast<QLineEdit&>(WidgetOf(box)); }
    QListView& Rows(const ListBox& list) { return static_cast<QListView&>(WidgetOf(list)); }

    void ClickRow(const ListBox& list, int row) {
        QListView& view = Rows(list);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, PlaceOf(list, row));
        Settle();
    }

    QPoint PlaceOf(const ListBox& list, int row) {
        QListView& view = Rows(list);
        return view.visualRect(view.model()->index(row, 0)).center();
    }

    static Colour FromQt(const QColor& colour) {
        return static_cast<Colour>(colour.red() | colour.green() << 8 | colour.blue() << 16);
    }

    bool HasKeyboard(const Control& control) {
        return QApplication::focusWidget() == ViewOf(control).KeyTarget();
    }

    SampleForm* Sample;
};

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

TEST_F(WindowTest, AListOfAHundredThousandRowsShowsAtOnce) {
    std::vector<std::string> rows(100000);
    for (std::size_t i = 0; i < rows.size(); ++i) rows[i] = "row " + std::to_string(i);
    QElapsedTimer clock;
    clock.start();
    Sample->lstRows.SetRows(std::move(rows));
    Sample->lstRows.Preselect(99999);
    Rows(Sample->lstRows).grab();
    EXPECT_LT(clock.elapsed(), 500);
    EXPECT_EQ(Rows(Sample->lstRows).currentIndex().row(), 99999);
}

TEST_F(WindowTest, RowsArePickedByMouseAndKeys) {
    ListBox& list = Sample->lstRows;
    list.SetRows({"a", "b", "c"});
    ClickRow(list, 1);
    EXPECT_EQ(list.Selected(), 1);
    EXPECT_EQ(Sample->TakeEvents(), (Events{"one lost", "rows got", "rows click"}));
    QTest::keyClick(&Rows(list), Qt::Key_Down);
    EXPECT_EQ(list.Selected(), 2);
    list.Select(0);
    EXPECT_EQ(Rows(list).currentIndex().row(), 0);
    Sample->TakeEvents();
    QTest::mouseDClick(Rows(list).viewport(), Qt::LeftButton, {}, PlaceOf(list, 0));
    Settle();
    EXPECT_EQ(Sample->TakeEvents().back(), "rows double");

    Sample->lstMany.SetRows({"a", "b", "c"});
    ClickRow(Sample->lstMany, 0);
    ClickRow(Sample->lstMany, 2);
    EXPECT_TRUE(Sample->lstMany.IsPicked(0) && !Sample->lstMany.IsPicked(1) && Sample->lstMany.IsPicked(2));
    ClickRow(Sample->lstMany, 0);
    EXPECT_FALSE(Sample->lstMany.IsPicked(0));
    // Among picked rows the one that the keys act on is seen: its upper edge is of the letters' colour.
    ClickRow(Sample->lstMany, 0);
    QListView& many = Rows(Sample->lstMany);
    const QRect row = many.visualRect(many.currentIndex());
    const QImage picture = many.viewport()->grab().toImage();
    EXPECT_NE(picture.pixelColor(row.center().x(), row.top()), picture.pixelColor(row.center()));
}

// A list that gets the keyboard by Tab must not choose a row that nobody chose.
// What is typed finds the row in hand first, and the same letter goes round.
TEST_F(WindowTest, LettersKeepTheRowThatBeginsWithThem) {
    ListBox& list = Sample->lstRows;
    list.SetRows({"Acetaldehyde", "Acetic Acid", "Acetone", "Air"});
    list.Preselect(1);
    MoveFocus(list);
    for (const auto& [letters, row] : {std::pair{"acet", 1}, {"o", 2}}) {
        QTest::keyClicks(&Rows(list), letters);
        EXPECT_EQ(list.Selected(), row) << letters;
    }
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    for (const int row : {2, 3, 0}) {
        QTest::keyClicks(&Rows(list), "a");
        EXPECT_EQ(list.Selected(), row);
    }
}

TEST_F(WindowTest, ReachingAListPicksNothing) {
    Sample->lstRows.SetRows({"a", "b"});
    MoveFocus(Sample->lstRows);
    Settle();
    EXPECT_EQ(Sample->lstRows.Selected(), -1);
}

TEST_F(WindowTest, CombosAndGrids) {
    Sample->cboChoice.SetRows({"alpha", "beta"});
    auto* const edit = WidgetOf(Sample->cboChoice).findChild<QLineEdit*>();
    QTest::keyClicks(edit, "be");
    EXPECT_EQ(Sample->cboChoice.Text(), "be");
    Sample->cboChoice.Select(1);
    EXPECT_EQ(edit->text(), "beta");
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(Sample->cboChoice.Selected(), 0);
    EXPECT_EQ(edit->text(), "alpha");
    auto* const rows = WidgetOf(Sample->cboChoice).findChild<QListView*>();
    QTest::mouseClick(rows->viewport(), Qt::LeftButton, {},
                      rows->visualRect(rows->model()->index(1, 0)).center());
    Settle();
    EXPECT_EQ(Sample->cboChoice.Selected(), 1);
    EXPECT_EQ(QApplication::focusWidget(), edit);

    auto& table = static_cast<QTableView&>(WidgetOf(Sample->grdCells));
    EXPECT_EQ(table.model()->index(1, 1).data().toString(), "b");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualRect(table.model()->index(0, 0)).center());
    Settle();
    EXPECT_EQ(Sample->grdCells.Selected(), 1);
    EXPECT_EQ(Sample->grdCells.Text(), "a");
    // The arrow keys go from cell to cell, Enter picks.
    int picked = 0;
    Sample->grdCells.Click = [&] { picked = Sample->grdCells.Selected(); };
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(Sample->grdCells.Selected(), 2);
    EXPECT_EQ(picked, 0);
    QTest::keyClick(&table, Qt::Key_Return);
    EXPECT_EQ(picked, 2);
    Sample->grdCells.InsertRow(1, {"", "new", ""});
    EXPECT_EQ(table.model()->index(0, 0).data().toString(), "new");
    EXPECT_EQ(table.currentIndex().row(), 2) << "the selected row moves along";
    Sample->grdCells.RemoveRow(1);
    EXPECT_EQ(table.model()->rowCount(), 2);
    EXPECT_EQ(table.currentIndex().row(), 1);
    Sample->grdCells.SetSize(1, 1);
    EXPECT_EQ(table.model()->rowCount(), 0);
}

// By a double click, by Tab from the one before and by typing; Shift and the arrows select a range.
TEST_F(WindowTest, ACellIsEditedInItsPlace) {
    auto& form = static_cast<frmTables&>(Show("frmTables"));
    const Grid& grid = form.grdTable;
    auto& table = static_cast<QTableView&>(WidgetOf(grid));
    const QPoint place = table.visualRect(table.model()->index(1, 2)).center();
    const std::string former = grid.Cell(3, 4);
    const auto type = [&](const char* text, Qt::Key key) {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), key);
        Settle();
    };
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place);
    Settle();
    EXPECT_EQ(form.Focus.Current(), &form.txtHole(3)) << "a click goes on to the box";
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, {}, place);
    Settle();
    type("18.5", Qt::Key_Tab);
    type("0.9", Qt::Key_Return);
    EXPECT_EQ(grid.Cell(2, 3) + " " + grid.Cell(2, 4), "18.5 0.9");
    type("7", Qt::Key_Escape);
    EXPECT_EQ(grid.Cell(3, 4), former);
    QTest::keyClick(&table, Qt::Key_Down, Qt::ShiftModifier);
    Settle();
    EXPECT_EQ(grid.Range().Top * 10 + grid.Range().Bottom, 34);
    for (const char* expected : {"18.5 0.9", "18.5 0.6281", "54.09 0.6281"}) {
        EXPECT_EQ(grid.Cell(2, 3) + " " + grid.Cell(2, 4), expected);
        ClickControl(form.mnuUndo);
    }
}

// A list with columns: rows whole and several, a head told as row 0, the arrows choose, a menu at the right
// button.
TEST_F(WindowTest, AGridThatIsAListSelectsRows) {
    Show("frmTRProg");
    auto& browser = static_cast<frmTRProg&>(*LoadedForm("frmTRProg"));
    auto& grid = browser.grdRecords;
    const std::string cell = "cell";
    std::string clicked;
    grid.SetEnabled(true);
    grid.SetSource(100001, 3, [&](int, int) -> const std::string& { return cell; });
    grid.Click = [&] {
        clicked += std::to_string(grid.Selected()) + ":" + std::to_string(grid.Picked().size()) + " ";
    };
    auto& table = static_cast<QTableView&>(WidgetOf(grid));
    const auto click = [&](int row, Qt::KeyboardModifiers keys) {
        QTest::mouseClick(table.viewport(), Qt::LeftButton, keys,
                          table.visualRect(table.model()->index(row, 1)).center());
        Settle();
    };
    click(1, {});
    click(3, Qt::ControlModifier);
    EXPECT_EQ(grid.Picked(), (std::vector<int>{2, 4}));
    click(5, Qt::ShiftModifier);
    QTest::keyClick(&table, Qt::Key_Down);
    Settle();
    EXPECT_EQ(table.selectionModel()->selectedRows().size(), 1);
    QTest::mouseClick(table.horizontalHeader()->viewport(), Qt::LeftButton, {}, {5, 5});
    Settle();
    EXPECT_EQ(clicked, "2:1 4:2 6:3 7:1 0:0 ");
    grid.PickRows({1, 2, 9}, 9);
    EXPECT_EQ(table.selectionModel()->selectedRows().size(), 3);
    EXPECT_EQ(table.currentIndex().row(), 8);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {5, 5}, table.viewport()->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(table.viewport(), &menu);
    Settle();
    QWidget* const popup = QApplication::activePopupWidget();
    ASSERT_NE(popup, nullptr);
    popup->close();
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
        QTimer::singleShot(1, qApp, [&] {
            EXPECT_FALSE(ViewOf(finder.cmdOK).Widget()->isEnabled());
            if (byKey) return QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            QTest::mouseClick(ViewOf(finder.cmdStop).Widget(), Qt::LeftButton);
        });
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
