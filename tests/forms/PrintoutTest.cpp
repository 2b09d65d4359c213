// The printout form from the print entry to the sheet, and what may go wrong on the way.
#include "core/Programs.h"
#include "forms/frmObxPrintCalc.h"
#include "forms/PictureFile.h"
#include "tests/forms/LiquidFormFixture.h"

namespace quillmetra {
namespace {

class Printout : public LiquidForm {
protected:
    Printout() {
        FillGoodCase(0);
        Calculate(0);
        User.Boxes.clear();
        User.Printing = PrinterChoice{};
        Calc.CaseUnitsText = {};
    }

    frmObxPrintCalc& Shown() {
        ClickControl(Form().mnuPrint);
        return dynamic_cast<frmObxPrintCalc&>(LoadForm("frmObxPrintCalc"));
    }

    std::string Page() { return User.Pages.empty() ? "" : PageAsText(User.Pages.back()); }
};

TEST_F(Printout, FillsFromRecordAndPrintsWhatItShows) {
    Calc.HeadingText[1] = "1/2/2025";
    Calc.HeadingText[2] = "Northfield Terminal";
    Calc.HeadingText[5] = "4471";
    Calc.NoteText = {"", "kept one", "kept two", "kept three"};
    Type(Form().txtComments(0), "typed one");
    frmObxPrintCalc& printout = Shown();
    EXPECT_EQ(printout.Focus.Current(), &printout.cmdOK);
    EXPECT_EQ(printout.cmdDate.Caption(), "1/2/2025");  // the form has no date of its own
    EXPECT_EQ(printout.txtProjectNo.Text(), "4471");
    EXPECT_EQ(printout.txtComments(0).Text(), "typed one");
    EXPECT_EQ(printout.txtComments(1).Text(), "kept two");

    Type(printout.txtComments(1), "changed two");
    User.Printing = PrinterChoice{.Copies = 2};
    Calc.ChangedFlag.clear();
    ClickControl(printout.cmdOK);
    EXPECT_EQ(Form().txtComments(1).Text(), "changed two") << "the form would store its own over it";
    EXPECT_EQ(Calc.NoteText[2], "changed two");
    EXPECT_EQ(Calc.ChangedFlag, words::No);
    EXPECT_FALSE(IsFormLoaded("frmObxPrintCalc"));
    ASSERT_EQ(User.Pages.size(), 2U);
    for (const char* words : {"Northfield Terminal", "typed one", "kept three", "1/2/2025", "Pipe ends"}) {
        EXPECT_NE(Page().find(words), std::string::npos) << words;
    }
    EXPECT_EQ(Calc.CaseText[10], "1/2/2025");
    EXPECT_EQ(Calc.HeadingText[10], "kept three");
    EXPECT_TRUE(User.Boxes.empty());
}

TEST_F(Printout, RefusesWhatIsNotReady) {
    const struct {
        const char* DataOk;
        const char* Rounded;
        const char* Told;
        bool Opens;
    } cases[] = {{"No", "No", "", false},
                 {"Yes", "No", "Please round before printing", false},
                 {"Yes", "Yes", "", true},
                 {"Yes", "", "", true}};
    for (const auto& each : cases) {
        Calc.DataOk = each.DataOk;
        Calc.RoundedFlag = each.Rounded;
        User.Boxes.clear();
        ClickControl(Form().mnuPrint);
        EXPECT_EQ(User.LastText(), each.Told);
        EXPECT_EQ(IsFormLoaded("frmObxPrintCalc"), each.Opens);
        UnloadForm("frmObxPrintCalc");
    }
}

TEST_F(Printout, ResultsThatNoLongerStandAreNotPrinted) {
    EXPECT_TRUE(Form().mnuPrint.Enabled());
    Type(Form().txtFlow(0), "2000");
    EXPECT_FALSE(Form().mnuPrint.Enabled());
}

TEST_F(Printout, SizeOfLettersKeepsWithinItsLimits) {
    for (const auto& [chosen, printed] : {std::pair{14.0, 12.0}, {10.0, 10.0}, {3.0, 8.0}}) {
        Printer.Font.Size = chosen;
        ClickControl(Shown().cmdOK);
        EXPECT_EQ(User.Pages.back().Font.Size, printed);
        EXPECT_EQ(Printer.Font.Size, printed);
        EXPECT_FALSE(Printer.Font.Bold);
    }
}

TEST_F(Printout, PrinterThatFailsIsToldAndHarmsNothing) {
    const std::string fluid = Form().txtFluid.Text();
    User.Printing = PrinterChoice{.Copies = 3};
    User.PagesUntilFailure = 1;
    frmObxPrintCalc& printout = Shown();
    Type(printout.txtTitle, "typed before the failure");
    ClickControl(printout.cmdOK);
    EXPECT_EQ(User.LastText(), "Printer error (Error 482)");
    EXPECT_EQ(User.Boxes.back().Title, "Printing Problem");
    EXPECT_TRUE(IsFormLoaded("frmObxPrintCalc"));
    EXPECT_EQ(printout.txtTitle.Text(), "typed before the failure");
    EXPECT_FALSE(Printer.IsOpen());
    EXPECT_EQ(Printer.Font.Size, 10);
    EXPECT_EQ(Form().txtFluid.Text(), fluid);

    ClickControl(printout.cmdOK);  // the printer works again
    EXPECT_FALSE(IsFormLoaded("frmObxPrintCalc"));
    EXPECT_EQ(User.Pages.size(), 4U);
}

TEST_F(Printout, SaysWhereThePagesWentOrThatThereAreNone) {
    frmObxPrintCalc& printout = Shown();
    EXPECT_EQ(printout.cmdDate.Caption(), "Date");
    Calc.Tag = "FT-1/2";
    User.ChosenFile = "one.of.PDF";
    ClickControl(printout.cmdPdf);
    EXPECT_TRUE(User.Proposed.ends_with("\\FT-1-2.pdf")) << User.Proposed;
    EXPECT_EQ(printout.Status(), "1 page: one.of.PDF");
    EXPECT_EQ(Calc.HeadingText[1], "");  // the prompt is no date
    User.PagesUntilFailure = 0;
    ClickControl(printout.mnuPdf);
    EXPECT_EQ(printout.Status(), "") << "the words of the page before it";
    WriteData("two.pdf", "of the user");
    User.ChosenFile = SuitePath(DataFolder() / "two");  // a dialog has seen no file of that name
    ClickControl(printout.mnuPdf);
    EXPECT_TRUE(User.LastText().ends_with("two.pdf is there already\nReplace it?")) << User.LastText();
    EXPECT_EQ(User.Jobs.size(), 2U);
    User.PagesUntilFailure = -1;
    User.Printing = PrinterChoice{.FromPage = 3, .ToPage = 5};
    ClickControl(printout.cmdOK);
    EXPECT_EQ(User.LastText(), "There is no page 3 to 5");
    EXPECT_TRUE(IsFormLoaded("frmObxPrintCalc"));
}

TEST_F(Printout, CancelledDialogPrintsNothing) {
    User.Printing.reset();
    ClickControl(Shown().cmdOK);
    EXPECT_TRUE(User.Jobs.empty());
    EXPECT_TRUE(User.Boxes.empty());
    EXPECT_TRUE(IsFormLoaded("frmObxPrintCalc"));
    ClickControl(Shown().cmdPreview);
    ASSERT_EQ(User.Jobs.size(), 1U);
    EXPECT_EQ(User.Jobs[0].To, PrintJob::Target::Preview);
}

TEST_F(Printout, APictureIsNotWrittenOverAFileOfTheSuite) {
    const auto bytes = [] { return std::string("picture"); };
    User.ChosenFile = SuitePath(DataFolder() / "Liquid.txt.png");
    SavePicture(Shown(), "png", bytes);
    EXPECT_EQ(ReadBytes(*User.ChosenFile), "picture");
    EXPECT_TRUE(User.Boxes.empty());
    User.ChosenFile = SuitePath(DataFolder() / "Liquid.txt");
    const std::string table = ReadBytes(*User.ChosenFile);
    SavePicture(Shown(), "txt", bytes);
    EXPECT_EQ(User.Boxes.size(), 1U);
    EXPECT_EQ(ReadBytes(*User.ChosenFile), table);
}

TEST_F(Printout, HeadingsAreSavedAndReadBack) {
    frmObxPrintCalc& printout = Shown();
    Type(printout.txtTitle, "Städtische Werke");
    Type(printout.txtModel, "  M 1");
    Type(printout.txtComments(2), "third");
    ClickControl(printout.cmdSave);
    LineReader file(Suite.DefaultPaths[3] + "\\TRHDG.TXT");
    std::vector<std::string> lines;
    for (std::string line; file.Next(line);) lines.push_back(line);
    ASSERT_EQ(lines.size(), 10U);
    EXPECT_EQ(lines[1], "Städtische Werke");
    EXPECT_EQ(lines[9], "third");

    Type(printout.txtTitle, "other");
    Type(printout.txtComments(2), "note of this record");
    ClickControl(printout.mnuReload);
    EXPECT_EQ(printout.txtTitle.Text(), "Städtische Werke");
    EXPECT_EQ(printout.txtModel.Text(), "  M 1");
    EXPECT_EQ(printout.txtComments(2).Text(), "note of this record");

    Suite.DefaultPaths[3] = Suite.DefaultPaths[3] + "\\TRHDG.txt\\no folder";
    ClickControl(printout.cmdSave);
    EXPECT_EQ(User.Boxes.back().Title, "Printing Problem");
}

TEST_F(Printout, BatchPrintsByItselfOnThePaperOfTheRun) {
    Suite.BatchPrinting = words::Yes;
    Suite.PrintCopies = 1;
    Suite.ReportHeadings = {"", "1/2/2025", "Title of the run", "", "", "", "", "", "note"};
    Printer.Open({});
    for (int record = 0; record < 3; ++record) {
        LoadForm("frmObxPrintCalc");
        UnloadForm("frmObxPrintCalc");
    }
    Printer.EndDoc();
    Printer.Close();
    EXPECT_EQ(User.Jobs.size(), 1U);
    ASSERT_EQ(User.Pages.size(), 3U);
    EXPECT_EQ(User.Pages[1].Ops.back().What, PrintOp::Kind::NewPage);
    EXPECT_NE(Page().find("Title of the run"), std::string::npos);
    EXPECT_NE(Page().find("note"), std::string::npos);
}

// Names of controls are words in the tables of the reports: each must be on the form that it names.
TEST_F(Printout, FormsHaveTheControlsThatTheirReportsPrint) {
    for (const Program& program : Programs) {
        if (!IsFormKnown(program.Form)) continue;
        Calc.CurrentProgram = program.Number;
        LoadForm(program.Form);
        for (const char* mixture : {"", words::Yes}) {
            Calc.MixtureFlag = mixture;
            User.Boxes.clear();
            ReportPage page;
            Printer.Open({});
            PrintReportBody(page);
            Printer.EndDoc();
            Printer.Close();
            EXPECT_EQ(User.LastText(), "") << program.Form;
        }
    }
}

}  // namespace
}  // namespace quillmetra
