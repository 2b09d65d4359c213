// The run over many records: what it prints, what it leaves out, and what stops it.
#include "forms/frmObxPrintCalc.h"
#include "forms/frmPrintControl.h"
#include "forms/RecordInHand.h"
#include "forms/RegisterForms.h"
#include "platform/Clock.h"
#include "platform/UserActs.h"
#include "tests/records/RecordFixture.h"

namespace quillmetra {
namespace {

class PrintControl : public RecordTest {
protected:
    PrintControl() {
        RegisterForms();
        User.Printing = PrinterChoice{};
    }

    // One record of each program: T-1 to T-5.
    void SaveFive() {
        for (int program = 1; program <= 5; ++program) SaveNew("T-" + std::to_string(program), program);
    }

    frmPrintControl& Open() {
        ShowForm("frmTRProg");
        ShowForm("frmPrintControl");
        return dynamic_cast<frmPrintControl&>(LoadForm("frmPrintControl"));
    }

    void Type(TextBox& box, const std::string& text) {
        MoveFocus(box);
        TypeText(box, text);
    }

    static std::string TagOf(const PrintedPage& page) {
        const std::string text = PageAsText(page);
        const std::size_t at = text.find("Tag number    ") + 14;
        return text.substr(at, text.find_first_of(" \n", at) - at);
    }

    std::string TagsPrinted() const {
        std::string tags;
        for (const PrintedPage& page : User.Pages) tags += TagOf(page) + " ";
        return tags;
    }

