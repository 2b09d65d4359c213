// The dialogs that try a line: each pipe of the table is what the form shows with it, and the flow found
// makes the form show the pressure asked for.

#include "core/Words.h"
#include "forms/frmLineFlow.h"
#include "forms/frmSizes.h"
#include "forms/RegisterForms.h"
#include "platform/NumberText.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

struct LineKind {
    const char* Form;
    int Program;
    const char* Case;                  // what is typed, "box=text "
    std::vector<const char*> Results;  // boxes of the row's cells from Velocity on
};

const LineKind Kinds[] = {
    {"frmLiqLineLoss",
     1,
     "txtFlow=100000 txtTemp=60 txtPressure=100 txtSGFlow=1 txtViscosity=1 txtEquip=0.2",
     {"txtVelocity", "txtDropP100", "txtDestPress", "txtTotalLoss", "txtReynoldsNum", "txtRegime"}},
    {"frmGasLineLoss",
     2,
     "txtFlow=5000 txtTemp=60 txtPressure=100 txtMW=16.04 txtRatioSH=1.3 txtCritTemp=343 txtCritPressure=667 "
     "txtViscosity=0.011",
     {"txtVelocity", "txtDropP100", "txtDestPress", "txtTotalLoss", nullptr, "txtRegime", "txtOutletMach"}},
};

class SizesTest : public SuiteTest, public ::testing::WithParamInterface<int> {
protected:
    const LineKind& Kind() const { return Kinds[GetParam()]; }
    LineLossForm& Line() { return dynamic_cast<LineLossForm&>(*LoadedForm(Kind().Form)); }
    Control& Box(const std::string& name, int index = 1) { return ControlOf(Kind().Form, name, index); }

    static void Type(Control& box, const std::string& text) {
        ASSERT_TRUE(MoveFocus(box)) << box.FullName();
        ASSERT_TRUE(TypeText(box, text)) << box.FullName();
    }

    void SetUp() override {
        RegisterForms();
        StartUp(SuitePath(Folder));
        ClickControl(ControlOf("frmTRProg", "cmdOK"));
        ClickControl(ControlOf("frmObxProg", "optProgram", Kind().Program));
        ClickControl(ControlOf("frmObxProg", "cmdOK"));
        Suite.HideFluidReminder = Suite.HideFlowStatus = words::Yes;
        Type(Line().txtInletPipeLen, "1000");
        Type(Line().txtInletPipeID, "4.026");
        Type(Line().txtOutletPipeElev, "20");
        Type(Line().txtInlet90Deg, "4");
        std::string typed = Kind().Case;
        while (!typed.empty()) {
            const std::string part = typed.substr(0, typed.find(' '));
            typed.erase(0, part.size() + 1);
            const std::size_t is = part.find('=');
            Type(Box(part.substr(0, is)), part.substr(is + 1));
        }
    }

    template <typename Dialog>
    Dialog& Open(CommandButton& button) {
        EXPECT_TRUE(ClickControl(button));
        return dynamic_cast<Dialog&>(LoadForm(Dialog().Name()));
    }
};

TEST_P(SizesTest, EachPipeIsWhatTheFormShowsWithIt) {
    ASSERT_TRUE(Line().TakeCase(1));
    SetPipeUnits();
    const CalcRecord before = Calc;
    auto& sizes = Open<frmSizes>(Line().cmdSizes);
    ASSERT_EQ(sizes.grdSizes.RowCount(), 423);
    EXPECT_EQ(sizes.grdSizes.Cell(sizes.grdSizes.Selected(), 2), "4.026") << "the pipe in hand";
    std::vector<Grid::Cells> rows;
    for (int row = 1; row < sizes.grdSizes.RowCount(); row += 41) {
        Grid::Cells cells;
        for (int column = 0; column < sizes.grdSizes.ColumnCount(); ++column)
            cells.push_back(sizes.grdSizes.Cell(row, column));
        rows.push_back(std::move(cells));
    }
    ClickControl(sizes.cmdCancel);
    EXPECT_TRUE(Calc == before) << "a trial leaves the record alone";
    int reached = 0;
    for (const Grid::Cells& cells : rows) {
        SCOPED_TRACE(cells[0] + " " + cells[1] + " " + cells[3]);
        Type(Line().txtInletPipeID, cells[2]);
        ClickControl(Line().cmdCalculate(1));
        if (!cells[3].empty()) continue;
        ++reached;
        for (std::size_t i = 0; i < Kind().Results.size(); ++i) {
            if (Kind().Results[i] == nullptr) continue;
            EXPECT_EQ(cells[4 + i], Trim(Box(Kind().Results[i]).Text())) << Kind().Results[i];
        }
    }
    EXPECT_GE(reached, 7);
}

TEST_P(SizesTest, TheFlowFoundGivesThePressureAskedFor) {
    Type(Box("txtFlow"), "");
    for (const char* asked : {"80", "30", "85"}) {
        auto& dialog = Open<frmLineFlow>(Line().cmdFlowFor);
        Type(dialog.txtEnd, asked);
        ClickControl(dialog.cmdFind);
        ASSERT_EQ(dialog.lblReason.Caption(), "");
        ClickControl(dialog.cmdOK);
        ClickControl(Line().cmdCalculate(1));
        // Four figures of the flow are a thousandth of the friction loss.
        EXPECT_NEAR(Val(Line().txtDestPress(1).Text()), Val(asked), 0.02 + 0.001 * (100 - Val(asked)));
    }
    auto& dialog = Open<frmLineFlow>(Line().cmdFlowFor);
    Type(dialog.txtEnd, "120");
    ClickControl(dialog.cmdFind);
    EXPECT_EQ(dialog.lblReason.Caption(), "Even without flow the line does not end at that pressure");
    EXPECT_FALSE(dialog.cmdOK.Enabled());
    Type(dialog.txtEnd, "-14");
    ClickControl(dialog.cmdFind);
    EXPECT_EQ(dialog.lblReason.Caption().starts_with("The gas becomes as fast as sound first"),
              Kind().Program == 2);
}

INSTANTIATE_TEST_SUITE_P(Lines, SizesTest, ::testing::Values(0, 1));

}  // namespace
}  // namespace quillmetra
