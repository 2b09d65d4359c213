// How long a user waits at a large table.
#include <algorithm>
#include <chrono>

#include <QScrollBar>
#include <QTableView>

#include "benchmarks/TableScene.h"
#include "core/Words.h"
#include "forms/frmFluid.h"
#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {
namespace {

class WindowSpeedTest : public DesktopTest {};

#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
constexpr bool Skipped = true;
#else
constexpr bool Skipped = false;
#endif
constexpr const char* WhySkipped = "a time says something of an optimised build alone";

// A key in the search over 10,000 fluids, to the picture.
TEST_F(WindowSpeedTest, ALongTableOfFluidsIsSearchedAtOnce) {
    if (Skipped) GTEST_SKIP() << WhySkipped;
    SaveTable(table::Liquid, ManyLiquids(10000));
    Calc.FluidType = words::Liquid;
    static_cast<frmFluid&>(LoadForm("frmFluid")).Open(static_cast<FluidForm&>(Show("frmLiqLineLoss")));
    Form& dialog = Show("frmFluid");
    double slowest = 0;
    for (const char key : std::string("liquid 99")) {
        const auto start = std::chrono::steady_clock::now();
        QTest::keyClick(&WidgetOf(*dialog.Find("txtFilter")), key);
        Settle();
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - start;
        slowest = std::max(slowest, took.count());
    }
    EXPECT_LT(slowest, 0.05);
    EXPECT_LT(static_cast<Grid&>(*dialog.Find("grdFluids")).RowCount(), 2000);
}

// With 10,000 rows in the grid: opened and a row inserted without a pause, and the view stays where it was.
TEST_F(WindowSpeedTest, ALargeTableIsEditedAtOnce) {
    if (Skipped) GTEST_SKIP() << WhySkipped;
    using Clock = std::chrono::steady_clock;
    const auto since = [](Clock::time_point start) {
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    SaveTable(table::Liquid, ManyLiquids(10000));
    auto start = Clock::now();
    Form& form = Show("frmTables");
    EXPECT_LT(since(start), 1.0);
    auto& grid = static_cast<QTableView&>(WidgetOf(ControlOf("frmTables", "grdTable")));
    start = Clock::now();
    grid.scrollToBottom();
    Settle();
    EXPECT_LT(since(start), 0.2);
    const QPoint cell(grid.columnViewportPosition(2) + 5, grid.viewport()->height() / 2);
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, cell);
    Settle();
    EXPECT_EQ(form.Focus.Current(), form.Find("txtHole", 3)) << "a click on a cell goes on to its box";
    const int place = grid.verticalScrollBar()->value();
    double quickest = 1;
    for (int i = 0; i < 5; ++i) {
        TypeText(ControlOf("frmTables", "txtRecall"), "9990");
        WhenDialogOpens([](QWidget& box) { QTest::keyClick(&box, Qt::Key_Return); });
        start = Clock::now();
        ClickControl(*form.Find("cmdInsertRow"));
        Settle();
        quickest = std::min(quickest, since(start));
    }
    EXPECT_LT(quickest, 0.2);
    EXPECT_GE(grid.verticalScrollBar()->value(), place - 20);
    EXPECT_EQ(grid.model()->rowCount(), 10004);
}

}  // namespace
}  // namespace quillmetra
