// A table of 10,000 rows in the editor: saved in less than 200 milliseconds, a row inserted at once.
#include <gtest/gtest.h>

#include "benchmarks/TableScene.h"
#include "forms/frmTables.h"
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "tests/performance/Quickest.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

class TableSpeedTest : public SuiteTest {};

TEST_F(TableSpeedTest, TenThousandRows) {
#if !defined(NDEBUG) || defined(__SANITIZE_ADDRESS__)
    GTEST_SKIP() << "a time says something of an optimised build alone";
#else
    SaveTable(table::Liquid, ManyLiquids(10000));
    RegisterForms();
    EditTable("Liquid");
    auto& form = static_cast<frmTables&>(LoadForm("frmTables"));
    ASSERT_EQ(form.grdTable.RowCount(), 10000);
    EXPECT_LT(Quickest([&] { ClickControl(form.cmdReloadGrid); }), 0.2);
    User.Answers.assign(100, Answer::Yes);
    EXPECT_LT(Quickest([&] { ClickControl(form.cmdSaveGrid); }), 0.2);
    User.Answers.clear();
    TypeText(form.txtRecall, "1");
    EXPECT_LT(Quickest([&] { ClickControl(form.cmdInsertRow); }), 0.02);
    EXPECT_LT(Quickest([&] { ClickControl(form.cmdDeleteRow); }), 0.02);
    ASSERT_EQ(form.grdTable.RowCount(), 10000);
#endif
}

}  // namespace
}  // namespace quillmetra
