// A user's way through the windows, with mouse and keyboard alone: from the browser to a result, the pipe
// size looked up and the liquid picked on the way.
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include "core/Words.h"
#include "platform/NumberText.h"
#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {

namespace {

class WholeCaseTest : public DesktopTest {
protected:
    QWidget& Key() { return *QApplication::focusWidget(); }

    void TypeAndGoOn(const char* text) {
        QTest::keyClicks(&Key(), text);
        QTest::keyClick(&Key(), Qt::Key_Return);
        Settle();
    }

    void Skip(int boxes) {
        for (int i = 0; i < boxes; ++i) QTest::keyClick(&Key(), Qt::Key_Tab);
    }

    // Opens a menu by its head and the heads below it, then takes the entry.
    void Choose(Form& form, const std::vector<QString>& path) {
        QWidget* place = WindowOf(form).menuBar();
        for (const QString& name : path) {
            QAction* found = nullptr;
            for (QAction* action : place->actions()) {
                if (action->objectName() == name) found = action;
            }
            ASSERT_NE(found, nullptr) << name.toStdString();
            ASSERT_TRUE(found->isEnabled()) << name.toStdString();
            if (found->menu() == nullptr) return found->trigger();
            found->menu()->popup({});
            Settle();
            place = found->menu();
        }
    }
};

TEST_F(WholeCaseTest, FromTheBrowserToAResult) {
    Suite.HideFlowStatus = words::Yes;
    Suite.HideFluidReminder = words::Yes;
    Form& browser = Show("frmTRProg");
    Click(ControlOf("frmTRProg", "cmdOK"));
    EXPECT_FALSE(WindowOf(browser).isVisible());
    Click(ControlOf("frmObxProg", "cmdOK"));
    Form* const form = LoadedForm("frmLiqLineLoss");
    ASSERT_NE(form, nullptr);
    ASSERT_TRUE(form->Visible());
    Settle();

    TypeAndGoOn("P-101");
    Skip(1);
    TypeAndGoOn("1000");
    WhenDialogOpens([this](QWidget&) {
        QTest::keyClicks(&Key(), "4");
        QTest::keyClick(&Key(), Qt::Key_Return);  // searches, and selects the middle row
        Settle();
        QTest::keyClick(&Key(), Qt::Key_Return);
    });
    Click(ControlOf("frmLiqLineLoss", "cmdPipeID"));
    EXPECT_GT(Val(ControlOf("frmLiqLineLoss", "txtInletPipeID").Text()), 3);

    Click(ControlOf("frmLiqLineLoss", "txtFlow", 0));
    TypeAndGoOn("100000");
    TypeAndGoOn("68");
    TypeAndGoOn("100");
    Choose(*form, {"mnuFluiProp", "mnuCase(0)", "mnuPureLiquid1"});
    ASSERT_TRUE(ControlOf("frmLiqLineLoss", "fraLiquidData").Visible());
    EXPECT_FALSE(WidgetOf(ControlOf("frmLiqLineLoss", "txtFlow", 0)).isEnabled());
    auto& list = static_cast<ListBox&>(ControlOf("frmLiqLineLoss", "lstFluid"));
    for (int row = 0; row < list.RowCount(); ++row) {
        if (list.Row(row).starts_with("Toluene")) list.Preselect(row);
    }
    QTest::keyClick(&Key(), Qt::Key_Return);
    Settle();
    EXPECT_EQ(ControlOf("frmLiqLineLoss", "txtFluid").Text(), "Toluene");
    Click(ControlOf("frmLiqLineLoss", "cmdCalculate", 0));

    const double pressure = Val(ControlOf("frmLiqLineLoss", "txtDestPress", 0).Text());
    EXPECT_GT(pressure, 0);
    EXPECT_LT(pressure, 100);
    EXPECT_EQ(&Key(), ViewOf(ControlOf("frmLiqLineLoss", "txtBy")).KeyTarget());
    const auto& result = static_cast<QLineEdit&>(WidgetOf(ControlOf("frmLiqLineLoss", "txtDestPress", 0)));
    EXPECT_EQ(Val(result.text().toStdString()), pressure);

    Calc.ChangedFlag.clear();  // nothing to save
    WindowOf(*form).close();
    Settle();
    EXPECT_TRUE(WindowOf(browser).isVisible());
}

}  // namespace

}  // namespace quillmetra
