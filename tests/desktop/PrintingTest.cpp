// The paper of the toolkit's printer.
#include "desktop/Printing.h"

#include <filesystem>

#include <gtest/gtest.h>
#include <QTemporaryDir>

#include "platform/RuntimeError.h"
#include "tests/desktop/DesktopFixture.h"

namespace quillmetra {
namespace {

PrintedPage SamplePage() {
    PrintedPage page{.Font = {.Name = RecordingPrinter::DefaultFont, .Size = 10}};
    page.Ops = {{.Y = 240, .FontSize = 10, .Cells = {{6, "Flow"}, {35, " 1500"}}},
                {.What = PrintOp::Kind::Line, .X = 0, .Y = 480, .StepX = 9000}};
    return page;
}

TEST(PrinterPaper, PrintsToAFileAndTellsWhenItCannot) {
    const QTemporaryDir folder;
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath("page.pdf"));
    {
        PrinterPaper paper(printer, "sample");
        paper.Print(SamplePage());
        paper.Print(SamplePage());
        paper.Finish();
    }
    EXPECT_GT(std::filesystem::file_size(folder.filePath("page.pdf").toStdString()), 1000U);

    printer.setOutputFileName(folder.filePath("no/such/folder/page.pdf"));
    PrinterPaper paper(printer, "sample");
    EXPECT_THROW(paper.Print(SamplePage()), RuntimeError);
}

class PrintingDialogs : public DesktopTest {};

// Without a printer too: the toolkit's own dialog, or words in place of the system's.
TEST_F(PrintingDialogs, AreNeverPassedOverInSilence) {
    int seen = 0;
    const auto leave = [&seen](QWidget& dialog) {
        ++seen;
        QTest::keyClick(&dialog, Qt::Key_Escape);
    };
    WhenDialogOpens(leave);
    EXPECT_FALSE(Screen.PrinterDialog({}).has_value());
    WhenDialogOpens(leave);
    Screen.PageSetupDialog();
    EXPECT_EQ(seen, 2);
}

}  // namespace
}  // namespace quillmetra
