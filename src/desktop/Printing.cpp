// See Printing.h.
#include "desktop/Printing.h"

#include <QApplication>
#include <QGraphicsView>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QScreen>
#include <QSpinBox>

#include "desktop/DesktopHost.h"
#include "desktop/Painting.h"
#include "desktop/ReadyForUser.h"
#include "forms/ColourSchemes.h"
#include "forms/FileGuard.h"
#include "paper/PagePainter.h"
#include "paper/PdfPaper.h"
#include "platform/Dialogs.h"
#include "platform/RuntimeError.h"

namespace quillmetra {

namespace {
// What the user has put into the dialog: the toolkit makes 4 to 4 of a range from 4 to 2. A dialog of the
// system has no such box.
int PageIn(const QPrintDialog& dialog, const char* box, int otherwise) {
    const auto* const spin = dialog.findChild<QSpinBox*>(QLatin1String(box));
    return spin == nullptr ? otherwise : spin->value();
}

constexpr const char* NoPrinter =
    "There is no printer. A PDF can be saved without one; a printer that is set up now is known at the next "
    "start.";

// A dialog of the system, which has no widgets, shows printers alone: without any it ends unseen.
bool LacksPrinter(const QDialog& dialog, const QPrinter& printer) {
    const bool isOwn = dialog.findChild<QWidget*>() != nullptr;
    if (isOwn || printer.outputFormat() == QPrinter::NativeFormat) return false;
    Tell(NoPrinter, "Print", Icon::Exclamation);
    return true;
}
}  // namespace

PrinterPaper::PrinterPaper(QPrinter& printer, const std::string& name) : printer_(printer) {
    printer_.setDocName(ToQt(name));
    printer_.setFullPage(true);
    printer_.setCopyCount(1);  // the pages come copy by copy
}

PrinterPaper::~PrinterPaper() {
    if (!painter_.isActive()) return;
    printer_.abort();
    painter_.end();
}

void PrinterPaper::Print(const PrintedPage& page) {
    const bool ready = painter_.isActive() ? printer_.newPage() : painter_.begin(&printer_);
    if (!ready || printer_.printerState() == QPrinter::Error) throw failure::PrinterError();
    PaintPage(painter_, printer_, page);
}

void PrinterPaper::Finish() {
    if (!painter_.isActive()) return;
    if (!painter_.end() || printer_.printerState() == QPrinter::Error) throw failure::PrinterError();
}

void PreviewPaper::Finish() {
    printer_.setDocName(ToQt(name_));
    printer_.setFullPage(true);
    const ReadyForUser ready;
    QPrintPreviewDialog dialog(&printer_, WindowInHand());
    dialog.setWindowTitle(ToQt(name_));
    dialog.resize(dialog.screen()->availableSize() * 0.85);
    for (auto* const sheets : dialog.findChildren<QGraphicsView*>()) {
        sheets->setBackgroundBrush(ToQt(SlotColour(slot::Form)));
    }
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [this](QPrinter* printer) {
        QPainter painter(printer);
        for (std::size_t i = 0; i < pages_.size(); ++i) {
            if (i > 0 && !printer->newPage()) return;
            PaintPage(painter, *printer, pages_[i]);
        }
    });
    dialog.exec();
}

QPrinter& DesktopHost::ThePrinter() {
    if (printer_ == nullptr) printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    return *printer_;
}

std::optional<PrinterChoice> DesktopHost::PrinterDialog(const PrinterChoice& preset) {
    const ReadyForUser ready;
    QPrinter& printer = ThePrinter();
    printer.setCopyCount(preset.Copies);
    printer.setFromTo(preset.FromPage, preset.ToPage);
    QPrintDialog dialog(&printer, WindowInHand());
    if (LacksPrinter(dialog, printer) || dialog.exec() != QDialog::Accepted) return std::nullopt;
    // The dialog may print into a file too.
    const std::string file = printer.outputFileName().toStdString();
    if (!file.empty() && !MayWrite(file, "a printout", "Print")) return std::nullopt;
    PrinterChoice choice{.Copies = printer.copyCount()};
    if (printer.printRange() == QPrinter::PageRange) {
        choice.FromPage = PageIn(dialog, "from", printer.fromPage());
        choice.ToPage = PageIn(dialog, "to", printer.toPage());
    }
    return choice;
}

void DesktopHost::PageSetupDialog() {
    const ReadyForUser ready;
    QPageSetupDialog dialog(&ThePrinter(), WindowInHand());
    if (!LacksPrinter(dialog, ThePrinter())) dialog.exec();
}

std::unique_ptr<Paper> DesktopHost::OpenPaper(const PrintJob& job) {
    switch (job.To) {
        case PrintJob::Target::Pdf: {
            const QSizeF sheet = ThePrinter().pageLayout().fullRect(QPageLayout::Point).size();
            PrintJob sized = job;
            sized.SheetWidth = sheet.width() * TwipsPerPoint;
            sized.SheetHeight = sheet.height() * TwipsPerPoint;
            return OpenPdf(sized);
        }
        case PrintJob::Target::Preview: return std::make_unique<PreviewPaper>(ThePrinter(), job.Name);
        case PrintJob::Target::Printer: break;
    }
    return std::make_unique<PrinterPaper>(ThePrinter(), job.Name);
}

}  // namespace quillmetra
