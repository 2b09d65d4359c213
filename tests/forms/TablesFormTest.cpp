// The table editor on files that a script does not have: damaged, missing, write-protected, empty.
#include <filesystem>

#include "core/Words.h"
#include "forms/frmShippedRows.h"
#include "forms/frmTables.h"
#include "forms/RegisterForms.h"
#include "platform/UserActs.h"
#include "tests/SuiteFixture.h"

namespace quillmetra {
namespace {

namespace fs = std::filesystem;

class TablesForm : public SuiteTest {
protected:
    TablesForm() { RegisterForms(); }

    frmTables& Open(const char* keyWord) {
        EditTable(keyWord);
        EXPECT_TRUE(IsFormLoaded("frmTables"));
        return static_cast<frmTables&>(LoadForm("frmTables"));
    }
    std::string Bytes(const char* name) const { return ReadBytes(SuitePath(DataFolder() / name)); }
};

TEST_F(TablesForm, TellsWhatASaveDropsBeforeItAsks) {
    WriteData("W-PIPE.TXT", "Size\r\n1,40,1.049,.133\r\nshort\r\n6,40,6.065,.28,6.625\r\n");
    frmTables& form = Open("Pipe");
    EXPECT_EQ(form.grdTable.RowCount(), 5) << "a small table is filled up with blank rows";
    User.Answers = {Answer::No};
    ClickControl(form.cmdSaveGrid);
    ASSERT_EQ(User.Boxes.size(), 2);
    EXPECT_NE(User.Boxes[0].Text.find("\nline 3:  short\nline 4:  6,40"), std::string::npos)
        << User.Boxes[0].Text;
    EXPECT_NE(Bytes("W-PIPE.TXT").find("short"), std::string::npos);
    ClickControl(form.cmdSaveGrid);
    EXPECT_NE(Bytes("W-PIPE.TXT").find("short"), std::string::npos) << "Enter alone destroys nothing";
    User.Boxes.clear();
    User.Answers = {Answer::Yes, Answer::Yes};
    ClickControl(form.cmdSaveGrid);
    EXPECT_EQ(Bytes("W-PIPE.TXT"), "Size,,,,\r\n1,40,1.049,.133,\r\n6,40,6.065,.28,\r\n,,,,\r\n,,,,\r\n");
    ClickControl(form.cmdSaveGrid);
    EXPECT_EQ(User.Boxes.size(), 3) << "told once, they are gone";
}

TEST_F(TablesForm, ATableThatCannotBeReadIsToldAndNotShown) {
    fs::remove(DataFolder() / "Gas.txt");
    EditTable("Gas");
    EXPECT_EQ(User.LastText(), "File Gas.txt\nFile not found");
    EXPECT_FALSE(IsFormLoaded("frmTables"));
    EditTable("no such table");
    EXPECT_FALSE(IsFormLoaded("frmTables"));
    EditTable("Valve");  // no caller has named its file
    EXPECT_FALSE(IsFormLoaded("frmTables"));

    frmTables& form = Open("Liquid");
    fs::remove(DataFolder() / "Liquid.txt");
    ClickControl(form.cmdReloadGrid);
    EXPECT_EQ(User.LastText(), "File Liquid.txt\nFile not found");
    EXPECT_GT(form.grdTable.RowCount(), 100) << "what was read can still be saved";
    User.Answers = {Answer::Yes};
    ClickControl(form.cmdSaveGrid);
    EXPECT_TRUE(fs::exists(DataFolder() / "Liquid.txt"));
}

TEST_F(TablesForm, ACallerMayNameTheFile) {
    WriteData("An45.txt", "Size,K\r\n4,0.65,120,90,300,\r\n");
    EditTable("Annubar", {.FileName = "An45.txt", .Model = AnnubarModels[4]});
    auto& annubar = static_cast<frmTables&>(LoadForm("frmTables"));
    EXPECT_EQ(annubar.Caption(), "Annubar Data File  An45.txt");
    EXPECT_EQ(annubar.lblHeading.Caption(), "Values of Data for Annubar Models 45 and 46");
    PickCell(annubar.grdTable, 1, 1);
    EXPECT_EQ(annubar.lblNote2.Caption(), "For Annubar Models 45 and 46");
    ClickControl(annubar.cmdCancelGrid);
    frmTables& gas = Open("Gas");
    EXPECT_EQ(gas.TableFile, Suite.DefaultPaths[4] + "\\Gas.txt") << "the file of another call is forgotten";
}

TEST_F(TablesForm, AFailedSaveKeepsTheFormAndTheFile) {
    frmTables& form = Open("Pipe");
    const std::string before = Bytes("W-PIPE.TXT");
    fs::permissions(DataFolder() / "W-PIPE.TXT", fs::perms::owner_read);
    PickCell(form.grdTable, 1, 2);
    TypeText(form.txtHole(2), "changed");
    ClickControl(form.cmdCancelGrid);  // Yes to all
    EXPECT_EQ(User.LastText(), "Path/File access error");
    ASSERT_TRUE(IsFormLoaded("frmTables"));
    EXPECT_EQ(form.grdTable.Cell(1, 2), "changed");
    EXPECT_EQ(Bytes("W-PIPE.TXT"), before);
    fs::permissions(DataFolder() / "W-PIPE.TXT", fs::perms::owner_read | fs::perms::owner_write);
    ClickControl(form.cmdCancelGrid);
    EXPECT_FALSE(IsFormLoaded("frmTables"));
    EXPECT_NE(Bytes("W-PIPE.TXT").find(",changed,"), std::string::npos);
}

TEST_F(TablesForm, AnEmptyFileBecomesATable) {
    WriteData("MaTLDAT.TXT", "");
    frmTables& form = Open("Material");
    TypeText(form.txtHole(1), "Name");
    TypeText(form.txtRecall, "0");
    ClickControl(form.cmdLoadRow);
    TypeText(form.txtHole(1), "Steel");
    TypeText(form.txtHole(2), "6.8");
    TypeText(form.txtRecall, "1");
    ClickControl(form.cmdLoadRow);
    TypeText(form.txtHole(1), "");
    TypeText(form.txtRecall, "2");
    ClickControl(form.cmdLoadRow);
    User.Answers = {Answer::Yes};
    ClickControl(form.cmdSaveGrid);
    EXPECT_EQ(form.Status(), "Saved as " + form.TableFile + "; 1 row without a name was left out");
    const std::string blanks(26, ' ');
    EXPECT_EQ(Bytes("MaTLDAT.TXT"), "Name " + blanks + ",,,\r\nSteel" + blanks + ",6.8,,\r\n");
}

// The row in hand follows its row, and what the boxes hold never lands on another one.
TEST_F(TablesForm, RowsThatMoveTakeTheRowInHandAlong) {
    frmTables& form = Open("Pipe");
    const int rows = form.grdTable.RowCount();
    PickCell(form.grdTable, 5, 2);
    TypeText(form.txtRecall, "3");
    ClickControl(form.cmdDeleteRow);
    EXPECT_EQ(form.CurrentRow, 4);
    EXPECT_EQ(form.lblRowNum.Caption(), "4");
    const std::string schedule = form.txtHole(2).Text();
    TypeText(form.txtRecall, "4");
    ClickControl(form.cmdDeleteRow);
    EXPECT_EQ(form.CurrentRow, rows - 2) << "its row is gone: the next free one";
    TypeText(form.txtRecall, "1");
    ClickControl(form.cmdInsertRow);
    EXPECT_EQ(form.grdTable.Cell(1, 2), schedule) << "deleted there, inserted here";
    EXPECT_EQ(form.CurrentRow, 1);
    TypeText(form.txtHole(2), "1,2");
    EXPECT_FALSE(form.Status().empty()) << "a comma ends a field";
    TypeText(form.txtRecall, "1e300");
    ClickControl(form.cmdRecall);
    EXPECT_EQ(User.LastText(), "Maximum row number is  421");
}

TEST_F(TablesForm, NewerShippedRowsAreToldOnceAndWrittenWhereTheyMay) {
    const fs::path gases = DataFolder() / "Gas.txt", shipped = SourceFolder() / "data";
    fs::copy_file(shipped / "former" / "Gas.txt", gases, fs::copy_options::overwrite_existing);
    Suite.VersionText = "Ver.1.0.0.  ";
    TellOfShippedRows();
    Form& browser = LoadForm("frmTRProg");
    EXPECT_NE(browser.Status().find("Shipped rows"), std::string::npos);
    browser.SetStatus("");
    TellOfShippedRows();
    EXPECT_EQ(browser.Status(), "");

    const std::string before = Bytes("Gas.txt");
    fs::permissions(gases, fs::perms::owner_read);
    ShowForm("frmShippedRows", Modal::Yes);
    auto& offer = static_cast<frmShippedRows&>(LoadForm("frmShippedRows"));
    ClickControl(offer.cmdOK);
    EXPECT_EQ(User.LastText().substr(0, 13), "File Gas.txt\n");
    EXPECT_EQ(Bytes("Gas.txt"), before);
    fs::permissions(gases, fs::perms::owner_read | fs::perms::owner_write);
    ClickControl(offer.cmdOK);
    EXPECT_EQ(Bytes("Gas.txt"), ReadBytes(SuitePath(shipped / "Gas.txt"))) << "the table as shipped";
}

}  // namespace
}  // namespace quillmetra