    // Removes a tag's row behind the back of the form.
    void DropRow(const RecordTable& table, const std::string& tag) {
        const std::unique_ptr<Database> database = OpenRecords(Suite.DatabaseFile);
        Recordset rows(*database, table.Shape);
        rows.Index("Tag_Number");
        ASSERT_TRUE(rows.Seek(tag));
        rows.Delete();
    }
};

// The pages of a run are those that each record prints by itself.
TEST_F(PrintControl, PagesAreThoseOfTheSinglePrint) {
    SaveFive();
    std::vector<std::string> single;
    RecordView view(Suite.DatabaseFile);
    for (int record = 1; record <= 5; ++record, view.Next()) {
        ASSERT_TRUE(TakeRecord(view.Head()));
        FillCalculationForm();
        const std::string notes[] = {Calc.HeadingText[8], Calc.HeadingText[9], Calc.HeadingText[10]};
        ReportTexts texts{Calc.CaseText[10], "Title", "", "", "4471", {notes[0], notes[1], notes[2]}};
        Printer.Open({});
        PrintReportPage(texts, 10);
        Printer.EndDoc();
        Printer.Close();
        single.push_back(PageAsText(User.Pages.back()));
    }
    User.Pages.clear();
    ResetForms();

    frmPrintControl& control = Open();
    EXPECT_EQ(control.lblNumRecords.Caption(), "5");
    Type(control.txtTitle, "Title");
    Type(control.txtProjectNo, "4471");
    ClickControl(control.cmdAll);
    EXPECT_EQ(control.Record.txtTagNum.Text(), "");  // nothing is read for it
    ClickControl(control.cmdProceed);
    ASSERT_EQ(User.Pages.size(), 5U) << User.LastText();
    for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(PageAsText(User.Pages[i]), single[i]);
    EXPECT_EQ(User.Jobs.back().To, PrintJob::Target::Printer);
    EXPECT_EQ(User.LastText(), "");
    EXPECT_FALSE(IsFormLoaded("frmPrintControl"));
    EXPECT_TRUE(LoadForm("frmTRProg").Visible());
    EXPECT_EQ(Suite.RunActive + Suite.BatchPrinting, "");
}

TEST_F(PrintControl, PickedRecordsAreShownAndPrintedWithTodaysDate) {
    SaveFive();
    SetToday("2027-02-03");
    frmPrintControl& control = Open();
    PickRow(control.lstTags, 2);
    EXPECT_EQ(control.Record.txtTRCalc.Text(), "Waterhammer");
    EXPECT_EQ(control.Record.txtCalcBy.Text(), Calc.CaseText[8]);
    EXPECT_EQ(control.lblCurrentRecord.Caption(), "3");
    EXPECT_EQ(control.txtPrintoutDate.Text(), "11/24/2026");
    for (const auto& [word, tag] :
         {std::pair{"Next", "T-4"}, {"Last", "T-5"}, {"Previous", "T-4"}, {"First", "T-1"}}) {
        Calc.MessageText = word;
        control.FieldData();
        EXPECT_EQ(control.Record.txtTagNum.Text(), tag);
    }
    PickRow(control.lstTags, 4);
    ClickControl(control.chkPrintDate);
    EXPECT_EQ(control.txtPrintoutDate.Text(), "02/03/2027");
    User.ChosenFile = "any";
    ClickControl(control.cmdPdf);
    EXPECT_TRUE(User.Proposed.ends_with("\\TRDB.pdf")) << User.Proposed;
    EXPECT_EQ(User.Jobs.back().Path, "any.pdf");
    EXPECT_EQ(LoadForm("frmTRProg").Status(), "2 records, 2 pages: any.pdf");
    EXPECT_EQ(TagsPrinted(), "T-3 T-5 ");
    EXPECT_NE(PageAsText(User.Pages[1]).find("02/03/2027"), std::string::npos);
    EXPECT_EQ(User.Jobs.back().To, PrintJob::Target::Pdf);
}

TEST_F(PrintControl, GoesOnPastRecordsThatCannotBeRead) {
    SaveFive();
    for (int extra = 0; extra < 30; ++extra) SaveNew("X-" + std::to_string(extra));
    frmPrintControl& control = Open();
    ClickControl(control.cmdAll);
    DropRow(UnitsTable(), "T-2");
    DropRow(PressureDropTable(), "T-1");
    DropRow(HeadTable(), "T-4");
    for (int extra = 1; extra < 30; ++extra) DropRow(HeadTable(), "X-" + std::to_string(extra));
    ClickControl(control.cmdProceed);
    EXPECT_EQ(TagsPrinted(), "T-3 T-5 X-0 ");
    ASSERT_EQ(User.Boxes.size(), 1U);
    EXPECT_TRUE(User.LastText().starts_with("Not printed, or not whole:\n\nT-1: Cannot find T-1"))
        << User.LastText();
    EXPECT_NE(User.LastText().find("\nT-4: Not found"), std::string::npos);
    EXPECT_NE(User.LastText().find("\nand 12 more"), std::string::npos);
    EXPECT_FALSE(IsFormLoaded("frmPrintControl"));
}

TEST_F(PrintControl, StopsForTheUserAndForAPrinterThatFails) {
    SaveFive();
    frmPrintControl& control = Open();
    ClickControl(control.cmdProceed);
    EXPECT_EQ(User.LastText(), "Select the records to print first");
    Type(control.txtTitle, "kept");
    ClickControl(control.cmdAll);
    const auto staysUsable = [&] {
        EXPECT_TRUE(control.Visible() && control.cmdProceed.Works() && control.lstTags.Works());
        EXPECT_EQ(control.txtTitle.Text(), "kept");
        EXPECT_EQ(Suite.RunActive + Suite.BatchPrinting, "");
        EXPECT_FALSE(Printer.IsOpen());
        EXPECT_FALSE(IsFormLoaded("frmObxPrintCalc"));
    };
    User.Printing.reset();
    ClickControl(control.cmdProceed);
    EXPECT_TRUE(User.Jobs.empty());
    staysUsable();
    for (const auto& [from, to, told] : {std::tuple{4, 2, "The range of pages ends before it begins: 4 to 2"},
                                         {6, 9, "There is no page 6 to 9"}}) {
        User.Printing = PrinterChoice{.FromPage = from, .ToPage = to};
        ClickControl(control.cmdProceed);
        EXPECT_EQ(User.LastText(), told);
        staysUsable();
    }

    User.Printing = PrinterChoice{.Copies = 3};
    User.EscapePressed = true;
    ClickControl(control.cmdProceed);
    EXPECT_TRUE(User.Pages.empty());
    EXPECT_EQ(control.Status(), "Printing was stopped");
    staysUsable();

    User.EscapePressed = false;
    User.PagesUntilFailure = 7;
    ClickControl(control.cmdProceed);
    EXPECT_EQ(User.LastText(), "Printer error (Error 482)");
    EXPECT_EQ(User.Boxes.back().Title, "Printing Problem");
    staysUsable();

    User.Pages.clear();
    ClickControl(control.cmdProceed);  // the printer works again
    EXPECT_EQ(User.Pages.size(), 15U);
}

TEST_F(PrintControl, DefaultTitlesKeepTheOtherLinesOfTheirFile) {
    SaveFive();
    WriteData("TRHDG.txt",
              "1/2/2025\r\nOld title\r\nOld subtitle\r\nname\r\nno\r\nmaker\r\nmodel\r\nn1\r\nn2\r\nn3\r\n");
    frmPrintControl& control = Open();
    ClickControl(control.cmdTitleDefault);
    EXPECT_EQ(control.txtSubTitle.Text(), "Old subtitle");
    Type(control.txtTitle, "New title");
    ClickControl(control.cmdDefaultTitles);
    EXPECT_EQ(ReadBytes(Suite.DefaultPaths[3] + "\\TRHDG.txt"),
              "1/2/2025\r\nNew title\r\nOld subtitle\r\nname\r\nno\r\nmaker\r\nmodel\r\nn1\r\nn2\r\nn3\r\n");
    ClickControl(control.cmdNone);
    EXPECT_EQ(control.txtTitle.Text(), "");
    ClickControl(control.chkUse);
    EXPECT_EQ(control.txtTitle.Text(), "New title");
    ClickControl(control.chkUse);
    EXPECT_EQ(control.txtTitle.Text(), "");

    Suite.DefaultPaths[3] += "\\TRHDG.txt\\no folder";
    ClickControl(control.cmdDefaultTitles);
    EXPECT_EQ(User.Boxes.back().Sign, Icon::Stop);
}

TEST_F(PrintControl, SaveLeavesTheRecordAsItIs) {
    SaveFive();
    frmPrintControl& control = Open();
    for (int row = 0; row < 5; ++row) {
        const std::string tag = control.lstTags.Row(row);
        const std::vector<FieldValue> before = AllValues(tag);
        PickRow(control.lstTags, row);
        Type(control.txtTitle, "any");
        ClickControl(control.cmdSaveInDb);
        EXPECT_EQ(User.LastText(), "Tag Number is on file\nOverwrite the existing record?");
        EXPECT_EQ(AllValues(tag), before) << tag;
    }
    Suite.DefaultPaths[1].clear();
    ClickControl(control.cmdSaveInDb);
    EXPECT_EQ(User.LastText(), "You must create the default path first");
    EXPECT_EQ(User.Boxes.back().Title, "Database TRDB.MDB");
}

TEST_F(PrintControl, WithoutADatabaseThereIsNothingToPrint) {
    Suite.DatabaseFile = SuitePath(Folder / "none.mdb");
    frmPrintControl& control = Open();
    EXPECT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(control.lblNumRecords.Caption(), "0");
    ClickControl(control.cmdAll);
    ClickControl(control.cmdProceed);
    ClickControl(control.cmdSaveInDb);
    EXPECT_TRUE(User.Jobs.empty());
    ClickControl(control.cmdCancelPrint);
    EXPECT_FALSE(IsFormLoaded("frmPrintControl"));
}

}  // namespace
}  // namespace quillmetra
