// Lists, combo boxes and grids at the real widgets.
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTableView>

#include "forms/frmTables.h"
#include "forms/frmTRProg.h"
#include "tests/desktop/WindowFixture.h"

namespace quillmetra {

namespace {

class ListTest : public WindowTest {};

TEST_F(ListTest, AListOfAHundredThousandRowsShowsAtOnce) {
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

TEST_F(ListTest, RowsArePickedByMouseAndKeys) {
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

// What is typed finds the row in hand first, and the same letter goes round.
TEST_F(ListTest, LettersKeepTheRowThatBeginsWithThem) {
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

// A list that gets the keyboard by Tab must not choose a row that nobody chose.
TEST_F(ListTest, ReachingAListPicksNothing) {
    Sample->lstRows.SetRows({"a", "b"});
    MoveFocus(Sample->lstRows);
    Settle();
    EXPECT_EQ(Sample->lstRows.Selected(), -1);
}

TEST_F(ListTest, CombosAndGrids) {
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
TEST_F(ListTest, ACellIsEditedInItsPlace) {
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
TEST_F(ListTest, AGridThatIsAListSelectsRows) {
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

// The view outlives its list by the events that it has in hand, as one that would lay out its heads.
TEST_F(ListTest, AListThatHasGoneIsAskedForNothing) {
    Sample->lstRows.Columns = {{"Name"}};
    Sample->lstRows.SetRows({"a"});
    const QAbstractItemModel& rows = *Rows(Sample->lstRows).model();
    UnloadForm("frmSample");
    EXPECT_EQ(rows.columnCount(), 0);
    EXPECT_FALSE(rows.headerData(0, Qt::Horizontal).isValid());
}

}  // namespace

}  // namespace quillmetra
